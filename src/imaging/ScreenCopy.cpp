#include "imaging/ScreenCopy.h"

#include <FreeImage.h>

namespace tavrene::imaging {

Bitmap CopyForScreen(const Bitmap& bitmap) {
    if (!bitmap.IsStandardBitmap())
        return {};
    const FREE_IMAGE_COLOR_TYPE colors = FreeImage_GetColorType(bitmap.Get());
    if (colors == FIC_MINISBLACK || colors == FIC_MINISWHITE)
        return Bitmap(FreeImage_ConvertToGreyscale(bitmap.Get()));
    return Bitmap(FreeImage_ConvertTo32Bits(bitmap.Get()));
}

}  // namespace tavrene::imaging
