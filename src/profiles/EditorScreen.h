#pragma once

#include <span>
#include <string>
#include <string_view>

#include "imaging/Bitmap.h"
#include "imaging/PageRects.h"
#include "imaging/PageView.h"
#include "profiles/BoxRows.h"

namespace tavrene::profiles {

/// How far the image view is scrolled, in view units: pixels of the zoomed page.
struct ScrollOffset {
    double x = 0;
    double y = 0;
};

/// What the image view tells of one rectangle: its place in view units, counted from the view's top left
/// corner. The height is the box's full height.
struct RectReport {
    int group = 0;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The report of a box that stands at `box` in the page frame.
inline RectReport ReportOf(int group, const imaging::PageRect& box, double zoom, const ScrollOffset& scroll) {
    const double scale = zoom / 100;
    return {group, box.left * scale - scroll.x, box.top * scale - scroll.y, box.width * scale,
            box.height * scale};
}

/// What is painted of a box: one pixel less than its height, so that boxes that touch stay apart.
inline imaging::PageRect PaintedPart(const imaging::PageRect& box) {
    return {box.left, box.top, box.width, box.height - 1};
}

enum class BoxTool { Select, Add };

/// The boxes that can be edited in the image view, each in the group of its number. What the editor does here
/// is reported by no event; only what the person does is.
class EditableBoxes {
  public:
    virtual ~EditableBoxes() = default;

    /// Adds a box, or puts the box of that group to a new place. `box` in the page frame with its full
    /// height; see `PaintedPart`.
    virtual void PutBox(int group, const imaging::PageRect& box) = 0;
    virtual void RemoveBox(int group) = 0;

    /// Makes the box the only selected one and scrolls to where it can be seen; 0 selects none.
    virtual void SelectBox(int group) = 0;

    virtual void SetTool(BoxTool tool) = 0;

    /// The group that the next drawn rectangle belongs to.
    virtual void SetNextGroup(int group) = 0;

    virtual ScrollOffset Scroll() const = 0;
};

/// The box list while a profile is edited. Nothing done here is reported by an event.
class EditableRows : public BoxRows {
  public:
    /// Adds a row among the others by its box's number.
    virtual void InsertRow(int number, std::string_view name) = 0;
    virtual void RemoveRow(int number) = 0;
    virtual void RenameRow(int number, std::string_view name) = 0;

    /// Makes the row the only selected one and scrolls it into view; 0 selects none.
    virtual void SelectRow(int number) = 0;

    /// Paints what has changed now.
    virtual void RefreshRows() = 0;
};

struct StripThumbnail {
    const imaging::Bitmap* picture;  ///< 8 bits of grey; valid during the call only.
    std::string caption;
};

/// The thumbnail strip (`ImgThumbnail1`). Nothing done here is reported by an event.
class ThumbnailStrip {
  public:
    virtual ~ThumbnailStrip() = default;
    virtual void ShowThumbnails(std::span<const StripThumbnail> thumbnails) = 0;

    /// Marks thumbnail `k` (1-based) as the only selected one; 0 marks none.
    virtual void SelectThumbnail(int k) = 0;
};

/// The parts of the window that show the open profile. They must outlive who holds this.
struct EditorScreen {
    imaging::PageView& view;
    imaging::PageRects& rects;
    EditableBoxes& boxes;
    EditableRows& rows;
    ThumbnailStrip& strip;
};

}  // namespace tavrene::profiles
