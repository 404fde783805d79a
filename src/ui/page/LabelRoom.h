#pragma once

#include <QPainter>
#include <QRectF>
#include <functional>
#include <vector>

namespace tavrene::ui {

/// Where the print of the page ends at the right in a place of the page frame; its left side where it is
/// blank.
using PrintEnd = std::function<double(const QRectF& place)>;

/// The room that what is written over the page has, in pixels of the screen: what is in sight, but for what
/// is to be seen.
class LabelRoom {
  public:
    /// As the painter shows the page now. Without `print` the page counts as blank.
    LabelRoom(const QPainter& painter, PrintEnd print);

    const QRectF& Sight() const { return sight_; }
    void Take(const QRectF& place) { taken_.push_back(place); }

    /// In sight, and over nothing that is taken.
    bool IsFree(const QRectF& place) const;

    /// Free, and over no print either.
    bool IsBlank(const QRectF& place) const { return IsFree(place) && PrintedUpTo(place) <= place.left(); }

    double PrintedUpTo(const QRectF& place) const;

  private:
    QRectF sight_;
    QTransform toScreen_;
    PrintEnd print_;
    std::vector<QRectF> taken_;
};

}  // namespace tavrene::ui
