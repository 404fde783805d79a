#include <QScreen>

#include "support/FakeFileDialogs.h"
#include "ui/DeskWindow.h"
#include "ui/exporting/CountsDialog.h"
#include "ui/exporting/ExportDialog.h"
#include "ui/profiling/NameBoxesDialog.h"
#include "ui/settings/SettingsDialog.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/Language.h"

namespace tavrene::ui {
namespace {

class ScreenFitTest : public test::DeskWindow {};

// What a screen of 1366 x 768 at twice the scale has, without what a desktop draws around a window; the texts
// of the other language are the longer ones.
TEST_F(ScreenFitTest, EveryWindowFitsASmallScreenAtTwiceTheScale) {
    constexpr QSize kRoom(1366 / 2 - 16, 768 / 2 - 48);
    test::FakeFileDialogs dialogs;
    for (const char* const language : {"en", "de"}) {
        app::WriteWindow(store_, "Language", language);
        SpeakChosenLanguage(store_);
        const auto expectFits = [&](QWidget&& window) {
            window.ensurePolished();
            const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
            EXPECT_TRUE(least.boundedTo(kRoom) == least)
                << FromQt(window.objectName()) << " " << least.width() << " x " << least.height() << " "
                << language;
            const QSize screen = window.screen()->availableSize();
            EXPECT_TRUE(window.size().boundedTo(screen) == window.size()) << FromQt(window.objectName());
        };
        expectFits(SettingsDialog(settings_, store_, files_, nullptr));
        expectFits(ExportDialog({}, folders_, nullptr));
        expectFits(CountsDialog("<p>none</p>", {files_, dialogs, ""}, nullptr));
        expectFits(NameBoxesDialog(
            {}, {}, {}, [](const auto&, const auto&) {}, nullptr));
        expectFits(AboutDialog(nullptr));
        expectFits(HelpWindow(nullptr));
        expectFits(ui::MainWindow(settings_, {store_, files_, clock_}));
    }
    app::WriteWindow(store_, "Language", "en");
    SpeakChosenLanguage(store_);
}

}  // namespace
}  // namespace tavrene::ui
