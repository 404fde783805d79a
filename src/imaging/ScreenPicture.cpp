#include "imaging/ScreenPicture.h"

#include "imaging/ImageLibrary.h"

namespace tavrene::imaging {

Bitmap ScreenPicture(Bitmap picture) {
    if (!picture.IsStandardBitmap())
        return {};
    const FREE_IMAGE_COLOR_TYPE colors = Library().GetColorType(picture.Get());
    if (colors != FIC_MINISBLACK && colors != FIC_MINISWHITE)
        return Bitmap(Library().ConvertTo32Bits(picture.Get()));
    if (picture.BitsPerPixel() > 1)
        return Bitmap(Library().ConvertToGreyscale(picture.Get()));
    if (colors == FIC_MINISBLACK)
        Library().Invert(picture.Get());
    return picture;
}

}  // namespace tavrene::imaging
