#include <QApplication>
#include <QMessageBox>
#include <exception>

#include "app/Reason.h"
#include "app/SettingsStore.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/shell/Composition.h"

int main(int argc, char** argv) {
    using namespace tavrene;
    QApplication application(argc, argv);
    ui::PrepareApplication();
    try {
        ui::Composition program;
        return program.Start() ? QApplication::exec() : 0;
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, ui::ToQt(app::kApplicationName), ui::Shown(app::ReasonOf(failure)));
        return 1;
    }
}
