#pragma once

namespace tavrene::commands {

/// The next zoom up and down, in percent. Up goes by a quarter and ends at 6500, down by a fifth and ends at
/// 2, so the two steps do not undo each other.
double ZoomedIn(double percent);
double ZoomedOut(double percent);

/// Width and height in pixels.
struct Extent {
    double width = 0;
    double height = 0;
};

/// The zoom in percent, not rounded, at which a page just fits into a view whole; 100 for a page without
/// area.
double ZoomToFitPage(const Extent& page, const Extent& view);

/// The zoom at which the page's width just fits. A page that is then higher than the view loses `scrollBar`
/// pixels of the view's width to the scroll bar.
double ZoomToFitWidth(const Extent& page, const Extent& view, double scrollBar);

}  // namespace tavrene::commands
