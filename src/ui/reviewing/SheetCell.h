#pragma once

#include <QStyledItemDelegate>

namespace tavrene::ui {

/// Paints a box of the sheet: its picture, its mark as a tick or an empty square, on yellow where it
/// was turned round by hand, and below them form and box.
class SheetCell final : public QStyledItemDelegate {
  public:
    explicit SheetCell(QObject* parent) : QStyledItemDelegate(parent) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tavrene::ui
