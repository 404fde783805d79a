#include "forms/ProfileText.h"

#include <sstream>

namespace tavrene::samples {

std::string ProfileText(const PrintedForm& form, const std::string& blank) {
    std::ostringstream text;
    text << R"(<Tavrene Profile=")" << form.Name << R"(" Image=")" << blank << R"(" DPI_X=")" << kProfileDpi
         << R"(" DPI_Y=")" << kProfileDpi << R"(" Active="1"><OMRs Count=")" << form.Boxes.size() << R"(">)";
    int id = 0;
    for (const FormBox& box : form.Boxes) {
        // Ordinates of a document count the lines up to and including the edge, abscissas those before it.
        text << R"(<OMR ID=")" << ++id << R"(" L=")" << box.X << R"(" T=")" << box.Y + 1 << R"(" R=")"
             << box.X + kBoxSize - 1 << R"(" B=")" << box.Y + kBoxSize << R"(" Name=")" << box.Name
             << R"("/>)";
    }
    text << "</OMRs></Tavrene>";
    return text.str();
}

}  // namespace tavrene::samples
