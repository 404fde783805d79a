#pragma once

#include <QGraphicsItem>
#include <QImage>
#include <QPixmap>

namespace tavrene::ui {

/// The page image. When it is shown smaller than it is, a copy averaged down to that size is painted, because
/// thin lines would break up otherwise.
class PageItem final : public QGraphicsItem {
  public:
    PageItem() { setFlag(ItemUsesExtendedStyleOption); }

    void SetImage(QImage image);
    QSizeF Size() const { return image_.size(); }

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    void PaintPart(QPainter& painter, const QRectF& exposed) const;
    void PaintSmaller(QPainter& painter, double scale);

    QImage image_;
    QPixmap pixmap_;  ///< The page at `pixmapScale_`.
    double pixmapScale_ = 0;
};

}  // namespace tavrene::ui
