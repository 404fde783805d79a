#pragma once

namespace tavrene::imaging {

/// A rectangle in the page frame: image pixels, y down from the top; right and bottom lie behind the last
/// pixel.
struct PageRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const PageRect&) const = default;
};

enum class RectStyle { Plain, Checked, Unchecked, Skipped };

/// The rectangles drawn over the page, each in the group of its box's number.
class PageRects {
  public:
    virtual ~PageRects() = default;
    virtual void DrawRect(int group, const PageRect& rect, RectStyle style) = 0;
    virtual void ClearRects() = 0;
};

}  // namespace tavrene::imaging
