#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using Names = std::vector<std::string>;

using SharedFolderTest = test::DeskWindow;

// A result that is written before its image has moved looks like one that was left half done.
TEST_F(SharedFolderTest, AWindowBesideAnotherProgramSettlesAndReadsNothingUntilThatHasEnded) {
    const auto form = test::TestForm::Grid(2, 2);
    AddProfile("Form", form);
    form.SaveScan(folders_.ProcessIn + "first.tif", {.checked = {1}});
    Open();
    Click("Process");
    const std::string halfDone = folders_.ProcessOut + ".delivery-new-1-before.xml";
    files_.Move(folders_.ProcessOut + "first.xml", halfDone, app::Keep::Durably);
    form.SaveScan(folders_.ProcessIn + "second.tif", {.checked = {1}});

    app::FolderLock batch(work_.Path());
    ASSERT_TRUE(batch.Take(app::FolderLock::Use::Alone));
    app::FolderLock ours(work_.Path());
    Open(&ours);
    EXPECT_TRUE(files_.FileExists(halfDone));
    DialogScript script;
    script.Press(QMessageBox::Ok);
    Click("Process");
    EXPECT_EQ(script.shown, Names{"Another program works on the forms in " + work_.Path() +
                                  ".\nProcess again when it has ended."});
    EXPECT_EQ(In(folders_.ProcessIn), Names{"second.tif"});

    batch.Release();
    Click("Process");
    EXPECT_FALSE(files_.FileExists(halfDone));
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"first.tif", "first.xml", "second.tif", "second.xml"}));
    EXPECT_FALSE(batch.Take(app::FolderLock::Use::Shared)) << "the window has the folder now";
}

}  // namespace
}  // namespace tavrene::ui
