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

/// How far the page is scrolled, in view units: pixels of the zoomed page.
struct ScrollOffset {
    double x = 0;
    double y = 0;
};

/// What the page tells of one rectangle: its place in view units, counted from the view's top left corner.
/// The height is the box's full height.
struct RectReport {
    int group = 0;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The report of a box that stands at `box` in the page frame.
inline RectReport ReportOf(int group, const PageRect& box, double zoom, const ScrollOffset& scroll) {
    const double scale = zoom / 100;
    return {group, box.left * scale - scroll.x, box.top * scale - scroll.y, box.width * scale,
            box.height * scale};
}

/// What is painted of a box that can be edited: one pixel less than its height, so that boxes that touch stay
/// apart.
inline PageRect PaintedPart(const PageRect& box) {
    return {box.left, box.top, box.width, box.height - 1};
}

}  // namespace tavrene::imaging
