#include <QAction>

#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;

// Runs with all cores in the real window.
using AllCoresTest = test::DeskWindow;

TEST_F(AllCoresTest, TheToggleIsOffAtFirstIsKeptAndStopEndsARunBehindThePageAtHand) {
    const auto form = test::TestForm::Grid(2, 3);
    AddProfile("Form", form);
    for (int k = 1; k <= 8; ++k)
        form.SaveScan(folders_.ProcessIn + std::to_string(k) + ".tif", {.checked = {1 + k % 6}});
    Open();
    EXPECT_FALSE(Find<QAction>(*window_, "UseAllCores").isChecked());
    Find<QAction>(*window_, "UseAllCores").trigger();
    Open();
    EXPECT_TRUE(Find<QAction>(*window_, "UseAllCores").isChecked());
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    QTimer::singleShot(0, window_.get(), [this] { Find<QAction>(*window_, "Stop").trigger(); });
    Click("Process");
    EXPECT_EQ(dialogs.shown, std::vector<std::string>{"Process interrupted by user"});
    EXPECT_EQ(In(folders_.ProcessOut), (std::vector<std::string>{"1.tif", "1.xml"}));
    Click("Process");
    EXPECT_EQ(In(folders_.ProcessOut).size(), 16U);
    EXPECT_EQ(Panel("ElapsedTime").substr(0, 7), "7 Files");
}

}  // namespace
}  // namespace tavrene::ui
