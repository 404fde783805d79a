#include "ui/shell/QtOperator.h"

#include <QCoreApplication>

#include "app/SettingsStore.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

int ShowBox(QWidget& window, QMessageBox::Icon icon, std::string_view title, std::string_view text,
            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset) {
    QMessageBox box(icon, Shown(title.empty() ? app::kApplicationName : title), Shown(text), buttons,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(preset);
    const UsualCursor usual;
    return box.exec();
}

QMessageBox::StandardButton ButtonOf(app::Answer answer) {
    switch (answer) {
        case app::Answer::Yes:
            return QMessageBox::Yes;
        case app::Answer::No:
            return QMessageBox::No;
        case app::Answer::Cancel:
            break;
    }
    return QMessageBox::Cancel;
}

}  // namespace

QtOperator::QtOperator(QWidget& window, StatusPanels& panels, MessageStrip& strip, const QWidget& page)
    : window_(window), panels_(panels), strip_(strip), reports_(new FileReports(&window, page)) {}

void QtOperator::ShowMessage(std::string_view title, std::string_view text) {
    // What has a title of its own tells of something that the person wanted.
    const QMessageBox::Icon icon = title.empty() ? QMessageBox::Warning : QMessageBox::Information;
    ShowBox(window_, icon, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

void QtOperator::ReportFile(std::string_view fileName, std::string_view text) {
    reports_->Add(ToQt(fileName), Shown(text));
}

app::Answer QtOperator::Ask(std::string_view text, QMessageBox::StandardButtons buttons, app::Answer preset) {
    switch (ShowBox(window_, QMessageBox::Question, {}, text, buttons, ButtonOf(preset))) {
        case QMessageBox::Yes:
            return app::Answer::Yes;
        case QMessageBox::No:
            return app::Answer::No;
        default:
            return app::Answer::Cancel;
    }
}

app::Answer QtOperator::AskYesNo(std::string_view text, app::Answer preset) {
    return Ask(text, QMessageBox::Yes | QMessageBox::No, preset);
}

app::Answer QtOperator::AskYesNoCancel(std::string_view text, app::Answer preset) {
    return Ask(text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, preset);
}

void QtOperator::SetPanel(app::Panel panel, std::string_view text) {
    panels_.SetPanel(panel, Shown(text));
}

void QtOperator::SetProgressRange(int last) {
    panels_.SetProgressRange(last);
}

void QtOperator::SetProgress(int value) {
    panels_.SetProgress(value);
}

void QtOperator::RunPendingEvents() {
    QCoreApplication::processEvents();
}

}  // namespace tavrene::ui
