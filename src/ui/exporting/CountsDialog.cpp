#include "ui/exporting/CountsDialog.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QImage>
#include <QMessageBox>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/Reason.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

// The picture has the width of an A4 page at this many dots an inch.
constexpr int kPictureDpi = 150;
constexpr int kPictureWidth = 1240;

// A document of its own in black on white: the one on the screen has the palette's colours.
void SetPage(QTextDocument& page, const QTextDocument& shown) {
    page.setHtml(shown.toHtml());
    page.setDefaultFont(shown.defaultFont());
}

QByteArray PdfOf(const QTextDocument& shown) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle("How often each box is checked");
    QTextDocument page;
    SetPage(page, shown);
    page.print(&writer);
    return bytes;
}

QByteArray PngOf(const QTextDocument& shown) {
    // What is painted lies in 16 bits; of a thousand boxes the picture becomes smaller.
    constexpr qreal kMostPixels = 32000;
    qreal scale = kPictureDpi / 96.0;
    QTextDocument page;
    SetPage(page, shown);
    page.setDocumentMargin(24);
    page.setTextWidth(kPictureWidth / scale);
    scale = std::min(scale, kMostPixels / page.size().height());
    QImage image(kPictureWidth, static_cast<int>(page.size().height() * scale) + 1, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    page.drawContents(&painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

}  // namespace

CountsDialog::CountsDialog(const std::string& html, Context context, QWidget* parent)
    : QDialog(parent), context_(std::move(context)), page_(new QTextBrowser) {
    setObjectName("frmCounts");
    setWindowTitle(Tr("CountsDialog", "Counts"));
    page_->setObjectName("CountsPage");
    page_->setAccessibleName(Tr("CountsDialog", "How often each box is checked"));
    page_->document()->setDocumentMargin(12);
    page_->setHtml(ToQt(html));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(page_);
    layout->addWidget(Buttons());
    ResizeWithinScreen(*this, {760, 720});
}

QWidget* CountsDialog::Buttons() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    const auto add = [this, buttons](const char* name, const QString& text, void (CountsDialog::*act)()) {
        QPushButton* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
    };
    add("cmdPrint", Tr("CountsDialog", "&Print..."), &CountsDialog::Print);
    add("cmdSavePdf", Tr("CountsDialog", "Save as P&DF..."), &CountsDialog::SavePdf);
    add("cmdSavePng", Tr("CountsDialog", "Save as P&NG..."), &CountsDialog::SavePng);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void CountsDialog::Print() {
    QPrinter printer;
    printer.setDocName("How often each box is checked");
    if (QPrintDialog(&printer, this).exec() != QDialog::Accepted)
        return;
    QTextDocument page;
    SetPage(page, *page_->document());
    page.print(&printer);
}

void CountsDialog::SavePdf() {
    if (const auto path = context_.dialogs.AskSaveFile(
            {"Save Counts", context_.startFolder, "Counts.pdf", "PDF documents|*.pdf"}))
        Write(*path, PdfOf(*page_->document()));
}

void CountsDialog::SavePng() {
    if (const auto path = context_.dialogs.AskSaveFile(
            {"Save Counts", context_.startFolder, "Counts.png", "PNG pictures|*.png"}))
        Write(*path, PngOf(*page_->document()));
}

void CountsDialog::Write(const std::string& path, const QByteArray& content) {
    try {
        context_.files.Write(
            path, std::as_bytes(std::span(content.constData(), static_cast<std::size_t>(content.size()))));
    } catch (const std::exception& failure) {
        QMessageBox::warning(this, windowTitle(), Shown(app::ReasonOf(failure)));
    }
}

}  // namespace tavrene::ui
