#include "ui/profiling/ThumbnailStripView.h"

#include <QAbstractListModel>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <utility>
#include <vector>

#include "ui/base/EmptyHint.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/page/PageImage.h"

namespace tavrene::ui {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 4;

// Paints the picture with a thin edge and the caption below it, both in the middle.
class PageDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize picture = index.data(Qt::DecorationRole).value<QImage>().size();
        return {picture.width() + 2 * kMargin,
                picture.height() + kGap + option.fontMetrics.height() + 2 * kMargin};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const QRect area = option.rect.adjusted(2, 2, -2, -2);
        painter->save();
        if (isSelected) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(option.palette.highlight());
            painter->setRenderHint(QPainter::Antialiasing);
            painter->drawRoundedRect(area, 4, 4);
            painter->setRenderHint(QPainter::Antialiasing, false);
        }
        const auto picture = index.data(Qt::DecorationRole).value<QImage>();
        QRect place(QPoint(), picture.size()
                                  .scaled(area.width() - 2 * kGap, picture.height(), Qt::KeepAspectRatio)
                                  .boundedTo(picture.size()));
        place.moveCenter(area.center());
        place.moveTop(option.rect.top() + kMargin);
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(place, picture);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QColor(128, 128, 128));
        painter->drawRect(place.adjusted(-1, -1, 0, 0));
        painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        const QRect caption(area.left(), place.bottom() + kGap, area.width(), option.fontMetrics.height());
        painter->drawText(caption, Qt::AlignCenter, index.data().toString());
        painter->restore();
    }
};

}  // namespace

class ThumbnailStripView::Pages final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void Show(std::span<const profiles::StripThumbnail> thumbnails) {
        beginResetModel();
        pages_.clear();
        for (const profiles::StripThumbnail& thumbnail : thumbnails)
            pages_.push_back({ToImage(*thumbnail.picture), Shown(thumbnail.caption)});
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(pages_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const Page& page = pages_[static_cast<std::size_t>(index.row())];
        if (role == Qt::DecorationRole)
            return page.picture;
        return role == Qt::DisplayRole ? page.caption : QVariant();
    }

  private:
    struct Page {
        QImage picture;
        QString caption;
    };
    std::vector<Page> pages_;
};

ThumbnailStripView::ThumbnailStripView(QWidget* parent) : QListView(parent), pages_(new Pages(this)) {
    setObjectName("ImgThumbnail1");
    setAccessibleName(Tr("ThumbnailStripView", "Profile specimens"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(QListView::Adjust);
    setItemDelegate(new PageDelegate(this));
    setModel(pages_);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { TellChosen(index); });
}

void ThumbnailStripView::ShowThumbnails(std::span<const profiles::StripThumbnail> thumbnails) {
    const int scrolled = verticalScrollBar()->value();
    pages_->Show(thumbnails);
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void ThumbnailStripView::SelectThumbnail(int k) {
    const QModelIndex index = pages_->index(k - 1);
    clearSelection();
    setCurrentIndex(index);
    selectionModel()->select(index, QItemSelectionModel::Select);
    if (index.isValid())
        scrollTo(index);
}

QItemSelectionModel::SelectionFlags ThumbnailStripView::selectionCommand(const QModelIndex&,
                                                                         const QEvent*) const {
    return QItemSelectionModel::NoUpdate;
}

void ThumbnailStripView::TellChosen(const QModelIndex& index) {
    if (index.isValid() && listener_.chosen)
        listener_.chosen(index.row() + 1);
    const QModelIndexList selected = selectedIndexes();
    setCurrentIndex(selected.isEmpty() ? QModelIndex() : selected.front());
}

void ThumbnailStripView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (currentIndex() != before)
        TellChosen(currentIndex());
}

bool ThumbnailStripView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    const auto& help = dynamic_cast<const QHelpEvent&>(*event);
    const QModelIndex index = indexAt(help.pos());
    const QString name =
        index.isValid() && listener_.toolTip ? Shown(listener_.toolTip(index.row() + 1)) : QString();
    QToolTip::showText(help.globalPos(), ToolTipOf(name), viewport(), visualRect(index));
    return true;
}

void ThumbnailStripView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (pages_->rowCount() == 0)
        PaintEmptyHint(*viewport(), Tr("ThumbnailStripView",
                                       "No profiles yet.\nNew makes one from the image of a blank form."));
}

}  // namespace tavrene::ui
