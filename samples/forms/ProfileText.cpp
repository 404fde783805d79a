#include "forms/ProfileText.h"

#include <sstream>

namespace tavrene::samples {

std::string ProfileText(const PrintedForm& form, const std::string& blank) {
    std::ostringstream text;
    text << R"(<Tavrene Profile=")" << form.Name << R"(" Image=")" << blank << R"(" DPI_X=")" << kProfileDpi
         << R"(" DPI_Y=")" << kProfileDpi << R"(" Active="1"><OMRs Count=")" << form.Boxes.size() << R"(">)";
    int id = 0;
    for (const FormBox& box : form.Boxes) {
        // The inner line of the outline, where box finding sees it. Ordinates of a document count the lines
        // up to and including the edge, abscissas those before it.
        const int left = box.X + kBoxLine - 1;
        const int right = box.X + kBoxSize - kBoxLine;
        const int top = box.Y + kBoxLine;
        const int bottom = box.Y + kBoxSize - kBoxLine + 1;
        text << R"(<OMR ID=")" << ++id << R"(" L=")" << left << R"(" T=")" << top << R"(" R=")" << right
             << R"(" B=")" << bottom << R"(" Name=")" << box.Name << R"("/>)";
    }
    text << "</OMRs></Tavrene>";
    return text.str();
}

}  // namespace tavrene::samples
