#pragma once

#include <QGraphicsItem>
#include <QString>
#include <map>

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
    BoxLabels();

    void SetLabels(std::map<int, BoxLabel> labels);
    bool IsEmpty() const { return labels_.empty(); }
    QString TextOf(int group) const;

    /// Where a box is, in the page frame; an empty place for one that is not there any more.
    void SetPlaces(std::map<int, QRectF> places);

    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    std::map<int, BoxLabel> labels_;
    std::map<int, QRectF> places_;
    QRectF room_;
};

}  // namespace tavrene::ui
