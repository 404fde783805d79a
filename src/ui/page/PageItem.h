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

    /// Where print ends at the right in a part of the page; the left side of one that is blank.
    double PrintedUpTo(const QRectF& part) const;

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    bool IsDark(int x, int y) const;
    void PaintPart(QPainter& painter, const QRectF& exposed) const;
    void PaintSmaller(QPainter& painter, double scale);

    QImage image_;
    QPixmap pixmap_;  ///< The page at `pixmapScale_`.
    double pixmapScale_ = 0;
};

}  // namespace tavrene::ui
