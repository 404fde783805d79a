#pragma once

#include <QGraphicsItem>
#include <QString>
#include <vector>

#include "ui/page/LabelRoom.h"

namespace tavrene::ui {

/// What is drawn around the boxes of one group.
struct GroupFrame {
    QRectF place;  ///< Of its boxes, in the page frame.
    QString text;  ///< Its name, and how many marks it takes.
};

/// Frames around the groups of boxes, in lines and letters of one size at every zoom. What a frame says
/// stands at its right behind the print, above it or below it, and never over another frame.
class GroupFrames final : public QGraphicsItem {
  public:
    /// What is said of them keeps off the print where it can.
    explicit GroupFrames(PrintEnd print = {});
    void SetFrames(std::vector<GroupFrame> frames);
    const std::vector<GroupFrame>& Frames() const { return frames_; }
    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    std::vector<GroupFrame> frames_;
    QRectF room_;
    PrintEnd print_;
};

}  // namespace tavrene::ui
