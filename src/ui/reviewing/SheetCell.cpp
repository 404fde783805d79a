#include "ui/reviewing/SheetCell.h"

#include <QListView>
#include <QPainter>

#include "ui/base/MarkColors.h"
#include "ui/reviewing/SheetModel.h"

namespace tavrene::ui {
namespace {

constexpr int kMargin = 3;
constexpr int kSign = 18;  // pixels of the square that stands for the mark

void PaintPicture(QPainter& painter, const QRect& room, const QImage& picture) {
    if (picture.isNull())
        return;
    const QSize size = picture.size().scaled(room.size(), Qt::KeepAspectRatio);
    QRect place({}, size);
    place.moveCenter(room.center());
    painter.drawImage(place, picture);
}

void PaintSign(QPainter& painter, const QRect& room, bool isMarked, bool isTurned) {
    const QRectF sign = QRectF(room.left() + 2, room.top() + 2, kSign, kSign).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(isMarked ? kMarkedColor : kEmptyColor, 2));
    painter.setBrush(isTurned ? kByHandColor : Qt::white);
    painter.drawRoundedRect(sign, 3, 3);
    if (!isMarked)
        return;
    painter.setPen(QPen(kMarkedColor, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{sign.topLeft() + QPointF(4, 9), sign.topLeft() + QPointF(7.5, 12.5),
                                   sign.topLeft() + QPointF(13, 4.5)});
}

// Neither name hides the other, however narrow the cell is.
QString Caption(const QFontMetrics& metrics, const QString& form, const QString& box, int width) {
    const QString end =
        box.isEmpty() ? QString() : " · " + metrics.elidedText(box, Qt::ElideMiddle, width * 3 / 5);
    return metrics.elidedText(form, Qt::ElideMiddle, width - metrics.horizontalAdvance(end)) + end;
}

}  // namespace

void SheetCell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QRect cell = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int line = option.fontMetrics.height();
    const QRect room = cell.adjusted(0, 0, 0, -line - 2);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (isSelected)
        painter->fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.highlight());
    painter->fillRect(room, Qt::white);
    PaintPicture(*painter, room, index.data(SheetModel::kPicture).value<QImage>());
    PaintSign(*painter, room, index.data(SheetModel::kChecked).toBool(),
              index.data(SheetModel::kTurned).toBool());
    const QRect caption(cell.left(), room.bottom() + 2, cell.width(), line);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(caption, Qt::AlignCenter,
                      Caption(option.fontMetrics, index.data(SheetModel::kForm).toString(),
                              index.data(SheetModel::kBox).toString(), caption.width()));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(QPen(option.palette.color(QPalette::Text), 2, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}

QSize SheetCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const auto* const view = dynamic_cast<const QListView*>(option.widget);
    return view == nullptr ? QSize(96, 96) : view->gridSize();
}

}  // namespace tavrene::ui
