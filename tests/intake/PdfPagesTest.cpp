#include "intake/IntakeWorld.h"
#include "support/Faults.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;
using samples::PdfPage;
using test::Has;

constexpr int kWidth = 397;
constexpr int kHeight = 561;

class PdfPagesTest : public test::IntakeWorld {
  protected:
    // A page of half the picture's pixels in points, so that it is at 144 dots per inch.
    static PdfPage PageOf(const std::string& picture, const std::string& data) {
        PdfPage page{kWidth / 2.0, kHeight / 2.0, {}, {}, {}, data};
        page.contents = samples::WholePage(page);
        page.picture = "/Width 397/Height 561" + picture;
        return page;
    }

    static std::string Samples(const samples::Canvas& canvas) {
        std::string samples;
        for (int y = 0; y < canvas.Height(); ++y) {
            for (int x = 0; x < canvas.Width(); ++x)
                samples += static_cast<char>(canvas.At(x, y));
        }
        return samples;
    }

    // One bit a pixel, 1 for black or for white.
    static std::string Bits(const samples::Canvas& canvas, bool oneIsBlack) {
        std::string bits;
        for (int y = 0; y < canvas.Height(); ++y) {
            for (int x = 0; x < canvas.Width(); x += 8) {
                unsigned byte = 0;
                for (int k = 0; k < 8; ++k)
                    byte = byte << 1U | ((canvas.At(x + k, y) < 128) == oneIsBlack ? 1U : 0U);
                bits += static_cast<char>(byte);
            }
        }
        return bits;
    }

    static PdfPage GreyPage(int number) {
        return PageOf("/BitsPerComponent 8/ColorSpace/DeviceGray", Samples(Shaded(number)));
    }

    Outcome BringInPages(const std::vector<PdfPage>& pages, const std::string& trailer = {}) {
        test::WriteText(From("a.pdf"), samples::PdfOf(pages, trailer));
        return BringInFile("a.pdf");
    }

    // The only page of a document.
    Bitmap PageFrom(const PdfPage& page) {
        const Outcome outcome = BringInPages({page});
        EXPECT_EQ(outcome.reason, "");
        return outcome.images.empty() ? Bitmap() : Incoming(outcome.images[0]);
    }

    void ExpectPicture(const PdfPage& page, const Bitmap& wanted, int bits, const std::string& what) {
        const Bitmap got = PageFrom(page);
        ExpectSame(got, wanted, what);
        EXPECT_EQ(got.BitsPerPixel(), bits) << what;
        EXPECT_EQ(DpiOf(got), 144) << what;
    }

    void ExpectDrawn(const PdfPage& page, const std::string& what) {
        const Bitmap got = PageFrom(page);
        EXPECT_EQ(DpiOf(got), 300) << what;
        EXPECT_NEAR(got.Width(), page.width * 300 / 72, 1) << what;
        EXPECT_NEAR(got.Height(), page.height * 300 / 72, 1) << what;
    }
};

TEST_F(PdfPagesTest, APictureKeepsItsPixelsWhateverItsColours) {
    const Bitmap lines = samples::ToBilevel(Page(1));
    const std::string oneBit = "/BitsPerComponent 1/ColorSpace/DeviceGray";
    ExpectPicture(PageOf(oneBit, Bits(Page(1), false)), lines, 1, "white is 1");
    ExpectPicture(PageOf(oneBit + "/Decode[1 0]", Bits(Page(1), true)), lines, 1, "black is 1");
    ExpectPicture(
        PageOf("/BitsPerComponent 1/ColorSpace[/Indexed/DeviceRGB 1<FFFFFF000000>]", Bits(Page(1), true)),
        lines, 1, "a palette of black and white");
    ExpectPicture(PageOf("/BitsPerComponent 1/ImageMask true", Bits(Page(1), false)), lines, 1, "a stencil");
    ExpectPicture(GreyPage(2), samples::ToGrey(Shaded(2)), 8, "grey");

    const samples::Canvas red = Shaded(3);
    const samples::Canvas green = Page(4);
    const samples::Canvas blue = Page(5);
    const Bitmap colour = samples::ToColour(red, green, blue);
    std::string samples;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            samples += {static_cast<char>(red.At(x, y)), static_cast<char>(green.At(x, y)),
                        static_cast<char>(blue.At(x, y))};
    }
    ExpectPicture(PageOf("/BitsPerComponent 8/ColorSpace/DeviceRGB", samples), colour, 24, "colour");

    samples::SaveImage(colour, imaging::ImageFormat::Jpeg, From("photo.jpg"));
    const std::string jpeg = test::ReadText(From("photo.jpg"));
    // As it is meant, not as quickly as can be.
    const Bitmap exact(FreeImage_Load(FIF_JPEG, From("photo.jpg").c_str(), JPEG_ACCURATE));
    ExpectPicture(PageOf("/BitsPerComponent 8/ColorSpace/DeviceRGB/Filter/DCTDecode", jpeg), exact, 24,
                  "JPEG");
}

TEST_F(PdfPagesTest, APictureIsUprightAsThePageIsShown) {
    using imaging::Turn;
    const Bitmap upright = samples::ToGrey(Shaded(1));
    const auto turned = [](Turn turn) { return imaging::Turned(samples::ToGrey(Shaded(1)), turn); };
    const auto expect = [&](const std::string& matrix, const std::string& entries, const Bitmap& wanted,
                            bool lies) {
        PdfPage page = GreyPage(1);
        if (lies)
            std::swap(page.width, page.height);
        page.contents = matrix + " cm /Im0 Do";
        page.entries = entries;
        ExpectPicture(page, wanted, 8, matrix + entries);
    };
    const std::string standing = "198.5 0 0 280.5 0 0";
    expect(standing, "/Rotate 90", turned({false, 1}), false);
    expect(standing, "/Rotate 180", turned({false, 2}), false);
    expect(standing, "/Rotate 270", turned({false, 3}), false);
    expect("198.5 0 0 -280.5 0 280.5", "", turned({true, 2}), false);
    expect("-198.5 0 0 280.5 198.5 0", "", turned({true, 0}), false);
    expect("0 -198.5 280.5 0 0 198.5", "", turned({false, 1}), true);
    expect("0 198.5 280.5 0 0 0", "", turned({true, 1}), true);
    expect("0 -198.5 280.5 0 0 198.5", "/Rotate 270", upright, true);
    // The turning itself, by one corner: what is top left goes to the top right.
    const Bitmap quarter = turned({false, 1});
    EXPECT_EQ(quarter.Width(), kHeight);
    EXPECT_EQ(quarter.ScanLine(kWidth - 1 - 5)[kHeight - 1 - 5], 0);
    EXPECT_EQ(upright.ScanLine(kHeight - 1 - 5)[5], 0);
}

TEST_F(PdfPagesTest, WhatDoesNotShowMakesNoDifference) {
    const Bitmap wanted = samples::ToGrey(Shaded(1));
    PdfPage page = GreyPage(1);
    const std::string picture = "q " + page.contents + " Q ";
    const std::string text = "BT /F0 12 Tf 20 100 Td (recognised) Tj ET ";
    for (const std::string& contents :
         {picture + "3 Tr " + text, text + picture, "1 g 0 0 200 300 re f " + picture,
          "0 0 198.5 280.5 re W n " + picture, "q 50 0 0 50 20 20 cm /Im0 Do Q " + picture}) {
        page.contents = contents;
        ExpectPicture(page, wanted, 8, contents);
    }
}

TEST_F(PdfPagesTest, APageOfMoreThanAPictureIsDrawn) {
    PdfPage page = GreyPage(1);
    const std::string picture = "q " + page.contents + " Q ";
    for (const std::string& contents :
         {picture + "2 w 20 20 m 100 100 l S", picture + "BT /F0 12 Tf 20 100 Td (seen) Tj ET",
          picture + "10 10 20 20 re f", "20 20 100 100 re W n " + picture,
          // Within them stands what would end them.
          picture + "20 0 0 20 9 9 cm BI /W 4/H 4/BPC 8/CS/G ID 0123EI J6789abcd\nEI",
          picture + "20 0 0 20 9 9 cm BI /W 32/H 4/IM true ID 0123EI J6789abcd\nEI",
          "99 99 m 150 150 50 200 9 9 c W n " + picture, std::string("100 0 0 100 20 20 cm /Im0 Do"),
          std::string("195 20 -20 275 0 0 cm /Im0 Do"),
          std::string("BT /F0 12 Tf 20 100 Td (no picture at all) Tj ET"), std::string()}) {
        page.contents = contents;
        ExpectDrawn(page, contents);
    }
    page.contents = picture;
    page.entries = "/Annots[<</Type/Annot/Subtype/Square/Rect[20 20 90 90]/C[1 0 0]/Border[0 0 4]>>]";
    ExpectDrawn(page, "a note over the picture");

    // What is drawn is where it belongs: a black square of an inch, an inch from the left and the bottom.
    PdfPage square{
        144, 216, {}, "72 72 72 72 re f", "/Width 1/Height 1/BitsPerComponent 8/ColorSpace/DeviceGray", "x"};
    samples::Canvas wanted(600, 900, 300);
    wanted.FillRect(300, 300, 300, 300);
    const Bitmap got(FreeImage_ConvertToGreyscale(PageFrom(square).Get()));
    ASSERT_EQ(got.Width(), 600);
    int different = 0;
    for (int y = 0; y < 900; ++y) {
        const std::span<const std::uint8_t> line = got.ScanLine(899 - y);
        for (int x = 0; x < 600; ++x)
            different += (line[static_cast<std::size_t>(x)] < 128) != (wanted.At(x, y) < 128) ? 1 : 0;
    }
    EXPECT_LE(different, 1200);  // an edge may fall on either of two pixels
}

TEST_F(PdfPagesTest, EncryptedAndDamagedFilesAreToldAndLeftAlone) {
    const std::string key(64, 'A');
    EXPECT_TRUE(Has(BringInPages({GreyPage(1)}, "/ID[<00><00>]/Encrypt<</Filter/Standard/V 1/R 2/P -4/O<" +
                                                    key + ">/U<" + key + ">>>")
                        .reason,
                    "encrypted"));

    PdfPage cut = GreyPage(2);
    cut.data.resize(cut.data.size() - 1000);
    EXPECT_EQ(BringInPages({GreyPage(1), cut}).reason, "Page 2 is damaged (the picture is not complete).");

    PdfPage fax = samples::ScannedPage(samples::ToBilevel(Page(1)));
    for (std::size_t k = fax.data.size() / 2; k < fax.data.size() / 2 + 40; ++k)
        fax.data[k] = static_cast<char>(fax.data[k] ^ 0x5A);
    EXPECT_TRUE(Has(BringInPages({fax}).reason, "Page 1 is damaged"));

    PdfPage unknown = GreyPage(1);
    unknown.contents = "/Im7 Do";
    EXPECT_TRUE(Has(BringInPages({unknown}).reason, "Page 1 is damaged"));

    PdfPage vast = GreyPage(1);
    vast.width = vast.height = 14'000;
    vast.contents = "10 10 50 50 re f";
    EXPECT_EQ(BringInPages({vast}).reason, "Page 1 is too large.");
    EXPECT_TRUE(In(folders_.ProcessIn).empty());
}

TEST_F(PdfPagesTest, EveryCutFileIsRefused) {
    const std::string whole = samples::PdfOf(std::vector{samples::ScannedPage(samples::ToBilevel(Page(1))),
                                                         samples::ScannedPage(samples::ToBilevel(Page(2)))});
    for (std::size_t length = 0; length + 8 < whole.size(); length += 211) {
        test::WriteText(From("cut.pdf"), whole.substr(0, length));
        EXPECT_NE(BringInFile("cut.pdf").reason, "") << length;
    }
    // An index that is off is mended, as it loses nothing.
    std::string shifted = whole;
    shifted.replace(shifted.rfind("startxref\n") + 10, 2, "77");
    test::WriteText(From("shifted.pdf"), shifted);
    EXPECT_EQ(BringInFile("shifted.pdf").images.size(), 2U);
    EXPECT_EQ(In(folders_.ProcessIn).size(), 2U);
}

}  // namespace
}  // namespace tavrene::intake
