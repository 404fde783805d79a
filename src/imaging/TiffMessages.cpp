#include "imaging/TiffMessages.h"

#include <tiffio.h>

#include <cstdarg>
#include <string_view>

namespace tavrene::imaging {
namespace {

// Set when the TIFF library met damaged data. The image library takes what was decoded up to there for the
// whole page.
bool tiffIsDamaged = false;

// The image library asks for tags that are not there, which is no damage.
void NoteTiffError(const char* module, const char*, va_list) {
    if (module == nullptr || std::string_view(module) != "TIFFFieldWithTag")
        tiffIsDamaged = true;
}

// In a Group 4 page every line builds on the one before, so a line of the wrong length spoils the rest; and a
// file that was cut short behind its picture may have lost its resolution.
void NoteTiffWarning(const char* module, const char* format, va_list) {
    if ((module != nullptr && std::string_view(module) == "Fax4Decode") ||
        std::string_view(format).starts_with("IO error"))
        tiffIsDamaged = true;
}

}  // namespace

void ListenToTiffLibrary() {
    tiffIsDamaged = false;
    TIFFSetErrorHandler(NoteTiffError);
    TIFFSetWarningHandler(NoteTiffWarning);
}

bool TiffWasDamaged() {
    return tiffIsDamaged;
}

}  // namespace tavrene::imaging
