#include <QAction>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>

#include "painter/ImageFiles.h"
#include "ui/DeskWindow.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {
namespace {

using test::Find;
using test::TestForm;

// The commands about precise alignment in the real window.
class PreciseWindow : public test::DeskWindow {
  protected:
    PreciseWindow() { AddSpecimenProfile("Form", form_); }

    void Choose(const char* key) {
        Find<QAction>(*window_, key).trigger();
        QApplication::processEvents();
    }
    bool IsOn(const char* key) { return Find<QAction>(*window_, key).isChecked(); }

    /// The label or button that the person sees with this text; null without one.
    template <typename Widget>
    Widget* Seen(const QString& text) {
        for (Widget* const widget : window_->findChildren<Widget*>())
            if (widget->isVisible() && widget->text().remove('&').contains(text))
                return widget;
        return nullptr;
    }

    int Lines() { return Find<QTreeView>(*window_, "lvwReview").model()->rowCount(); }
    void OpenForm(int line) { ClickOn(Find<QTreeView>(*window_, "lvwReview"), line); }

    TestForm form_ = TestForm::Grid(4, 3);
};

TEST_F(PreciseWindow, FormsThatOnlyPreciseAlignmentReadsAreOfferedAndReadAgain) {
    form_.SaveScan(folders_.ProcessIn + "far.tif", {.checked = {2}, .dx = 40, .dy = -30});
    form_.SaveScan(folders_.ProcessIn + "near.tif", {.checked = {1}});
    Open();
    EXPECT_FALSE(IsOn("PreciseAlignment"));
    EXPECT_TRUE(IsOn("SecondOpinion"));
    EXPECT_FALSE(Find<QAction>(*window_, "ReadAgain").isEnabled());
    Click("Process");
    EXPECT_NE(Seen<QLabel>("1 form looks turned or stretched: Precise Alignment reads it."), nullptr);
    auto* const again = Seen<QPushButton>("Read These Again");
    ASSERT_NE(again, nullptr);
    again->click();
    EXPECT_NE(Seen<QLabel>("1 form was read by Precise Alignment and can be reviewed."), nullptr);
    EXPECT_EQ(Seen<QPushButton>("Read These Again"), nullptr);
    Click("Review");
    EXPECT_EQ(Lines(), 2);
    EXPECT_FALSE(Find<QAction>(*window_, "ReadAgain").isEnabled());
}

TEST_F(PreciseWindow, FormsReadOtherwiseAreReadAgainTooAndTheSummaryFollows) {
    form_.SaveScan(folders_.ProcessIn + "far.tif", {.checked = {2}, .dx = 40, .dy = -30});
    // 26 pixels: 5 % of the whole box and 9 % of its inner part.
    samples::Canvas page = form_.Paint({});
    page.FillRect(form_.boxes[2].L + 8, form_.boxes[2].T + 10, 13, 2);
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff,
                       folders_.ProcessIn + "faint.tif");
    Open();
    Click("Process");
    const auto summary = [this] { return FromQt(Find<QLabel>(*window_, "lblSummary").text()); };
    EXPECT_TRUE(test::Has(summary(), ">1 read<") && test::Has(summary(), ">1 not recognised<")) << summary();
    Click("Review");
    OpenForm(0);
    EXPECT_EQ(Rows().topLevelItem(2)->text(1), "0");
    Rows().setCurrentItem(Rows().topLevelItem(0));
    Choose("FlipBox");
    test::DialogScript dialogs;
    dialogs.Press(QMessageBox::Cancel);
    Choose("ReadAgain");
    EXPECT_FALSE(files_.FileExists(folders_.ProcessOut + "far.xml"));
    dialogs.Press(QMessageBox::No);
    Choose("ReadAgain");
    EXPECT_EQ(Notices(), "2 forms were read by Precise Alignment and can be reviewed.");
    EXPECT_TRUE(test::Has(summary(), ">2 read<") && test::Has(summary(), "0 not recognised")) << summary();
    EXPECT_EQ(Lines(), 2);
    OpenForm(0);
    EXPECT_EQ(Rows().topLevelItem(2)->text(1), "1");
}

TEST_F(PreciseWindow, ReadingAgainStopsAtEscapeAndKeepsWhatIsLeft) {
    for (const char* const name : {"a.tif", "b.tif", "c.tif"})
        form_.SaveScan(folders_.ProcessIn + name, {.dx = 40, .dy = -30});
    Open();
    Click("Process");
    const auto hasResult = [this](const char* name) {
        return files_.FileExists(folders_.ProcessOut + name + ".xml");
    };
    auto& bar = Find<QProgressBar>(*window_, "ProgressBar1");
    {
        const test::WhileRunning presses([&] {
            if (Panel("Message").find("Esc stops") == std::string::npos || bar.value() == 0)
                return;
            EXPECT_EQ(bar.maximum(), 3);
            EXPECT_NE(QApplication::overrideCursor(), nullptr);
            QTest::keyClick(window_.get(), Qt::Key_F6);
            QTest::keyClick(window_.get(), Qt::Key_Escape);
        });
        Choose("ReadAgain");
    }
    EXPECT_EQ(Notices(), "1 form was read by Precise Alignment and can be reviewed. 2 forms are left.");
    EXPECT_TRUE(hasResult("a"));
    EXPECT_FALSE(hasResult("b") || hasResult("c"));
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "write" && path.find("b.xml") != std::string::npos;
    };
    Choose("ReadAgain");
    EXPECT_EQ(Notices(), "1 form was read by Precise Alignment and can be reviewed. 1 form is left.");
    EXPECT_TRUE(hasResult("c"));
    files_.refuse = {};
    auto* const again = Seen<QPushButton>("Read These Again");
    ASSERT_NE(again, nullptr);
    again->click();
    EXPECT_TRUE(hasResult("b"));
    EXPECT_FALSE(Find<QAction>(*window_, "ReadAgain").isEnabled());
}

TEST_F(PreciseWindow, BothTogglesActAtOnceAndAreKept) {
    form_.SaveScan(folders_.ProcessIn + "far.tif", {.dx = 40, .dy = -30});
    Open();
    Choose("SecondOpinion");
    Click("Process");
    EXPECT_EQ(Seen<QLabel>("Precise Alignment"), nullptr);
    Choose("PreciseAlignment");
    files_.Move(folders_.ProcessOut + "far.tif", folders_.ProcessIn + "far.tif");
    Click("Process");
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "far.xml"));
    window_.reset();
    Open();
    EXPECT_TRUE(IsOn("PreciseAlignment"));
    EXPECT_FALSE(IsOn("SecondOpinion"));
}

TEST_F(PreciseWindow, AnUpsideDownPageIsSeenAndClickedTheRightWayUp) {
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {2}, .upsideDown = true});
    form_.SaveScan(folders_.ProcessIn + "b.tif", {.checked = {2}});
    Open();
    Choose("PreciseAlignment");
    Click("Process");
    Click("Review");
    // Of the second box, whose mark is the only ink that is so broad.
    const auto onPage = [this] { return dynamic_cast<ImageView&>(View()).Boxes().PlaceOf(2).center(); };
    const auto onScreen = [&] { return View().viewportTransform().map(onPage()); };
    for (const char* const zoom : {"ZoomToOrig", "ZoomIn", "FitPage"}) {
        Click(zoom);
        OpenForm(1);
        const QPointF upright = onScreen();
        OpenForm(0);
        EXPECT_LE((onScreen() - upright).manhattanLength(), 4) << zoom;
        const QImage seen = View().viewport()->grab().toImage();
        EXPECT_LT(qGray(seen.pixel(onScreen().toPoint())), 100) << zoom;
    }
    ClickPage(onPage());
    EXPECT_EQ(Rows().topLevelItem(1)->text(1), "0");
}

}  // namespace
}  // namespace tavrene::ui
