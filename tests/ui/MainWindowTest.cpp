#include <QDesktopServices>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>

#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::Button;
using test::DialogScript;
using test::Find;
using Names = std::vector<std::string>;

class MainWindowTest : public test::DeskWindow {
  protected:
    MainWindowTest() { AddProfile("Form", form_); }

    void AddScans(int count) {
        for (int i = 1; i <= count; ++i)
            form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(i) + ".tif", {.checked = {2}});
    }
    int Progress() { return Find<QProgressBar>(*window_, "ProgressBar1").value(); }
    Names SummaryLines() {
        auto& list = Find<QTreeWidget>(*window_, "SummaryFiles");
        Names lines;
        for (int row = 0; list.isVisible() && row < list.topLevelItemCount(); ++row)
            lines.push_back(FromQt(list.topLevelItem(row)->text(0) + "|" + list.topLevelItem(row)->text(1)));
        return lines;
    }
    double Zoom() { return View().Zoom() / 100; }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

Names ButtonsOf(const QToolBar& toolbar) {
    Names buttons;
    for (const QAction* action : toolbar.actions()) {
        if (action->isSeparator()) {
            buttons.emplace_back("-");
            continue;
        }
        const char* const state = !action->isVisible() ? "hidden" : action->isEnabled() ? "on" : "off";
        buttons.push_back(FromQt(action->objectName() + "|" + action->toolTip() + "|" + state));
        EXPECT_FALSE(action->icon().pixmap(24).toImage().isNull()) << buttons.back();
    }
    return buttons;
}

TEST_F(MainWindowTest, HasTheListedButtonsAndAMenuForEachOfThem) {
    Open();
    auto& main = Find<QToolBar>(*window_, "MainToolbar");
    EXPECT_EQ(
        ButtonsOf(main),
        (Names{"New|Create New Profile|on", "Save|Save Current Profile|on",
               "Delete|Delete Current Profile|on", "-", "ZoomToOrig|Zoom To Original|on", "ZoomIn|Zoom In|on",
               "ZoomOut|Zoom Out|on", "FitPage|Fit Page|on", "FitWidth|Fit Width|on", "-",
               "Process|Start OMR recognition process of images from configured directory|on",
               "Stop|Stop Process|on", "-", "Review|Review Processed Forms|on", "Okay|Reviewed OK|hidden",
               "AcceptForm|Accept Form (Move to Final Folder)|hidden",
               "RejectForm|Reject Form (Move to Reject Folder)|hidden"}));
    auto& cfg = Find<QToolBar>(*window_, "CfgToolbar");
    EXPECT_EQ(ButtonsOf(cfg), (Names{"Select|Select/Move/Modify OMR CheckBox|off",
                                     "Add|Create New OMR CheckBox|off", "Delete|Delete OMR CheckBox|off"}));
    QList<QAction*> reached;
    for (const QAction* menu : window_->menuBar()->actions())
        reached += menu->menu()->actions();
    for (QAction* action : main.actions() + cfg.actions())
        EXPECT_TRUE(action->isSeparator() || reached.contains(action)) << FromQt(action->objectName());
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:1");
    EXPECT_EQ(Panel("Message"), "Ready");
}

TEST_F(MainWindowTest, ARunShowsPageAndListAndTheZoomCommandsWorkOnIt) {
    AddScans(1);
    Open();
    Click("ZoomIn");
    EXPECT_EQ(Zoom(), 1) << "there is no page to zoom";
    Click("Process");
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"scan1.tif", "scan1.xml"}));
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q2", "Q3", "Q4"}));
    EXPECT_EQ(Rows().headerItem()->text(1), "Val");
    EXPECT_EQ(View().sceneRect(), QRectF(0, 0, form_.width, form_.height));
    Click("FitPage");
    QApplication::processEvents();
    EXPECT_FALSE(View().verticalScrollBar()->isVisible() || View().horizontalScrollBar()->isVisible());
    EXPECT_NEAR(std::max(form_.width * Zoom() / View().viewport()->width(),
                         form_.height * Zoom() / View().viewport()->height()),
                1, 0.001);
    Click("ZoomToOrig");
    EXPECT_EQ(Zoom(), 1);
}

TEST_F(MainWindowTest, StopDuringTheThirdOfFiveFinishesTheThird) {
    AddScans(5);
    Open();
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    {
        test::WhileRunning stop([this] {
            if (Progress() == 1)
                Click("Process");  // ignored: one run goes on already
            if (Progress() == 3)
                Click("Stop");
        });
        Click("Process");
    }
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"scan4.tif", "scan5.tif"}));
    EXPECT_EQ(dialogs.titles, Names{"Stop Tavrene Process"});
    EXPECT_EQ(dialogs.shown, Names{"Process interrupted by user"});
    EXPECT_EQ(Panel("Message"), "Processing interrupted by user");
    EXPECT_EQ(Panel("ElapsedTime"), "3 Files, 0 Sec.");
    const Names log = ProcessLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "Processing started"), 1);
    EXPECT_EQ(Names(log.end() - 3, log.end()),
              (Names{"scan3.tif: Processing complete", "Processing interrupted by user",
                     "Processed 3 Files, 0 Sec."}));
    Click("Process");  // a stop belongs to the run that it stopped
    EXPECT_EQ(In(folders_.ProcessIn), Names());
}

TEST_F(MainWindowTest, AClickOnProcessDuringARunStartsNoOther) {
    settings_.ProcessSingle = true;
    AddScans(3);
    Open();
    const auto clickTwice = [this] {
        auto& process = Button(*window_, "MainToolbar", "Process");
        QMetaObject::invokeMethod(&process, "click", Qt::QueuedConnection);
        process.click();
        QApplication::processEvents();
        return In(folders_.ProcessIn).size();
    };
    EXPECT_EQ(clickTwice(), 2U);
    EXPECT_EQ(clickTwice() + clickTwice(), 1U);
    clickTwice();  // over an empty folder
    const Names log = ProcessLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "Processing started"), 4);
}

TEST_F(MainWindowTest, RepaintsPageAndPanelsForEveryFile) {
    AddScans(4);
    Open();
    const test::PaintWatch page(*View().viewport());
    const test::PaintWatch file(Find<QLabel>(*window_, "File"));
    Click("Process");
    EXPECT_GE(page.count, 4);
    for (const char* name : {"scan1.tif", "scan2.tif", "scan3.tif", "scan4.tif"})
        EXPECT_TRUE(file.shown.contains(name)) << name;
}

TEST_F(MainWindowTest, EscapeStopsARunAndClosesTheIdleWindowWhichRemembersItsShape) {
    AddScans(5);
    Open().resize(1111, 777);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    bool openAfterEscape = false;
    test::WhileRunning escape([&] {
        if (Progress() != 2)
            return;
        Press(View(), Qt::Key_Escape);
        openAfterEscape = window_->isVisible();
    });
    Click("Process");
    EXPECT_TRUE(openAfterEscape);
    EXPECT_EQ(In(folders_.ProcessIn).size(), 3U);
    EXPECT_FALSE(window_->isVisible()) << "at the end of the run";
    Open();
    EXPECT_EQ(window_->size(), QSize(1111, 777));
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MainWindowTest, AZoomThatFitsGoesOnFittingUntilAnotherOneIsChosen) {
    AddScans(1);
    AddSpecimenProfile("Seen", form_);
    const auto fits = [this] {
        QApplication::processEvents();
        const QSize room = View().maximumViewportSize();
        EXPECT_NEAR(Zoom(), std::min(room.width() / 600.0, room.height() / 500.0), 0.001);
        EXPECT_NE(Zoom(), 1);
    };
    Open();
    ClickThumbnail(2);
    Click("FitPage");
    window_->resize(900, 500);
    fits();
    Click("Process");
    fits();
    Find<QTreeWidget>(*window_, "SummaryFiles").header()->resizeSection(0, 123);
    Find<QWidget>(*window_, "CandidatePane").show();
    Find<QSplitter>(*window_, "Splitter2").setSizes({100, 300});
    window_->close();
    EXPECT_EQ(app::ReadWindow(store_, "lvwSettings"), "")
        << "the columns of the box list are set by the mode";
    Open();
    EXPECT_EQ(Find<QTreeWidget>(*window_, "SummaryFiles").header()->sectionSize(0), 123);
    Find<QWidget>(*window_, "CandidatePane").show();
    QApplication::processEvents();
    EXPECT_GT(Find<QWidget>(*window_, "CandidatePane").height(), 2 * Rows().height()) << "as it was dragged";
    ClickThumbnail(2);
    fits();
    Click("ZoomToOrig");
    window_->resize(800, 600);
    QApplication::processEvents();
    EXPECT_EQ(Zoom(), 1);
}

TEST_F(MainWindowTest, TheMenuOfALineActsOnThatLine) {
    AddSpecimenProfile("Seen", form_);
    Open();
    const auto rightClick = [](QAbstractItemView& list, int row) {
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mousePress(list.viewport(), Qt::RightButton, Qt::NoModifier, place);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &asked);
    };
    rightClick(Strip(), 1);
    EXPECT_EQ(SelectedThumbnail(), 2);
    Find<QMenu>(Strip(), "ContextMenu").close();
    rightClick(Rows(), 1);
    auto& menu = Find<QMenu>(Rows(), "ContextMenu");
    EXPECT_EQ(menu.actions().size(), 4) << "nothing of review, and no group of one box";
    menu.actions().back()->trigger();
    menu.close();
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q3", "Q4"}));
    rightClick(Strip(), 1);
    EXPECT_EQ(Find<QMenu>(Strip(), "ContextMenu").actions().size(), 6) << "and nothing is asked";
    EXPECT_EQ(RowTexts().size(), 3U) << "it is open already";
}

TEST_F(MainWindowTest, LabelsUnderTheButtonsStayChosenAndFitANarrowWindow) {
    Open();
    auto& toggle = Find<QAction>(*window_, "ToolbarLabels");
    EXPECT_FALSE(toggle.isChecked());
    toggle.trigger();
    EXPECT_TRUE(toggle.isChecked());
    Open().resize(1024, 700);
    QApplication::processEvents();
    EXPECT_TRUE(Find<QAction>(*window_, "ToolbarLabels").isChecked());
    for (const char* key : {"New", "ZoomToOrig", "Review"})
        EXPECT_GT(Button(*window_, "MainToolbar", key).height(), 40) << key;
    Click("Review");  // which has the most buttons
    QApplication::processEvents();
    EXPECT_TRUE(Button(*window_, "CfgToolbar", "Delete").isVisible());
    for (const auto& [width, isLabelled] : {std::pair(700, false), {1024, true}}) {
        window_->resize(width, 700);
        QApplication::processEvents();
        EXPECT_EQ(Button(*window_, "MainToolbar", "New").height() > 40, isLabelled) << width;
        EXPECT_TRUE(Button(*window_, "CfgToolbar", "Delete").isVisible()) << "no button has to give way";
    }
    Find<QAction>(*window_, "ToolbarLabels").trigger();
    QApplication::processEvents();
    EXPECT_LT(Button(*window_, "MainToolbar", "New").height(), 40);
}

TEST_F(MainWindowTest, OpensTheFolderInUseAndTheNewestLogOnTheDesktop) {
    Open();
    QTextBrowser desktop;  // takes what is to be opened
    QDesktopServices::setUrlHandler("file", &desktop, "setSource");
    const auto opened = [&](const char* key) {
        desktop.setSource(QUrl());
        Find<QAction>(*window_, key).trigger();
        return FromQt(desktop.source().toLocalFile());
    };
    EXPECT_EQ(opened("OpenWorkingFolder") + "/ProcessIn/", folders_.ProcessIn);
    for (const std::string& name : In(folders_.Log))
        files_.Delete(folders_.Log + name);
    EXPECT_EQ(opened("OpenLog"), folders_.Log);
    for (const std::string newest : {"Profile-20990101", "Process-20231231", "Process-20240229"}) {
        test::WriteText(folders_.Log + "TavreneBoxes-" + newest + ".Log", "");
        EXPECT_EQ(opened("OpenLog"), folders_.Log + "TavreneBoxes-" + newest + ".Log");
    }
    QDesktopServices::unsetUrlHandler("file");
}

TEST_F(MainWindowTest, MessagesAboutFilesStandInOneBoxOnThePageUntilTheSummaryListsThem) {
    for (const char* name : {"a.tif", "b & <c>.tif", "d.png"})
        test::WriteText(folders_.ProcessIn + name, "no image");
    Open();
    auto& box = Find<QDialog>(*window_, "FileReports");
    auto& lines = Find<QPlainTextEdit>(box, "Lines");
    QString told;
    {
        test::WhileRunning look([&] {
            if (Progress() == 0)
                return;
            EXPECT_TRUE(box.isVisible() && !box.isModal());
            EXPECT_TRUE(QRect(View().mapToGlobal(QPoint()), View().size()).contains(box.geometry()));
            EXPECT_EQ(Panel("Progress"), std::to_string(Progress()) + " of 3");
            told = lines.toPlainText();
            if (Progress() == 2)
                box.close();
        });
        Click("Process");
    }
    EXPECT_EQ(told, "d.png: Image not in bitmap format") << "the closed box opens anew";
    EXPECT_EQ(In(folders_.ProcessIn), Names());
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(Panel("Message"), "Processing complete");
    EXPECT_EQ(Panel("Progress"), "");
    EXPECT_EQ(SummaryLines(),
              (Names{"a.tif|Image not in bitmap format", "b & <c>.tif|Image not in bitmap format",
                     "d.png|Image not in bitmap format"}));
}

TEST_F(MainWindowTest, TheSummaryOfARunLeadsToEachOfItsFiles) {
    AddScans(2);
    test::TestForm::Grid(3, 1, 30).SaveScan(folders_.ProcessIn + "strange.tif", {});
    form_.SaveScan(folders_.ProcessIn + "stuck.tif", {});
    test::WriteText(folders_.ProcessIn + "torn.png", "no image");
    files_.CreateFolder(folders_.ProcessOut + "stuck.tif");
    Open();
    Click("Process");
    auto& text = Find<QLabel>(*window_, "lblSummary");
    auto& list = Find<QTreeWidget>(*window_, "SummaryFiles");
    EXPECT_TRUE(text.text().contains("5 files")) << FromQt(text.text());
    EXPECT_TRUE(SummaryLines().at(0).ends_with("is a folder")) << "what was not written comes first";
    const auto behind = [&](recognition::FileEnd end) {
        Q_EMIT text.linkActivated(QString::number(static_cast<int>(end)));
        return SummaryLines();
    };
    EXPECT_EQ(behind(recognition::FileEnd::Read),
              (Names{"scan1.tif|classified as [Form] with confidence [100.00]",
                     "scan2.tif|classified as [Form] with confidence [100.00]"}));
    ClickOn(list, 1);
    EXPECT_EQ(FromQt(window_->windowTitle()), "scan2[*] - Tavrene CheckBoxes") << "open in review";
    EXPECT_EQ(behind(recognition::FileEnd::Refused), Names{"torn.png|Image not in bitmap format"});
    EXPECT_EQ(behind(recognition::FileEnd::NotRecognised), Names{"strange.tif|unclassified"});
    ClickOn(list, 0);
    EXPECT_EQ(Notices(), "strange.tif: unclassified");
    EXPECT_TRUE(RowTexts().empty()) << "the boxes of the last form are not its boxes";
    EXPECT_GT(View().sceneRect().width(), 100);
    Press(list, Qt::Key_Escape);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(list.isVisible());
    Find<QAction>(*window_, "RunSummary").trigger();
    EXPECT_TRUE(list.isVisible());
}

}  // namespace
}  // namespace tavrene::ui
