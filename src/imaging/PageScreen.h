#pragma once

#include <span>
#include <string>

#include "imaging/Bitmap.h"
#include "imaging/PageRect.h"

namespace tavrene::imaging {

/// What a rectangle stands for, which settles how it looks. An editable one is a box of the open profile: the
/// tools move and resize it, and of its height one pixel less is painted. A candidate may become one.
enum class RectStyle { Editable, Checked, Unchecked, Skipped, Candidate };

/// What the left button does with editable boxes.
enum class BoxTool { Select, Add };

/// The image view of the screen (`ImgEdit1`) as the operations below the window see it: one page and the
/// rectangles over it, each in the group of its box's number. No event reports what is done here; only what
/// the person does is reported.
class PageScreen {
  public:
    virtual ~PageScreen() = default;

    /// Shows a page image from its file (UTF-8 path); a file that cannot be read leaves the view empty.
    virtual void ShowFile(const std::string& path) = 0;

    /// Shows a page that is in memory already: one bit (1 is black), 8 bits of grey or 32 of colour.
    virtual void ShowPicture(const Bitmap& picture) = 0;

    /// Shows the page, and what is over it, turned by half a turn or not. The page frame stays that of the
    /// image; the next page is shown as it is again.
    virtual void TurnPage(bool isTurned) = 0;

    /// Takes the page and all rectangles away.
    virtual void Clear() = 0;

    /// Zoom in percent; one image pixel is one screen pixel at 100.
    virtual double Zoom() const = 0;
    virtual void SetZoom(double percent) = 0;
    virtual ScrollOffset Scroll() const = 0;

    /// Paints what has changed now, without taking other events.
    virtual void Refresh() = 0;

    /// Draws the rectangle of a group, or gives the one that is drawn another place and look.
    virtual void PutRect(int group, const PageRect& rect, RectStyle style) = 0;
    virtual void RemoveRect(int group) = 0;
    virtual void ClearRects() = 0;

    /// Makes the rectangle of a group the only one that stands out and brings it into view; 0 leaves none.
    virtual void Emphasise(int group) = 0;

    /// Makes the rectangles of these groups the only ones that stand out, the current one most. The page
    /// stays where it is.
    virtual void Mark(std::span<const int> groups, int current) = 0;

    /// Sets what the left button does while boxes can be edited. `nextGroup` is the group of the next
    /// rectangle that is drawn.
    virtual void SetTool(BoxTool tool, int nextGroup) = 0;
};

}  // namespace tavrene::imaging
