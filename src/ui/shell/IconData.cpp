#include "ui/shell/IconData.h"

#include <array>
#include <vector>

namespace tavrene::ui {
namespace {

constexpr std::string_view kPage = "M 5 2.5 L 14 2.5 L 19 7.5 L 19 21.5 L 5 21.5 Z";
constexpr std::string_view kFold = "M 14 2.5 L 14 7.5 L 19 7.5";
constexpr std::string_view kLens = "O 10 10 6.5";
constexpr std::string_view kHandle = "M 14.8 14.8 L 21 21";
constexpr std::string_view kBox = "R 4 4 13 13";

struct Picture {
    std::string_view name;
    std::vector<IconPart> parts;
};

const std::array kPictures = {
    Picture{"New",
            {{kPage, Ink::Paper, true},
             {kFold},
             {"M 12 11 L 12 18", Ink::Green},
             {"M 8.5 14.5 L 15.5 14.5", Ink::Green}}},
    Picture{"Save",
            {{"M 3.5 3.5 L 17 3.5 L 20.5 7 L 20.5 20.5 L 3.5 20.5 Z", Ink::Blue, true},
             {"R 7.5 3.5 8 5.5", Ink::Paper, true},
             {"R 7 13 10 7.5", Ink::Paper, true}}},
    Picture{"Delete",
            {{kPage, Ink::Paper, true},
             {kFold},
             {"M 9 11.5 L 15 17.5", Ink::Red},
             {"M 15 11.5 L 9 17.5", Ink::Red}}},
    Picture{"ZoomToOrig",
            {{kLens, Ink::Paper, true}, {kHandle}, {"M 8.4 8.2 L 10.4 6.8 L 10.4 13.2", Ink::Blue}}},
    Picture{
        "ZoomIn",
        {{kLens, Ink::Paper, true}, {kHandle}, {"M 7 10 L 13 10", Ink::Blue}, {"M 10 7 L 10 13", Ink::Blue}}},
    Picture{"ZoomOut", {{kLens, Ink::Paper, true}, {kHandle}, {"M 7 10 L 13 10", Ink::Blue}}},
    Picture{"FitPage",
            {{"R 6.5 4.5 11 15", Ink::Paper, true},
             {"M 12 7 L 12 17", Ink::Blue},
             {"M 9.8 9 L 12 6.8 L 14.2 9", Ink::Blue},
             {"M 9.8 15 L 12 17.2 L 14.2 15", Ink::Blue},
             {"M 3 2 L 21 2"},
             {"M 3 22 L 21 22"}}},
    Picture{"FitWidth",
            {{"R 5 5 14 14", Ink::Paper, true},
             {"M 7.2 12 L 16.8 12", Ink::Blue},
             {"M 9.4 9.8 L 7.2 12 L 9.4 14.2", Ink::Blue},
             {"M 14.6 9.8 L 16.8 12 L 14.6 14.2", Ink::Blue},
             {"M 2 3 L 2 21"},
             {"M 22 3 L 22 21"}}},
    Picture{"Process", {{"M 6 3.5 L 20 12 L 6 20.5 Z", Ink::Green, true}}},
    Picture{"Stop", {{"R 5 5 14 14", Ink::Red, true}}},
    Picture{"Review",
            {{"R 4 4 16 17.5", Ink::Paper, true},
             {"R 8.5 2 7 4", Ink::Amber, true},
             {"M 7 11 L 8.3 12.3 L 10.5 9.7", Ink::Blue},
             {"M 12.5 11 L 17 11"},
             {"M 7 16.5 L 8.3 17.8 L 10.5 15.2", Ink::Blue},
             {"M 12.5 16.5 L 17 16.5"}}},
    Picture{"Okay", {{"M 4 12.5 L 9.5 18 L 20 6.5", Ink::Green}}},
    Picture{"AcceptForm", {{kPage, Ink::Paper, true}, {kFold}, {"M 8 14.5 L 11 17.5 L 16 11.5", Ink::Green}}},
    Picture{"RejectForm",
            {{kPage, Ink::Paper, true},
             {kFold},
             {"O 12 14.5 4", Ink::Red},
             {"M 9.2 17.3 L 14.8 11.7", Ink::Red}}},
    Picture{"Select",
            {{"M 6 2.5 L 6 18.5 L 10.2 14.8 L 13 21 L 15.8 19.7 L 13 13.7 L 18.5 13.3 Z", Ink::Paper, true}}},
    Picture{"Add",
            {{kBox, Ink::Paper, true}, {"M 18 14 L 18 22", Ink::Green}, {"M 14 18 L 22 18", Ink::Green}}},
    Picture{"DeleteBox",
            {{kBox, Ink::Paper, true}, {"M 15 15 L 21.5 21.5", Ink::Red}, {"M 21.5 15 L 15 21.5", Ink::Red}}},
};

}  // namespace

std::span<const IconPart> PartsOfIcon(std::string_view name) {
    for (const Picture& picture : kPictures)
        if (picture.name == name)
            return picture.parts;
    return {};
}

}  // namespace tavrene::ui
