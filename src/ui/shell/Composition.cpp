#include "ui/shell/Composition.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QStandardPaths>
#include <clocale>

#include "app/Startup.h"
#include "ui/base/QtText.h"
#include "ui/look/CalmStyle.h"
#include "ui/look/FocusRing.h"
#include "ui/page/PageAccess.h"
#include "ui/settings/SettingsDialog.h"
#include "ui/shell/Language.h"

namespace tavrene::ui {
namespace {

QString ConfigFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation);
}

}  // namespace

void PrepareApplication() {
    // The toolkit has taken the person's over: commas for points in what the libraries write, and reasons in
    // the logs that change with the desktop's language.
    std::setlocale(LC_NUMERIC, "C");
    std::setlocale(LC_MESSAGES, "C");
    QApplication::setApplicationName(ToQt(app::kApplicationName));
    QApplication::setApplicationVersion(TAVRENE_VERSION);
    QApplication::setStyle(new CalmStyle);
    new FocusRing(qApp);
    OfferPagesToAssistiveTools();
    // The desktop finds its own entry, and with it the name and picture, by this name.
    QApplication::setDesktopFileName("org.tavrene.CheckBoxes");
    QApplication::setWindowIcon(QIcon(":/tavrene-checkboxes.svg"));
    // A dialog of start-up that closes before there is a window must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
}

Composition::Composition()
    : store_(ConfigFolder()), instance_(ConfigFolder() + '/' + ToQt(app::kApplicationName)) {}

bool Composition::Start() {
    SpeakChosenLanguage(store_);
    const app::StartupContext context = {
        store_, files_, [this] { return instance_.Become(); },
        [this](app::Settings& settings) { SettingsDialog(settings, store_, files_, nullptr).exec(); },
        [this] {
            if (!MayUseFolder())
                return;
            window_ =
                std::make_unique<MainWindow>(settings_, WindowContext{store_, files_, clock_, &*folder_});
            window_->Load();
            window_->show();
            QApplication::setQuitOnLastWindowClosed(true);
        }};
    return app::RunStartup(settings_, context) && window_ != nullptr;
}

// The forms can be reviewed meanwhile; the window begins no run before it has the folder to itself.
bool Composition::MayUseFolder() {
    folder_.emplace(settings_.WorkDir);
    return folder_->Take(app::FolderLock::Use::Alone) ||
           QMessageBox::question(nullptr, ToQt(app::kApplicationName),
                                 Tr("Composition",
                                    "Another program, tavrene-batch for one, is working on the forms in "
                                    "%1.\nOpen the window all the same?")
                                     .arg(ToQt(settings_.WorkDir)),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace tavrene::ui
