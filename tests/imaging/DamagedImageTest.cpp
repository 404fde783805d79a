#include <FreeImage.h>
#include <tiffio.h>

#include <algorithm>
#include <functional>

#include "imaging/ImageHeader.h"
#include "imaging/PaintedPicture.h"
#include "imaging/TiffPages.h"
#include "support/TempFolder.h"

namespace tavrene::imaging {
namespace {

// Pages of real files, cut and bent byte by byte.
class DamagedImageTest : public testing::Test, protected test::PaintedPicture {
  protected:
    std::string Saved(const Bitmap& picture, ImageFormat format, int flags) const {
        FIMEMORY* const memory = FreeImage_OpenMemory();
        BYTE* data = nullptr;
        DWORD size = 0;
        EXPECT_TRUE(
            FreeImage_SaveToMemory(static_cast<FREE_IMAGE_FORMAT>(format), picture.Get(), memory, flags));
        FreeImage_AcquireMemory(memory, &data, &size);
        std::string content(data, data + size);
        FreeImage_CloseMemory(memory);
        return content;
    }

    static std::variant<Page, PageError> Read(const std::string& content, ImageFormat format) {
        return PageOf(app::AsBytes(content), format);
    }

    static bool IsAccepted(const std::string& content, ImageFormat format) {
        return std::holds_alternative<Page>(Read(content, format));
    }

    // How many of all the ways to cut a file off are taken for a page; each of them must be the whole one.
    int AcceptedCuts(const std::string& whole, ImageFormat format) {
        EXPECT_TRUE(ShowsThePicture(std::get<Page>(Read(whole, format)))) << static_cast<int>(format);
        int accepted = 0;
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const auto read = Read(whole.substr(0, length), format);
            const Page* const page = std::get_if<Page>(&read);
            accepted += page != nullptr ? 1 : 0;
            EXPECT_TRUE(page == nullptr || ShowsThePicture(*page)) << "cut at " << length;
        }
        return accepted;
    }

    // A PCX of one bit a pixel, each byte as a run of one.
    std::string Pcx() const {
        std::string pcx(128, '\0');
        pcx[0] = 10;
        pcx[1] = 5;
        pcx[2] = 1;  // encoded
        pcx[3] = 1;
        pcx[8] = 99;   // last column
        pcx[10] = 59;  // last line
        pcx[65] = 1;
        pcx[66] = 14;  // bytes a line
        for (int y = 0; y < 60; ++y) {
            for (int b = 0; b < 14; ++b) {
                unsigned byte = 0;
                for (int k = 0; k < 8; ++k)
                    byte = byte << 1U | (picture_.At(8 * b + k, y) < 128 ? 0U : 1U);
                pcx += '\xC1';
                pcx += static_cast<char>(byte);
            }
        }
        return pcx;
    }

    std::string Jpeg() const { return Saved(samples::ToGrey(picture_), ImageFormat::Jpeg, 100); }

    // A TIFF of the picture with whatever tags `more` sets; `mode` tells the order of its bytes and its kind.
    std::string TiffWith(const std::function<void(TIFF*)>& more, const char* mode = "wl") const {
        const std::string path = work_.File("made.tif");
        const Bitmap bits = samples::ToBilevel(picture_);
        TIFF* const file = TIFFOpen(path.c_str(), mode);
        TIFFSetField(file, TIFFTAG_IMAGEWIDTH, 100);
        TIFFSetField(file, TIFFTAG_IMAGELENGTH, 60);
        TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 1);
        TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 1);
        TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, 60);
        TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
        TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
        TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
        TIFFSetField(file, TIFFTAG_XRESOLUTION, 200.0);
        TIFFSetField(file, TIFFTAG_YRESOLUTION, 200.0);
        more(file);
        for (int y = 0; y < 60; ++y) {
            const auto line = bits.ScanLine(59 - y);
            std::vector<std::uint8_t> copy(static_cast<std::size_t>(TIFFScanlineSize(file)));
            std::copy_n(line.begin(), std::min(copy.size(), line.size()), copy.begin());
            TIFFWriteScanline(file, copy.data(), static_cast<std::uint32_t>(y), 0);
        }
        TIFFClose(file);
        return test::ReadText(path);
    }

    test::TempFolder work_;
};

// The place of the entry of `tag` in the directory of a little-endian TIFF.
std::size_t EntryOf(const std::string& tiff, int tag) {
    const auto number = [&tiff](std::size_t at, int bytes) {
        std::size_t value = 0;
        for (int k = bytes - 1; k >= 0; --k)
            value = value << 8U | static_cast<unsigned char>(tiff[at + static_cast<std::size_t>(k)]);
        return value;
    };
    const std::size_t directory = number(4, 4);
    for (std::size_t k = 0; k < number(directory, 2); ++k) {
        if (number(directory + 2 + 12 * k, 2) == static_cast<std::size_t>(tag))
            return directory + 2 + 12 * k;
    }
    ADD_FAILURE() << "no tag " << tag;
    return 0;
}

// The tag's value lies, or points, far behind the file.
std::string WithTagLost(std::string tiff, int tag) {
    tiff.replace(EntryOf(tiff, tag) + 8, 4, "\xFF\xFF\xFF\x7F");
    return tiff;
}

TEST_F(DamagedImageTest, EveryFileThatIsCutShortIsRefused) {
    const Bitmap bits = samples::ToBilevel(picture_);
    const Bitmap grey = samples::ToGrey(picture_);
    EXPECT_EQ(AcceptedCuts(Pcx(), ImageFormat::Pcx), 0);
    EXPECT_EQ(AcceptedCuts(Saved(bits, ImageFormat::Bmp, 0), ImageFormat::Bmp), 0);
    EXPECT_EQ(AcceptedCuts(Saved(grey, ImageFormat::Png, 0), ImageFormat::Png), 0);
    EXPECT_EQ(AcceptedCuts(Saved(grey, ImageFormat::Gif, 0), ImageFormat::Gif), 0);
    // Their directory lies behind the picture; what may be missing is not needed.
    for (const int compression :
         {TIFF_CCITTFAX3, TIFF_CCITTFAX4, TIFF_LZW, TIFF_PACKBITS, TIFF_DEFLATE, TIFF_NONE})
        EXPECT_EQ(AcceptedCuts(Saved(bits, ImageFormat::Tiff, compression), ImageFormat::Tiff), 0)
            << compression;
}

TEST_F(DamagedImageTest, AJpegMayLackItsEndMarkerAlone) {
    const std::string whole = Jpeg();
    EXPECT_EQ(AcceptedCuts(whole, ImageFormat::Jpeg), 2);
    for (std::size_t length = 0; length + 2 < whole.size(); ++length)
        EXPECT_FALSE(IsAccepted(whole.substr(0, length) + "\xFF\xD9", ImageFormat::Jpeg)) << length;
    const std::string progressive =
        Saved(samples::ToGrey(picture_), ImageFormat::Jpeg, 100 | JPEG_PROGRESSIVE);
    EXPECT_EQ(AcceptedCuts(progressive, ImageFormat::Jpeg), 2);
}

TEST_F(DamagedImageTest, AJpegMayHaveFillBytes) {
    std::string jpeg = Jpeg();
    jpeg.insert(2, "\xFF\xFF\xFF");            // before the first segment
    jpeg.insert(jpeg.size() - 2, "\xFF\xFF");  // before the end marker
    const Page filled = std::get<Page>(Read(jpeg, ImageFormat::Jpeg));
    EXPECT_TRUE(ShowsThePicture(filled));
    EXPECT_EQ(filled.DPI_X, 200);
    jpeg.insert(jpeg.size() - 2, std::string(5, '\0'));
    EXPECT_TRUE(IsAccepted(jpeg, ImageFormat::Jpeg)) << "stray bytes behind the picture";
    EXPECT_TRUE(IsAccepted(jpeg + "trailing bytes", ImageFormat::Jpeg));
}

// What the file tells beside the picture never reaches the image library, which reads memory that it has
// given back where there are both a colour profile and an EXIF directory.
void SetMetadata(TIFF* file) {
    const std::string text(300, 'x');
    TIFFSetField(file, TIFFTAG_XMLPACKET, static_cast<std::uint32_t>(text.size()), text.data());
    TIFFSetField(file, TIFFTAG_ICCPROFILE, static_cast<std::uint32_t>(text.size()), text.data());
    TIFFSetField(file, TIFFTAG_EXIFIFD, std::uint64_t{8});
    TIFFSetField(file, TIFFTAG_SOFTWARE, text.c_str());
}

TEST_F(DamagedImageTest, ATiffIsReadWithoutWhatItTellsBesideItsPicture) {
    for (const char* mode : {"wl", "wb", "w8l", "w8b"}) {
        const std::string tiff = TiffWith(SetMetadata, mode);
        EXPECT_TRUE(ShowsThePicture(std::get<Page>(Read(tiff, ImageFormat::Tiff)))) << mode;
        const std::vector<TiffPage> pages = DecodeTiffPages(app::AsBytes(tiff));
        ASSERT_EQ(pages.size(), 1U) << mode;
        EXPECT_EQ(pages[0].label, std::string(300, 'x'));
        const Bitmap alone = DecodeImage(app::AsBytes(tiff), ImageFormat::Tiff);
        for (const Bitmap* bitmap : {&pages[0].picture, &alone})
            EXPECT_EQ(FreeImage_GetICCProfile(bitmap->Get())->size, 0U) << mode;
    }
    std::string whole = TiffWith(SetMetadata);
    const auto end = static_cast<char>(whole.size() & 0xFFU);
    whole.replace(EntryOf(whole, TIFFTAG_EXIFIFD) + 8, 2, {end, static_cast<char>(whole.size() >> 8U)});
    using namespace std::string_literals;
    whole += "\x01\0\0\x90\x07\0\x04\0\0\0"s + "0230" + "\0\0\0\0"s;
    EXPECT_TRUE(ShowsThePicture(std::get<Page>(Read(whole, ImageFormat::Tiff)))) << "a sound EXIF directory";
}

TEST_F(DamagedImageTest, ATiffMayHaveBrokenTagsBesideItsPicture) {
    const std::string plain = TiffWith([](TIFF*) {});
    for (const char unit : {'\0', '\x09'}) {
        std::string odd = plain;
        odd[EntryOf(odd, TIFFTAG_RESOLUTIONUNIT) + 8] = unit;
        const Page page = std::get<Page>(Read(odd, ImageFormat::Tiff));
        EXPECT_TRUE(ShowsThePicture(page));
        EXPECT_EQ(page.DPI_X, 200);
    }
    const std::string tagged = TiffWith(SetMetadata);
    for (const int tag : {TIFFTAG_XMLPACKET, TIFFTAG_ICCPROFILE, TIFFTAG_EXIFIFD, TIFFTAG_SOFTWARE}) {
        const auto read = Read(WithTagLost(tagged, tag), ImageFormat::Tiff);
        ASSERT_TRUE(std::holds_alternative<Page>(read)) << tag;
        EXPECT_TRUE(ShowsThePicture(std::get<Page>(read))) << tag;
    }
    for (const int tag : {TIFFTAG_XRESOLUTION, TIFFTAG_YRESOLUTION, TIFFTAG_STRIPOFFSETS})
        EXPECT_FALSE(IsAccepted(WithTagLost(tagged, tag), ImageFormat::Tiff)) << tag;
}

TEST_F(DamagedImageTest, ATiffHeaderIsAskedForAllThatIsToBeDecoded) {
    const auto isTaken = [this](const std::function<void(TIFF*)>& more) {
        return MayBeDecoded(app::AsBytes(TiffWith(more)), ImageFormat::Tiff);
    };
    EXPECT_TRUE(isTaken([](TIFF*) {}));
    EXPECT_FALSE(MayBeDecoded(app::AsBytes("II*"), ImageFormat::Tiff));
    // 16,000 x 15,000 pixels of 64 bits lie within the area, not within the memory.
    const auto sized = [](std::uint16_t bits) {
        return [bits](TIFF* file) {
            TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
            TIFFSetField(file, TIFFTAG_IMAGEWIDTH, 16'000);
            TIFFSetField(file, TIFFTAG_IMAGELENGTH, 15'000);
            TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, bits);
        };
    };
    EXPECT_TRUE(isTaken(sized(1)));
    EXPECT_FALSE(isTaken(sized(64)));
}

TEST_F(DamagedImageTest, AJpegInSeveralScansIsHeldWhole) {
    const Bitmap colour(FreeImage_ConvertTo24Bits(samples::ToGrey(picture_).Get()));
    for (const bool progressive : {false, true}) {
        std::string jpeg =
            Saved(colour, ImageFormat::Jpeg, JPEG_SUBSAMPLING_444 | (progressive ? JPEG_PROGRESSIVE : 0));
        EXPECT_TRUE(MayBeDecoded(app::AsBytes(jpeg), ImageFormat::Jpeg));
        const std::size_t frame = jpeg.find(progressive ? "\xFF\xC2" : "\xFF\xC0");
        jpeg.replace(frame + 5, 4, "\x3A\x98\x3E\x80");  // 15,000 lines of 16,000 pixels
        EXPECT_EQ(MayBeDecoded(app::AsBytes(jpeg), ImageFormat::Jpeg), !progressive);
    }
}

TEST_F(DamagedImageTest, AOneBitPageOfOneColourIsReadByIndex) {
    for (const BYTE shade : {BYTE{0}, BYTE{255}}) {
        for (const ImageFormat format : {ImageFormat::Bmp, ImageFormat::Png, ImageFormat::Gif}) {
            Bitmap bits = samples::ToBilevel(picture_, samples::Photometric::MinIsBlack);
            RGBQUAD* const palette = FreeImage_GetPalette(bits.Get());
            palette[0] = palette[1] = {shade, shade, shade, 0};
            const auto read = Read(Saved(bits, format, 0), format);
            ASSERT_TRUE(std::holds_alternative<Page>(read));
            EXPECT_TRUE(ShowsThePicture(std::get<Page>(read)))
                << static_cast<int>(format) << " " << int{shade};
        }
    }
}

TEST_F(DamagedImageTest, ABmpMayHaveNoResolution) {
    std::string bmp = Saved(samples::ToBilevel(picture_), ImageFormat::Bmp, 0);
    EXPECT_EQ(std::get<Page>(Read(bmp, ImageFormat::Bmp)).DPI_X, 200);
    std::fill_n(bmp.begin() + 38, 8, '\0');
    const Page page = std::get<Page>(Read(bmp, ImageFormat::Bmp));
    EXPECT_EQ(page.DPI_X, 0);
    EXPECT_EQ(page.DPI_Y, 0);
}

TEST_F(DamagedImageTest, APcxThatTheLibraryWouldMakeUpIsRefused) {
    EXPECT_TRUE(ShowsThePicture(std::get<Page>(Read(Pcx() + "trailing", ImageFormat::Pcx))));
    std::string plain = Pcx();
    plain[2] = 0;
    EXPECT_FALSE(IsAccepted(plain, ImageFormat::Pcx)) << "not encoded";
    std::string narrow = Pcx();
    narrow[66] = 12;  // fewer bytes a line than its columns take
    EXPECT_FALSE(IsAccepted(narrow, ImageFormat::Pcx));
}

}  // namespace
}  // namespace tavrene::imaging
