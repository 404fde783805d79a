#include "ui/page/DrawTool.h"

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {

void DrawTool::Finish(const QPointF& point) {
    const QRectF drawn = Drawn(point);
    const bool isClick = IsClick(drawn);
    // A line has no inside that could be marked, so it is no box.
    if (!isClick && !drawn.isEmpty())
        layer_.TellSelected(layer_.NextGroup(), drawn);
    else if (const int group = layer_.BoxAt(point); isClick && group != 0)
        layer_.TellSelected(group, layer_.PlaceOf(group));
}

}  // namespace tavrene::ui
