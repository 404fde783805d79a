#include <FreeImage.h>

#include <algorithm>

#include "imaging/ImageHeader.h"
#include "imaging/PaintedPicture.h"
#include "imaging/ScratchImages.h"
#include "imaging/ScreenPicture.h"
#include "support/RunWorld.h"

namespace tavrene::imaging {
namespace {

using samples::Canvas;
using samples::Photometric;

class PageReaderTest : public test::RunWorld, protected test::PaintedPicture {
  protected:
    void Save(const Bitmap& picture, const std::string& name, int quality = 75) const {
        samples::SaveImage(picture, FormatOfExtension(name).value(), work_.File(name), quality);
    }

    std::variant<Page, PageError> Read(const std::string& name) {
        return ReadPage(files_, work_.File(name), FormatOfExtension(name).value());
    }

    // The page must be read and show the picture's dark pixels.
    Page Expect(const std::string& name) {
        Page page = std::get<Page>(Read(name));
        EXPECT_EQ(page.grid.Columns(), 128);
        EXPECT_TRUE(ShowsThePicture(page)) << name;
        return page;
    }

    void Expect(const std::string& name, PageError fault) {
        EXPECT_EQ(std::get<PageError>(Read(name)), fault) << name;
    }

    // A one-bit picture with a two-entry palette of its own.
    Bitmap WithPalette(RGBQUAD zero, RGBQUAD one, bool inkIsOne) const {
        Bitmap bitmap =
            samples::ToBilevel(picture_, inkIsOne ? Photometric::MinIsWhite : Photometric::MinIsBlack);
        RGBQUAD* const palette = FreeImage_GetPalette(bitmap.Get());
        palette[0] = zero;
        palette[1] = one;
        return bitmap;
    }
};

TEST_F(PageReaderTest, FindsTheSameInkInEveryFileType) {
    Save(samples::ToBilevel(picture_), "white.tif");
    Save(samples::ToBilevel(picture_, Photometric::MinIsBlack), "black.TIF");
    Save(samples::ToGrey(picture_), "grey.png");
    Save(samples::ToColour(picture_, picture_, picture_), "colour.PNG");
    Save(samples::ToGrey(picture_), "grey.gif");
    Save(samples::ToBilevel(picture_), "two.bmp");
    Save(samples::ToColour(picture_, picture_, picture_), "photo.jpg", 100);
    for (const char* name : {"white.tif", "black.TIF", "grey.png", "colour.PNG", "two.bmp", "photo.jpg"}) {
        const Page page = Expect(name);
        EXPECT_EQ(page.DPI_X, 200) << name;
        EXPECT_EQ(page.DPI_Y, 200) << name;
    }
    EXPECT_EQ(Expect("grey.gif").DPI_X, 0);
    EXPECT_TRUE(Expect("black.TIF").inverted);
    EXPECT_FALSE(Expect("white.tif").inverted);
    EXPECT_EQ(FormatOfExtension("form.tiff"), std::nullopt);
    EXPECT_EQ(FormatOfExtension("form"), std::nullopt);
}

// Black and white of one bit a pixel at the least, with 1 for black.
bool IsDark(const Bitmap& screen, int x, int y) {
    const auto line = screen.ScanLine(screen.Height() - 1 - y);
    if (screen.BitsPerPixel() == 1)
        return (line[static_cast<std::size_t>(x) / 8] & (0x80U >> (static_cast<unsigned>(x) % 8))) != 0;
    return line[static_cast<std::size_t>(x * screen.BitsPerPixel() / 8)] < 128;
}

TEST_F(PageReaderTest, EveryPageCanBeShownWhateverItIsNamed) {
    const auto save = [this](const Bitmap& picture, ImageFormat format, const std::string& name) {
        samples::SaveImage(picture, format, work_.File(name));
    };
    save(samples::ToBilevel(picture_), ImageFormat::Tiff, "white.tiff");
    save(samples::ToBilevel(picture_, Photometric::MinIsBlack), ImageFormat::Tiff, "black.scan");
    save(samples::ToBilevel(picture_), ImageFormat::Tiff, "tiff.gif");
    save(samples::ToGrey(picture_), ImageFormat::Png, "grey.png");
    for (const char* name : {"white.tiff", "black.scan", "tiff.gif", "grey.png"}) {
        ASSERT_TRUE(std::holds_alternative<Page>(ReadSpecimen(files_, work_.File(name)))) << name;
        const Bitmap shown = ScreenPicture(DecodeAnyImage(files_.Read(work_.File(name))));
        ASSERT_TRUE(shown) << name;
        EXPECT_TRUE(Shows([&shown](int x, int y) { return IsDark(shown, x, y); })) << name;
    }
}

TEST_F(PageReaderTest, TakesTheDarkerOfTwoPaletteColoursForInk) {
    const RGBQUAD blue{120, 40, 20, 0};
    const RGBQUAD cream{200, 240, 250, 0};
    for (const std::string extension : {".png", ".bmp"}) {
        Save(WithPalette(cream, blue, true), "one" + extension);
        Save(WithPalette(blue, cream, false), "zero" + extension);
        Expect("one" + extension);
        Expect("zero" + extension);
    }
}

TEST_F(PageReaderTest, LaysTransparentPicturesOnWhite) {
    Bitmap full(FreeImage_ConvertTo32Bits(samples::ToGrey(picture_).Get()));
    for (unsigned y = 0; y < 60; ++y) {
        for (unsigned x = 0; x < 100; ++x) {
            RGBQUAD pixel;
            FreeImage_GetPixelColor(full.Get(), x, y, &pixel);
            // Clear paper is stored black, as many programs do.
            const bool ink = pixel.rgbRed < 128;
            pixel = {0, 0, 0, static_cast<BYTE>(ink ? 255 : 0)};
            FreeImage_SetPixelColor(full.Get(), x, y, &pixel);
        }
    }
    Save(full, "clear.png");
    Expect("clear.png");

    Bitmap deep(FreeImage_ConvertToRGB16(samples::ToGrey(picture_).Get()));
    Save(deep, "deep.png");
    Expect("deep.png");
}

TEST_F(PageReaderTest, KnowsNoResolutionWhereTheFileCarriesNone) {
    const Canvas unmeasured(100, 60, 0);
    Save(samples::ToGrey(unmeasured), "a.png");
    Save(samples::ToGrey(unmeasured), "a.jpg");
    // The library writes a density unit in any case; a camera's file may say "no unit".
    std::string jpeg = test::ReadText(work_.File("a.jpg"));
    jpeg[jpeg.find("JFIF") + 7] = 0;
    test::WriteText(work_.File("a.jpg"), jpeg);
    for (const char* name : {"a.png", "a.jpg"}) {
        const Page page = std::get<Page>(Read(name));
        EXPECT_EQ(page.DPI_X + page.DPI_Y, 0) << name;
    }
}

TEST_F(PageReaderTest, RefusesPagesBeyondTheNumberRange) {
    Save(samples::ToBilevel({32'768, 2, 200}), "wide.tif");
    Save(samples::ToBilevel({2, 32'768, 200}), "tall.tif");
    Expect("wide.tif", PageError::NotABitmap);
    Expect("tall.tif", PageError::NotABitmap);
}

std::string BigEndian(unsigned value) {
    return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
            static_cast<char>(value)};
}

std::string PngChunk(const std::string& type, const std::string& data) {
    std::string body = type + data;
    const DWORD sum =
        FreeImage_ZLibCRC32(0, reinterpret_cast<BYTE*>(body.data()), static_cast<DWORD>(body.size()));
    return BigEndian(static_cast<unsigned>(data.size())) + body + BigEndian(sum);
}

TEST_F(PageReaderTest, AsksTheHeaderBeforeUnpackingABomb) {
    const auto png = [](unsigned side) {
        return "\x89PNG\r\n\x1A\n" +
               PngChunk("IHDR", BigEndian(side) + BigEndian(side) + std::string("\x08\0\0\0\0", 5)) +
               PngChunk("IDAT", "x");
    };
    EXPECT_FALSE(MayBeDecoded(app::AsBytes(png(30'000)), ImageFormat::Png));
    EXPECT_TRUE(MayBeDecoded(app::AsBytes(png(3'000)), ImageFormat::Png));
    const auto gif = [](char high) {
        return "GIF89a" + std::string("\x10\0\x10\0\x80\0\0", 7) + std::string(6, 'c') +
               std::string("\x21\xF9\x04\0\0\0\0\0", 8) + "\x2C" + std::string(4, '\0') +
               std::string{'\0', high, '\0', high} + std::string(20, '\0');
    };
    EXPECT_FALSE(MayBeDecoded(app::AsBytes(gif('\xF0')), ImageFormat::Gif));
    EXPECT_TRUE(MayBeDecoded(app::AsBytes(gif('\x04')), ImageFormat::Gif));
}

TEST_F(PageReaderTest, RefusesAFaxWithBrokenLines) {
    Canvas page(800, 800, 200);
    for (int k = 0; k < 60; ++k)
        page.DrawRect(20 + 12 * k, 15 + 11 * k, 90, 30, 2);
    Save(samples::ToBilevel(page), "fax.tif");
    std::string fax = test::ReadText(work_.File("fax.tif"));
    for (std::size_t k = fax.size() / 2; k < fax.size() / 2 + 40; ++k)
        fax[k] = static_cast<char>(fax[k] ^ 0x5A);
    test::WriteText(work_.File("fax.tif"), fax);
    Expect("fax.tif", PageError::NotABitmap);
}

TEST_F(PageReaderTest, ScratchImagesAreOfTheCurrentPageOnly) {
    ScratchImages scratch(files_, work_.Path() + "/");
    Save(samples::ToBilevel(picture_, Photometric::MinIsBlack), "scan.tif");
    Save(samples::ToBilevel(Canvas(50, 50, 200)), "blank.tif");
    EXPECT_EQ(scratch.WritePage(std::get<Page>(Read("scan.tif"))), "");
    const Page shown = Expect("temp2.tif");
    EXPECT_FALSE(shown.inverted);
    EXPECT_FALSE(Expect("temp.tif").inverted);

    files_.Delete(work_.File("temp.tif"));
    scratch.WritePage(std::get<Page>(Read("blank.tif")));
    EXPECT_EQ(std::get<Page>(Read("temp2.tif")).grid.Width(), 50);
    EXPECT_FALSE(files_.FileExists(work_.File("temp.tif")));

    ScratchImages nowhere(files_, work_.Path() + "/gone/");
    const std::string failure = nowhere.WriteConverted(shown);
    EXPECT_NE(failure.find("gone/temp.tif"), std::string::npos) << failure;
}

}  // namespace
}  // namespace tavrene::imaging
