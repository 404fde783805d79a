#pragma once

#include <QGraphicsItem>
#include <QString>
#include <vector>

namespace tavrene::ui {

/// What is drawn around the boxes of one group.
struct GroupFrame {
    QRectF place;  ///< Of its boxes, in the page frame.
    QString text;  ///< Its name, and how many marks it takes.
};

/// Frames around the groups of boxes, in lines and letters of one size at every zoom.
class GroupFrames final : public QGraphicsItem {
  public:
    GroupFrames();
    void SetFrames(std::vector<GroupFrame> frames);
    const std::vector<GroupFrame>& Frames() const { return frames_; }
    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    std::vector<GroupFrame> frames_;
    QRectF room_;
};

}  // namespace tavrene::ui
