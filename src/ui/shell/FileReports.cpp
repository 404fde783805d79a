#include "ui/shell/FileReports.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "app/SettingsStore.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

FileReports::FileReports(QWidget* window, const QWidget& page)
    : QDialog(window), page_(page), lines_(new QPlainTextEdit) {
    setObjectName("FileReports");
    setWindowTitle(ToQt(app::kApplicationName));
    // It must not take the keyboard from the window, or Escape and Stop would go astray in the middle of a
    // run.
    setAttribute(Qt::WA_ShowWithoutActivating);
    lines_->setObjectName("Lines");
    lines_->setAccessibleName(Tr("FileReports", "Files that could not be used"));
    lines_->setReadOnly(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(Tr("FileReports", "These files could not be used:")));
    layout->addWidget(lines_);
    layout->addWidget(buttons);
}

void FileReports::Add(const QString& fileName, const QString& text) {
    if (!isVisible()) {
        lines_->clear();
        OpenOverPage();
    }
    lines_->appendPlainText(fileName + ": " + text);
}

void FileReports::OpenOverPage() {
    constexpr QSize kWanted(520, 190);
    // A desktop draws a frame and a title around the box.
    constexpr int kFrame = 40;
    const QSize room = page_.size() - QSize(kFrame, kFrame);
    resize(kWanted.boundedTo(room).expandedTo(minimumSizeHint()));
    const QPoint corner = page_.mapToGlobal(QPoint(0, 0));
    move(corner + QPoint((page_.width() - width()) / 2, page_.height() - height() - kFrame));
    show();
}

}  // namespace tavrene::ui
