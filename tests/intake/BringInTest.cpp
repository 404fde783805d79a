#include <filesystem>

#include "imaging/TiffPages.h"
#include "intake/IntakeWorld.h"
#include "intake/PageSource.h"
#include "support/Faults.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;
using test::Has;
using test::ReadText;
using test::WriteText;

class BringInTest : public test::IntakeWorld {
  protected:
    static std::string PdfOfPages(int pages) {
        std::vector<samples::PdfPage> made;
        for (int k = 1; k <= pages; ++k)
            made.push_back(samples::ScannedPage(samples::ToBilevel(Page(k))));
        return samples::PdfOf(made);
    }

    std::vector<std::string> Staged() const { return files_.List(folders_.Temp, ".*"); }

    void SaveTiff(const std::string& name, int pages) {
        std::vector<imaging::TiffPage> made;
        for (int k = 1; k <= pages; ++k)
            made.push_back({k % 2 == 0 ? samples::ToGrey(Shaded(k)) : samples::ToBilevel(Page(k)), {}});
        files_.Write(From(name), imaging::EncodeTiffPages(made), app::Keep::AsScratch);
    }

    void Save(const Bitmap& picture, FREE_IMAGE_FORMAT format, const std::string& name, int flags) const {
        ASSERT_TRUE(FreeImage_Save(format, picture.Get(), From(name).c_str(), flags)) << name;
    }
};

TEST_F(BringInTest, AFolderOfAllKindsComesInPageByPage) {
    std::filesystem::create_directory(From("inner"));
    WriteText(From("batch.pdf"), PdfOfPages(120));
    SaveTiff("fax.tiff", 30);
    samples::SaveImage(samples::ToGrey(Shaded(7)), imaging::ImageFormat::Png, From("inner/photo.png"));
    WriteText(From("notes.txt"), "no picture");
    WriteText(From("empty.pdf"), "");
    WriteText(From("cut.pdf"), PdfOfPages(3).substr(0, PdfOfPages(3).size() / 2));
    const std::string before = ReadText(From("batch.pdf"));

    std::vector<std::pair<int, int>> steps;
    const Report report = BringIn({{from_.Path()}}, [&steps](const Progress& progress) {
        steps.emplace_back(progress.pagesDone, progress.pages);
        return true;
    });

    ASSERT_EQ(report.files.size(), 6U);
    EXPECT_FALSE(report.isCancelled);
    EXPECT_EQ(report.files[0].images.size(), 120U);
    EXPECT_EQ(report.files[0].images.back(), "batch-p120.tif");
    EXPECT_EQ(report.files[1].reason, "The file is damaged.");
    EXPECT_TRUE(Has(report.files[2].reason, "no PDF and no picture"));
    EXPECT_EQ(report.files[3].images.size(), 30U);
    EXPECT_EQ(report.files[3].images[1], "fax-p002.png");
    EXPECT_TRUE(Has(report.files[4].reason, "no PDF and no picture"));
    EXPECT_EQ(report.files[5].images, std::vector<std::string>{"photo.png"});
    EXPECT_EQ(In(folders_.ProcessIn).size(), 151U);
    EXPECT_TRUE(Staged().empty());
    EXPECT_EQ(steps[119], std::pair(119, 120));
    EXPECT_EQ(ReadText(From("batch.pdf")), before);

    for (int k = 1; k <= 120; ++k) {
        const Bitmap page = Incoming(report.files[0].images[static_cast<std::size_t>(k - 1)]);
        ExpectSame(page, samples::ToBilevel(Page(k)), "page " + std::to_string(k) + " of the PDF");
        EXPECT_EQ(page.BitsPerPixel(), 1);
        EXPECT_EQ(DpiOf(page), 100);
    }
    for (int k = 1; k <= 30; ++k) {
        const Bitmap page = Incoming(report.files[3].images[static_cast<std::size_t>(k - 1)]);
        ExpectSame(page, k % 2 == 0 ? samples::ToGrey(Shaded(k)) : samples::ToBilevel(Page(k)),
                   "page " + std::to_string(k) + " of the TIFF");
        EXPECT_EQ(page.BitsPerPixel(), k % 2 == 0 ? 8 : 1);
        EXPECT_EQ(DpiOf(page), 100);
    }
    ExpectSame(Incoming("photo.png"), samples::ToGrey(Shaded(7)), "the picture in the inner folder");
}

TEST_F(BringInTest, PicturesOfOtherKindsAreReadByTheirContent) {
    const Bitmap grey = samples::ToGrey(Shaded(3));
    const Bitmap colour = samples::ToColour(Shaded(1), Page(2), Page(3));
    Save(Bitmap(FreeImage_ConvertTo24Bits(grey.Get())), FIF_WEBP, "a.webp", WEBP_LOSSLESS);
    Save(colour, FIF_JP2, "b.dat", 1);
    Save(samples::ToGrey(Page(4)), FIF_BMP, "c.bmp", 0);
    Save(colour, FIF_PNG, "d.tif", 0);
    const Report report = BringIn({{from_.Path()}});
    std::vector<std::string> names;
    for (const Outcome& file : report.files)
        names.push_back(file.images.empty() ? file.reason : file.images[0]);
    ASSERT_EQ(names, (std::vector<std::string>{"a.png", "b.png", "c.tif", "d.png"}));
    ExpectSame(Incoming("a.png"), grey, "WebP");
    ExpectSame(Incoming("b.png"), colour, "JPEG 2000");
    ExpectSame(Incoming("c.tif"), samples::ToGrey(Page(4)), "black and white in 8 bits");
    ExpectSame(Incoming("d.png"), colour, "PNG under a false name");
    EXPECT_EQ(Incoming("a.png").BitsPerPixel(), 8);
    EXPECT_EQ(Incoming("c.tif").BitsPerPixel(), 1);
}

TEST_F(BringInTest, NoNameOfTheProcessingFoldersIsGivenAgain) {
    SaveTiff("Scan.tif", 2);
    samples::SaveImage(samples::ToBilevel(Page(1)), imaging::ImageFormat::Tiff, From("single.tif"));
    WriteText(folders_.ProcessIn + "scan-P002.TIF", "waiting");
    WriteText(folders_.ProcessFinal + "scan-2-p001.xml", "accepted");
    WriteText(folders_.ProcessOut + "single.png", "processed");
    const Report report = BringIn({{From("Scan.tif")}, {From("single.tif")}, {From("single.tif")}});
    EXPECT_EQ(report.files[0].images, (std::vector<std::string>{"Scan-3-p001.tif", "Scan-3-p002.png"}));
    EXPECT_EQ(report.files[1].images, std::vector<std::string>{"single-2.tif"});
    EXPECT_EQ(report.files[2].images, std::vector<std::string>{"single-3.tif"});
    EXPECT_EQ(ReadText(folders_.ProcessIn + "scan-P002.TIF"), "waiting");

    const std::string longName = std::string(245, 'x') + ".tif";
    std::filesystem::copy_file(From("single.tif"), From(longName));
    std::filesystem::copy_file(From("single.tif"), From(".hidden.tif"));
    EXPECT_EQ(BringInFile(longName).images, std::vector{std::string(200, 'x') + ".tif"});
    EXPECT_EQ(BringInFile(".hidden.tif").images, std::vector<std::string>{"hidden.tif"});
}

TEST_F(BringInTest, WhatIsCancelledOrFailsLeavesNothing) {
    WriteText(From("a.pdf"), PdfOfPages(2));
    SaveTiff("b.tif", 4);
    const Report cancelled =
        BringIn({{from_.Path()}}, [](const Progress& p) { return p.filesDone < 1 || p.pagesDone < 2; });
    EXPECT_TRUE(cancelled.isCancelled);
    ASSERT_EQ(cancelled.files.size(), 1U);
    EXPECT_EQ(In(folders_.ProcessIn), cancelled.files[0].images);
    EXPECT_TRUE(Staged().empty());

    for (const char* operation : {"write", "move"}) {
        int calls = 0;
        files_.refuse = [&](const std::string& asked, const std::string& path) {
            return asked == operation && Has(path, folders_.Temp) && ++calls == 3;
        };
        const Outcome failed = BringInFile("b.tif");
        EXPECT_TRUE(Has(failed.reason, std::string("Cannot ") + operation)) << failed.reason;
        EXPECT_EQ(In(folders_.ProcessIn).size(), 2U);
        EXPECT_TRUE(Staged().empty());
    }
    files_.refuse = nullptr;
    EXPECT_TRUE(Has(BringInFile("none.pdf").reason, "Cannot read"));
}

TEST_F(BringInTest, TwoWindowsAtOnceKeepTheirPagesApart) {
    SaveTiff("a.tif", 2);
    WriteText(From("b.pdf"), PdfOfPages(4));
    Report inner;
    const Report outer = BringIn({{From("b.pdf")}}, [&](const Progress& progress) {
        if (progress.pagesDone == 2)
            inner = BringIn({{From("a.tif")}});
        return true;
    });
    EXPECT_EQ(inner.files.at(0).images.size(), 2U);
    ASSERT_EQ(outer.files.at(0).images.size(), 4U);
    for (int k = 1; k <= 4; ++k)
        ExpectSame(Incoming("b-p00" + std::to_string(k) + ".tif"), samples::ToBilevel(Page(k)),
                   "a page of b");
    EXPECT_TRUE(Staged().empty());
}

TEST_F(BringInTest, ADamagedPageKeepsTheWholeFileOut) {
    SaveTiff("cut.tif", 5);
    const std::string whole = ReadText(From("cut.tif"));
    Save(samples::ToColour(Page(1), Page(2), Page(3)), FIF_JPEG, "photo.jpg", 0);
    Save(samples::ToGrey(Page(1)), FIF_JP2, "photo.jp2", 1);
    Save(samples::ToColour(Page(1), Page(2), Page(3)), FIF_WEBP, "photo.webp", 0);
    WriteText(From("cut.tif"), whole.substr(0, whole.size() * 3 / 5));
    for (const std::string name : {"photo.jpg", "photo.jp2", "photo.webp"})
        WriteText(From(name), ReadText(From(name)).substr(0, ReadText(From(name)).size() * 3 / 5));
    for (const std::string name : {"cut.tif", "photo.jpg", "photo.jp2", "photo.webp"}) {
        const Outcome outcome = BringInFile(name);
        EXPECT_TRUE(Has(outcome.reason, "damaged")) << name << ": " << outcome.reason;
    }
    EXPECT_TRUE(In(folders_.ProcessIn).empty());
}

TEST_F(BringInTest, TheRestOfAFileThatWasProcessedByItsFirstPage) {
    SaveTiff("form.tif", 3);
    files_.Move(From("form.tif"), folders_.ProcessOut + "form.tif");
    EXPECT_EQ(CountPages(files_.Read(folders_.ProcessOut + "form.tif")), 3);
    const Report report = BringIn({{folders_.ProcessOut + "form.tif", 2}});
    EXPECT_EQ(report.files.at(0).images, (std::vector<std::string>{"form-p002.png", "form-p003.tif"}));
    ExpectSame(Incoming("form-p003.tif"), samples::ToBilevel(Page(3)), "the third page");

    WriteText(From("a.pdf"), PdfOfPages(4));
    EXPECT_EQ(CountPages(files_.Read(From("a.pdf"))), 4);
    EXPECT_EQ(CountPages(files_.Read(folders_.ProcessIn + "form-p002.png")), 1);
    EXPECT_EQ(CountPages({}), 0);

    const Report waiting =
        BringIn({{folders_.ProcessIn}, {folders_.ProcessIn + "form-p003.tif"}, {work_.Path()}});
    ASSERT_EQ(waiting.files.size(), 4U);
    for (const std::size_t k : {0U, 1U, 2U})
        EXPECT_TRUE(Has(waiting.files[k].reason, "waiting")) << waiting.files[k].path;
}

}  // namespace
}  // namespace tavrene::intake
