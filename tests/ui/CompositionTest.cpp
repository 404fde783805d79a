#include <gtest/gtest.h>

#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>

#include "app/Files.h"
#include "support/TempFolder.h"
#include "ui/Controls.h"
#include "ui/shell/Composition.h"

namespace tavrene::ui {
namespace {

// The program as a person starts it for the first time, in a home of its own.
TEST(CompositionTest, FirstStartAsksForTheFolderAndLivesAsLongAsItsWindow) {
    const test::TempFolder home;
    const auto goBack = qScopeGuard([start = QDir::currentPath()] { QDir::setCurrent(start); });
    qputenv("XDG_CONFIG_HOME", home.File("config").c_str());
    QDir::setCurrent(ToQt(home.Path()));
    QStringList dialogs;
    test::WhileRunning save([&dialogs] {
        if (QWidget* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
            dialogs.append(dialog->objectName());
            test::Find<QPushButton>(*dialog, "cmdOK").click();
        }
    });
    Composition program;
    ASSERT_TRUE(program.Start());
    EXPECT_TRUE(app::DiskFiles().FolderExists(home.File("ProcessIn")));
    EXPECT_FALSE(Composition().Start()) << "there is an instance already";
    EXPECT_EQ(dialogs, QStringList("frmSettings"));

    bool wasOpen = false;
    QTimer::singleShot(0, &program.Window(), [&] {
        wasOpen = program.Window().isVisible();
        program.Window().close();
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(wasOpen);
}

TEST(CompositionTest, DoesNotOpenOnAFolderThatAnotherProgramWorksOn) {
    const test::TempFolder home;
    qputenv("XDG_CONFIG_HOME", home.Path().c_str());
    app::DiskFiles().CreateFolder(home.File("Tavrene CheckBoxes"));
    test::WriteText(home.File("Tavrene CheckBoxes/settings.ini"), "[Common]\nWorkDir=" + home.Path() + "\n");
    QString told;
    test::WhileRunning read([&told] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->text();
            box->accept();
        }
    });
    {
        app::FolderLock batch(home.Path());
        ASSERT_TRUE(batch.Take(app::FolderLock::Use::Alone));
        EXPECT_FALSE(Composition().Start());
        EXPECT_TRUE(told.contains("is working on the forms in " + ToQt(home.Path()))) << FromQt(told);
    }
    Composition program;
    EXPECT_TRUE(program.Start());
    EXPECT_FALSE(app::FolderLock(home.Path()).Take(app::FolderLock::Use::Shared));
}

}  // namespace
}  // namespace tavrene::ui
