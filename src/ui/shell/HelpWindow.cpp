#include "ui/shell/HelpWindow.h"

#include <QDesktopServices>
#include <QFile>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/base/FitToScreen.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr QSize kFirstSize(860, 640);
constexpr int kContentsWidth = 190;

std::vector<commands::ManualPage> ReadPages() {
    QFile file(":/manual.md");
    return file.open(QIODevice::ReadOnly) ? commands::PagesOf(file.readAll().toStdString())
                                          : std::vector<commands::ManualPage>();
}

}  // namespace

HelpWindow::HelpWindow(QWidget* window)
    : QDialog(window), contents_(new QListWidget), text_(new QTextBrowser) {
    setObjectName("frmManual");
    setWindowTitle(Tr("HelpWindow", "Manual"));
    contents_->setObjectName("Contents");
    contents_->setAccessibleName(Tr("HelpWindow", "Pages of the manual"));
    contents_->setFrameShape(QFrame::NoFrame);
    contents_->setSpacing(3);
    text_->setObjectName("Page");
    text_->setAccessibleName(Tr("HelpWindow", "Page of the manual"));
    text_->setFrameShape(QFrame::NoFrame);
    text_->setOpenLinks(false);
    text_->document()->setDocumentMargin(16);
    auto* const panes = new QSplitter;
    panes->addWidget(contents_);
    panes->addWidget(text_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({kContentsWidth, kFirstSize.width() - kContentsWidth});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panes);
    connect(contents_, &QListWidget::currentRowChanged, this, &HelpWindow::ShowPage);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& address) { Follow(address.toString()); });
    ResizeWithinScreen(*this, kFirstSize);
}

void HelpWindow::ShowFor(commands::Mode mode) {
    // Most windows are never asked for help.
    if (pages_.empty()) {
        pages_ = ReadPages();
        for (const commands::ManualPage& page : pages_)
            contents_->addItem(ToQt(page.title));
    }
    const auto page = std::ranges::find(pages_, commands::PageFor(mode), &commands::ManualPage::title);
    contents_->setCurrentRow(static_cast<int>(page - pages_.begin()));
    show();
    raise();
    activateWindow();
    text_->setFocus();
}

void HelpWindow::Follow(const QString& address) {
    const auto page = std::ranges::find(pages_, FromQt(address.mid(1)), &commands::ManualPage::anchor);
    if (address.startsWith('#') && page != pages_.end())
        contents_->setCurrentRow(static_cast<int>(page - pages_.begin()));
    else if (!address.startsWith('#'))
        QDesktopServices::openUrl(address);
}

void HelpWindow::ShowPage(int number) {
    if (number >= 0 && static_cast<std::size_t>(number) < pages_.size())
        text_->setMarkdown(ToQt(pages_[static_cast<std::size_t>(number)].text));
}

}  // namespace tavrene::ui
