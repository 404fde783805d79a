#pragma once

#include <QGraphicsItem>
#include <QRectF>
#include <map>
#include <vector>

namespace tavrene::ui {

/// Edges of a rectangle that a handle moves, or-ed together.
enum Edge : unsigned { kNoEdge = 0, kLeftEdge = 1, kTopEdge = 2, kRightEdge = 4, kBottomEdge = 8 };

struct Handle {
    unsigned edges = kNoEdge;
    QPointF centre;  ///< Page frame.
};

/// The handles of a rectangle in the page frame; one pixel of the image takes `scale` pixels of the screen.
/// On a small rectangle they stand off and leave out the middles of its sides, so that it can still be taken
/// by its inside.
std::vector<Handle> HandlesOf(const QRectF& rect, double scale);

/// The edges of the handle under a point of the page frame; none where there is no handle.
unsigned EdgesAt(const QRectF& rect, double scale, const QPointF& point);

/// The rectangle with these edges put to a point; it keeps a width and height of at least one pixel.
QRectF WithEdgesAt(QRectF rect, unsigned edges, const QPointF& point);

/// The marks of the selected boxes: stronger outlines. One that is alone has handles as well.
class HandleFrame final : public QGraphicsItem {
  public:
    HandleFrame();

    /// Marks none.
    void Clear();

    /// Marks a box at a place of the page frame, or follows it there.
    void SetRect(int group, const QRectF& rect);

    /// Marks a box as the one that the others go by.
    void SetCurrent(int group, const QRectF& rect);

    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    static void PaintHandles(QPainter& painter, const QRectF& rect, double dots);

    std::map<int, QRectF> rects_;
    int current_ = 0;
    QRectF room_;  ///< Grows with the places of the marks.
};

}  // namespace tavrene::ui
