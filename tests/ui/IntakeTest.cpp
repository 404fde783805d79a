#include <QClipboard>
#include <QFileDialog>
#include <QTabWidget>

#include "ui/DeskWindow.h"
#include "ui/page/PageImage.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using Names = std::vector<std::string>;

class IntakeTest : public test::DeskWindow {
  protected:
    IntakeTest() { AddProfile("Form", form_); }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
    test::TempFolder outside_;
};

TEST_F(IntakeTest, ScansAndFoldersAreDroppedOrPastedIntoProcessIn) {
    files_.CreateFolder(outside_.File("batch"));
    files_.CreateFolder(outside_.File("batch/more"));
    form_.SaveScan(outside_.File("one.tif"), {});
    form_.SaveScan(outside_.File("batch/two.tif"), {});
    test::WriteText(outside_.File("batch/more/three.JPEG"), "three");
    test::WriteText(outside_.File("batch/more/readme.txt"), "x");
    Open();
    EXPECT_FALSE(View().acceptDrops() || View().viewport()->acceptDrops()) << "the window is to get it";
    EXPECT_FALSE(Drop({}));
    EXPECT_TRUE(Drop({outside_.File("one.tif"), outside_.File("batch")}));
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"one.tif", "three.jpg", "two.tif"}));
    EXPECT_EQ(test::ReadText(folders_.ProcessIn + "one.tif"), test::ReadText(outside_.File("one.tif")));
    EXPECT_EQ(Panel("Message"), "3 scans were copied to ProcessIn. 1 other file was left out: no image.");
    EXPECT_TRUE(files_.FileExists(outside_.File("one.tif")));

    // The name waits in ProcessIn, and another one belongs to a form that was read.
    test::WriteText(outside_.File("three.jpg"), "another three");
    auto* const clipboard = new QMimeData;
    Fill(*clipboard, {outside_.File("one.tif"), outside_.File("three.jpg"), outside_.File("batch/two.tif")});
    QGuiApplication::clipboard()->setMimeData(clipboard);
    Click("Process");
    test::WriteText(folders_.ProcessIn + "three.jpg", "three");
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Cancel).Press(QMessageBox::No).Press(QMessageBox::Yes);
    const auto paste = [&] {
        Find<QAction>(*window_, "PasteScans").trigger();
        return In(folders_.ProcessIn);
    };
    EXPECT_EQ(paste(), Names{"three.jpg"});
    EXPECT_TRUE(dialogs.shown.at(0).starts_with("1 of 3 scans have names")) << dialogs.shown.at(0);
    EXPECT_EQ(paste(), (Names{"one-2.tif", "three-2.jpg", "three.jpg", "two-2.tif"}));
    EXPECT_EQ(Panel("Message"), "3 scans were copied to ProcessIn. 3 have a new name.");
    EXPECT_EQ(test::ReadText(folders_.ProcessIn + "three.jpg"), "three");
    // Only the one that waits is replaced: the other names belong to forms that were read.
    EXPECT_EQ(paste(),
              (Names{"one-2.tif", "one-3.tif", "three-2.jpg", "three.jpg", "two-2.tif", "two-3.tif"}));
    EXPECT_EQ(test::ReadText(folders_.ProcessIn + "three.jpg"), "another three");

    // Files that differ by the ending alone would share a result.
    test::WriteText(outside_.File("four.jpg"), "4");
    test::WriteText(outside_.File("four.png"), "4");
    EXPECT_TRUE(Drop({outside_.File("four.jpg"), outside_.File("four.png")}));
    EXPECT_TRUE(files_.FileExists(folders_.ProcessIn + "four-2.png"));
}

TEST_F(IntakeTest, APageThatWasNotReadIsSeenInReviewAndProcessedOnceItsProfileIsThere) {
    const auto other = test::TestForm::Grid(3, 2, 30);
    other.SaveScan(folders_.ProcessIn + "strange.tif", {});
    form_.SaveScan(folders_.ProcessIn + "known.tif", {});
    Open();
    Click("Process");
    Click("Review");
    auto& tabs = Find<QTabWidget>(*window_, "tabReview");
    EXPECT_EQ(tabs.tabText(1), "Not read (1)");
    tabs.setCurrentIndex(1);
    QApplication::processEvents();
    auto& list = Find<QTreeWidget>(*window_, "lvwUnread");
    ASSERT_EQ(list.topLevelItemCount(), 1);
    EXPECT_FALSE(Find<QAction>(*window_, "BackToProcessIn").isEnabled());
    ClickOn(list, 0);
    EXPECT_EQ(Notices(), "strange.tif: unclassified");
    EXPECT_EQ(View().sceneRect(), QRectF(0, 0, other.width, other.height));
    Find<QAction>(*window_, "BackToProcessIn").trigger();
    EXPECT_EQ(In(folders_.ProcessIn), Names{"strange.tif"});
    Click("Review");
    EXPECT_EQ(Notices(), "") << "the file is no longer shown";
    Click("Review");
    EXPECT_EQ(tabs.tabText(1), "Not read");

    Click("Process");
    EXPECT_EQ(tabs.tabText(1), "Not read (1)");
    AddProfile("Other", other);
    Open();  // a later day
    Find<QAction>(*window_, "ProcessUnread").trigger();
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"known.tif", "known.xml", "strange.tif", "strange.xml"}));
}

TEST_F(IntakeTest, TheChooserOfTheBlankFormShowsThePictureOfTheHighlightedFile) {
    form_.SaveScan(folders_.ProfileImages + "blank.tif", {});
    test::WriteText(folders_.ProfileImages + "torn.tif", "no image");
    Open();
    bool wasShown = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        if (dialog->acceptMode() == QFileDialog::AcceptSave) {
            QTimer::singleShot(0, dialog, [dialog] { static_cast<QDialog*>(dialog)->accept(); });
            return;
        }
        look.stop();
        auto& picture = Find<QLabel>(*dialog, "Picture");
        const auto highlight = [&](const char* name) {
            Q_EMIT dialog->currentChanged(ToQt(folders_.ProfileImages + name));
            return !picture.pixmap(Qt::ReturnByValue).isNull();
        };
        wasShown = highlight("blank.tif") && !highlight("torn.tif");
        dialog->reject();
    });
    look.start(1);
    Click("New");
    EXPECT_TRUE(wasShown);
}

TEST_F(IntakeTest, APictureThatIsPastedBecomesAPageThatIsRead) {
    form_.SaveScan(outside_.File("one.tif"), {.checked = {2}});
    const QImage picture = ReadPageImage(files_, outside_.File("one.tif"));
    ASSERT_FALSE(picture.isNull());
    QGuiApplication::clipboard()->setImage(picture);
    Open();
    Find<QAction>(*window_, "PasteScans").trigger();
    const Names pasted = In(folders_.ProcessIn);
    ASSERT_EQ(pasted.size(), 1U);
    EXPECT_TRUE(pasted[0].starts_with("pasted-") && pasted[0].ends_with(".png")) << pasted[0];
    Click("Process");
    EXPECT_EQ(In(folders_.ProcessOut).size(), 2U) << "the image and its result";
    QGuiApplication::clipboard()->clear();
}

TEST_F(IntakeTest, BoxesOfAnEarlierProgramOnTheClipboardAreToldFromNoProfile) {
    AddSpecimenProfile("Form", form_);
    Open();
    auto* const boxes = new QMimeData;
    boxes->setData("application/x-tavrene-boxes", "1");
    QGuiApplication::clipboard()->setMimeData(boxes);
    Find<QAction>(*window_, "PasteScans").trigger();
    EXPECT_EQ(Panel("Message"), "The clipboard holds boxes. Open a profile to add them to it.");
    ClickThumbnail(1);
    Find<QAction>(*window_, "PasteScans").trigger();
    EXPECT_EQ(Panel("Message"),
              "These boxes were copied before the program was started. Copy them once more.");
    EXPECT_EQ(Rows().topLevelItemCount(), 4);
    QGuiApplication::clipboard()->clear();
}

}  // namespace
}  // namespace tavrene::ui
