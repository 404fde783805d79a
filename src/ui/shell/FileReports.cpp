#include "ui/shell/FileReports.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "app/SettingsStore.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

FileReports::FileReports(QWidget* window) : QDialog(window), lines_(new QPlainTextEdit) {
    setObjectName("FileReports");
    setWindowTitle(ToQt(app::kApplicationName));
    // It must not take the keyboard from the window, or Escape and Stop would go astray in the middle of a
    // run.
    setAttribute(Qt::WA_ShowWithoutActivating);
    lines_->setObjectName("Lines");
    lines_->setAccessibleName("Files that could not be used");
    lines_->setReadOnly(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel("These files could not be used:"));
    layout->addWidget(lines_);
    layout->addWidget(buttons);
    resize(560, 240);
}

void FileReports::Add(const QString& fileName, const QString& text) {
    if (!isVisible()) {
        lines_->clear();
        OpenBesideWindow();
    }
    lines_->appendPlainText(fileName + ": " + text);
}

void FileReports::OpenBesideWindow() {
    const QRect screen = parentWidget()->screen()->availableGeometry();
    const QRect window = parentWidget()->frameGeometry();
    const int x = std::min(window.right() + 8, screen.right() - width());
    const int y = std::min(window.bottom() - height() - 48, screen.bottom() - height());
    move(std::max(x, screen.left()), std::max(y, screen.top()));
    show();
}

}  // namespace tavrene::ui
