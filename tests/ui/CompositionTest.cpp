#include <gtest/gtest.h>

#include <QDir>
#include <QPushButton>

#include "app/Files.h"
#include "support/TempFolder.h"
#include "ui/Composition.h"
#include "ui/Controls.h"

namespace tavrene::ui {
namespace {

// The program as a person starts it for the first time, in a home of its own.
class CompositionTest : public testing::Test {
  protected:
    CompositionTest() {
        qputenv("XDG_CONFIG_HOME", home_.File("config").c_str());
        QDir::setCurrent(ToQt(home_.Path()));
    }
    ~CompositionTest() override { QDir::setCurrent(start_); }
    CompositionTest(const CompositionTest&) = delete;
    CompositionTest& operator=(const CompositionTest&) = delete;

    QString start_ = QDir::currentPath();
    test::TempFolder home_;
};

TEST_F(CompositionTest, FirstStartAsksForTheFolderAndLivesAsLongAsItsWindow) {
    QStringList dialogs;
    test::WhileRunning save([&dialogs] {
        if (QWidget* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
            dialogs.append(dialog->objectName());
            test::Find<QPushButton>(*dialog, "cmdOK").click();
        }
    });
    Composition program;
    ASSERT_TRUE(program.Start());
    EXPECT_EQ(dialogs, QStringList("frmSettings"));
    EXPECT_TRUE(app::DiskFiles().FolderExists(home_.File("ProcessIn")));
    EXPECT_FALSE(Composition().Start()) << "there is an instance already";

    bool wasOpen = false;
    QTimer::singleShot(0, &program.Window(), [&] {
        wasOpen = program.Window().isVisible();
        program.Window().close();
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(wasOpen);
}

TEST_F(CompositionTest, AFolderThatIsGoneBringsTheDialogOnceAndThenTheWindow) {
    QtSettingsStore store(ToQt(home_.File("config")));
    app::WriteCommon(store, "WorkDir", home_.File("gone"));
    int shown = 0;
    test::WhileRunning cancel([&shown] {
        if (QWidget* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
            ++shown;
            test::Find<QPushButton>(*dialog, "cmdCancel").click();
        }
    });
    Composition program;
    ASSERT_TRUE(program.Start());
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(program.Window().isVisible());
}

}  // namespace
}  // namespace tavrene::ui
