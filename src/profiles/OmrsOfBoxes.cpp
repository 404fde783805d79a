#include "profiles/OmrsOfBoxes.h"

#include <algorithm>

#include "app/Numeric.h"
#include "imaging/WorkGrid.h"

namespace tavrene::profiles {
namespace {

const std::string kUnnamed = "Un-named-";

}  // namespace

std::vector<OmrBox> OmrsOfBoxes(std::span<const boxes::BoxRect> found, int height) {
    std::vector<OmrBox> omrs;
    omrs.reserve(found.size());
    for (const boxes::BoxRect& box : found) {
        OmrBox omr;
        omr.Name = UnnamedBox(static_cast<int>(omrs.size()) + 1);
        omr.L = box.L;
        omr.T = app::ClampToInt16(imaging::FlipVertically(height, static_cast<int>(box.B)));
        omr.R = box.R;
        omr.B = app::ClampToInt16(imaging::FlipVertically(height, static_cast<int>(box.T)));
        omrs.push_back(omr);
    }
    return omrs;
}

std::vector<boxes::BoxRect> BoxesOfOmrs(std::span<const OmrBox> omrs, int height) {
    std::vector<boxes::BoxRect> found;
    for (const OmrBox& omr : omrs) {
        if (!omr.Checked)
            continue;
        boxes::BoxRect box;
        box.L = omr.L;
        box.T = app::ClampToInt16(imaging::FlipVertically(height, static_cast<int>(omr.B)));
        box.R = omr.R;
        box.B = app::ClampToInt16(imaging::FlipVertically(height, static_cast<int>(omr.T)));
        found.push_back(box);
    }
    return found;
}

std::string UnnamedBox(int number) {
    return kUnnamed + std::to_string(number);
}

bool IsUnnamed(const std::string& name) {
    return name.starts_with(kUnnamed) &&
           name.find_first_not_of("0123456789", kUnnamed.size()) == std::string::npos;
}

std::string ShownName(const OmrBox& box, int number) {
    return box.Name.empty() ? UnnamedBox(number) : box.Name;
}

std::string FreeName(std::span<const OmrBox> boxes, int& number) {
    const auto isTaken = [boxes](const std::string& name) {
        return std::any_of(boxes.begin(), boxes.end(),
                           [&](const OmrBox& box) { return box.Checked && box.Name == name; });
    };
    while (isTaken(UnnamedBox(number)))
        ++number;
    return UnnamedBox(number++);
}

}  // namespace tavrene::profiles
