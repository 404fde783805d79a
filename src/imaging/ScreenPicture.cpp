#include "imaging/ScreenPicture.h"

#include <FreeImage.h>

namespace tavrene::imaging {

Bitmap ScreenPicture(Bitmap picture) {
    if (!picture.IsStandardBitmap())
        return {};
    const FREE_IMAGE_COLOR_TYPE colors = FreeImage_GetColorType(picture.Get());
    if (colors != FIC_MINISBLACK && colors != FIC_MINISWHITE)
        return Bitmap(FreeImage_ConvertTo32Bits(picture.Get()));
    if (picture.BitsPerPixel() > 1)
        return Bitmap(FreeImage_ConvertToGreyscale(picture.Get()));
    if (colors == FIC_MINISBLACK)
        FreeImage_Invert(picture.Get());
    return picture;
}

}  // namespace tavrene::imaging
