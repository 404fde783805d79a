#pragma once

#include <QGraphicsItem>
#include <QString>
#include <map>
#include <utility>

#include "ui/page/LabelRoom.h"

namespace tavrene::ui {

/// The name that is shown at a box; one that must not be stands out.
struct BoxLabel {
    QString text;
    bool isBad = false;
};

/// Names at the boxes of the page, in letters of one size at every zoom. Where boxes lie too close for all
/// names to be read, some are left out: those of boxes that come later, and never over another name.
class BoxLabels final : public QGraphicsItem {
  public:
    /// Names keep off the print where they can.
    explicit BoxLabels(PrintEnd print = {});

    void SetLabels(std::map<int, BoxLabel> labels);
    bool IsEmpty() const { return labels_.empty(); }
    QString TextOf(int group) const;

    /// Where all boxes are, in the page frame; those without a name are not covered either.
    void SetPlaces(std::map<int, QRectF> places);

    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    std::map<int, BoxLabel> labels_;
    std::map<int, QRectF> places_;
    QRectF room_;
    PrintEnd print_;
};

}  // namespace tavrene::ui
