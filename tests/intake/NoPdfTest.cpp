#include "imaging/TiffPages.h"
#include "intake/IntakeWorld.h"

namespace tavrene::intake {
namespace {

using NoPdfTest = test::IntakeWorld;

// The program that is built without Poppler.
TEST_F(NoPdfTest, APdfIsToldAndLeftAloneAndPagesOfATiffComeIn) {
    std::vector<samples::PdfPage> letters;
    letters.push_back(samples::ScannedPage(samples::ToBilevel(Page(1))));
    test::WriteText(From("letters.pdf"), samples::PdfOf(letters));
    std::vector<imaging::TiffPage> pages;
    for (int k = 1; k <= 3; ++k)
        pages.push_back({samples::ToBilevel(Page(k)), {}});
    files_.Write(From("fax.tif"), imaging::EncodeTiffPages(pages), app::Keep::AsScratch);
    const Report report = BringIn({{from_.Path()}});
    ASSERT_EQ(report.files.size(), 2U);
    EXPECT_EQ(report.files[0].images.size(), 3U);
    EXPECT_EQ(report.files[1].reason, "This program was built without the library that reads PDFs.");
    EXPECT_EQ(In(folders_.ProcessIn).size(), 3U);
    EXPECT_EQ(In(from_.Path() + "/").size(), 2U);
}

}  // namespace
}  // namespace tavrene::intake
