#include "intake/PdfErrors.h"

#include <poppler/Error.h>
#include <poppler/GlobalParams.h>

namespace tavrene::intake {
namespace {

thread_local std::string firstFault;

// Warnings are about what can be worked around without a change to the picture.
void NoteFault(ErrorCategory category, Goffset, const char* text) {
    const bool spoilsPage = category == errSyntaxError || category == errIO || category == errUnimplemented ||
                            category == errInternal;
    if (spoilsPage && firstFault.empty())
        firstFault = text == nullptr || *text == '\0' ? "fault" : text;
}

}  // namespace

void ListenToPdfLibrary() {
    // Fonts and character maps are found once for the life of the program.
    static const GlobalParamsIniter library(NoteFault);
    firstFault.clear();
}

const std::string& PdfFault() {
    return firstFault;
}

}  // namespace tavrene::intake
