#include <QAction>
#include <QPlainTextEdit>
#include <QProgressDialog>

#include "imaging/TiffPages.h"
#include "painter/ImageFiles.h"
#include "painter/PdfFile.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::Find;
using Names = std::vector<std::string>;

// Files of many pages in the real window.
class BringInWindowTest : public test::DeskWindow {
  protected:
    BringInWindowTest() { AddProfile("Form", form_); }

    imaging::Bitmap Scan(int number) const { return samples::ToBilevel(form_.Paint({.checked = {number}})); }

    void SaveTiff(const std::string& path, int pages) {
        std::vector<imaging::TiffPage> made;
        for (int k = 1; k <= pages; ++k)
            made.push_back({Scan(k), {}});
        files_.Write(path, imaging::EncodeTiffPages(made), app::Keep::AsScratch);
    }

    void SavePdf(const std::string& path, int pages) {
        std::vector<samples::PdfPage> made;
        for (int k = 1; k <= pages; ++k)
            made.push_back(samples::ScannedPage(Scan(1 + k % 6)));
        test::WriteText(path, samples::PdfOf(made));
    }

    const test::TestForm form_ = test::TestForm::Grid(2, 3);
    test::TempFolder outside_;
};

TEST_F(BringInWindowTest, PagesOfDroppedFilesComeInAndRubbishIsTold) {
    files_.CreateFolder(outside_.File("mail"));
    SavePdf(outside_.File("mail/letters.pdf"), 3);
    SaveTiff(outside_.File("mail/fax.TIFF"), 2);
    test::WriteText(outside_.File("mail/cut.pdf"), "%PDF-1.4 and no more");
    test::WriteText(outside_.File("mail/notes.txt"), "x");
    form_.SaveScan(outside_.File("mail/one.tif"), {});
    const samples::Canvas page = form_.Paint({});
    samples::SaveImage(samples::ToColour(page, page, page), imaging::ImageFormat::Webp,
                       outside_.File("mail/phone.webp"));
    test::WriteText(folders_.ProcessOut + "letters-p001.xml", "of another form");
    Open();
    Drop({outside_.File("mail")});
    EXPECT_EQ(In(folders_.ProcessIn),
              (Names{"fax-p001.tif", "fax-p002.tif", "letters-2-p001.tif", "letters-2-p002.tif",
                     "letters-2-p003.tif", "one.tif", "phone.png"}));
    EXPECT_EQ(Panel("Message"),
              "1 scan was copied to ProcessIn. 1 other file was left out: no image. "
              "6 pages of 3 files were brought in to ProcessIn.");
    EXPECT_EQ(FromQt(Find<QPlainTextEdit>(*window_, "Lines").toPlainText()).substr(0, 9), "cut.pdf: ");
    Click("Process");
    EXPECT_EQ(files_.List(folders_.ProcessOut, "*.xml").size(), 8U);
}

TEST_F(BringInWindowTest, CancellingLeavesNothingOfTheFileAtHand) {
    SavePdf(outside_.File("many.pdf"), 1000);  // more than come in before the box shows
    Open();
    test::WhileRunning cancel([] {
        if (auto* const box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
            box->cancel();
    });
    Drop({outside_.File("many.pdf")});
    EXPECT_EQ(In(folders_.ProcessIn), Names());
    EXPECT_TRUE(test::Has(Panel("Message"), "The rest was cancelled."));
}

TEST_F(BringInWindowTest, TheSummaryTellsOfPagesNotLookedAtAndBringsThemIn) {
    SaveTiff(folders_.ProcessIn + "fax.tif", 4);
    SaveTiff(folders_.ProcessIn + "one.tif", 1);
    Open();
    Click("Process");
    auto& summary = Find<QLabel>(*window_, "lblSummary");
    EXPECT_TRUE(test::Has(FromQt(summary.text()), "3 further pages were not looked at"));
    // What did not come in is offered again.
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "write" && test::Has(path, folders_.Temp);
    };
    Q_EMIT summary.linkActivated("split");
    files_.refuse = nullptr;
    EXPECT_TRUE(test::Has(FromQt(summary.text()), "3 further pages were not looked at"));
    Q_EMIT summary.linkActivated("split");
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"fax-p002.tif", "fax-p003.tif", "fax-p004.tif"}));
    EXPECT_FALSE(test::Has(FromQt(summary.text()), "further"));
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "fax.xml"));
}

}  // namespace
}  // namespace tavrene::ui
