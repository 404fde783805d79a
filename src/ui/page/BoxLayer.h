#pragma once

#include <QGraphicsItemGroup>
#include <QGraphicsRectItem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>

#include "imaging/PageScreen.h"
#include "profiles/BoxSelection.h"
#include "ui/page/BoxLabels.h"
#include "ui/page/GroupFrames.h"
#include "ui/page/HandleFrame.h"
#include "ui/page/PageTool.h"
#include "ui/page/RectItem.h"

namespace tavrene::ui {

class GridTool;
class ImageView;

/// The rectangles over the page, one a group. Editable ones can be selected, moved, resized and drawn anew:
/// the layer shows them and tells of what the person does with them; where a box really is, the listener
/// decides by putting it there.
class BoxLayer final {
  public:
    struct Listener {
        std::function<void(const imaging::RectReport&)> selected;  ///< Also after a move and for a new one.
        std::function<void(int group)> moved;                      ///< Moved or resized; told first.

        /// Clicked with Ctrl or Shift.
        std::function<void(int group, profiles::Pick pick)> picked;

        /// A frame was drawn around boxes; they are further ones, or alone.
        std::function<void(const imaging::PageRect& area, bool isFurther)> framed;

        /// All that are marked were moved together, by whole pixels; or copies of them, with Ctrl.
        std::function<void(int dx, int dy)> movedTogether;
        std::function<void(int dx, int dy)> copied;
    };

    /// The view owns the layer and the items in its scene.
    explicit BoxLayer(ImageView& view);
    ~BoxLayer();

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    /// Whether the tools act.
    void SetEditable(bool editable);
    imaging::BoxTool Tool() const { return tool_; }

    // What the view does for `imaging::PageScreen`.

    void Put(int group, const imaging::PageRect& rect, imaging::RectStyle style);
    void Remove(int group);
    void Clear();
    void Emphasise(int group);
    void Mark(std::span<const int> groups, int current);
    void SetTool(imaging::BoxTool tool, int nextGroup);
    bool IsEmpty() const { return boxes_.empty(); }

    /// Shows names at their boxes instead of those that are shown; none where it is given none.
    void ShowLabels(std::map<int, BoxLabel> labels);
    QString LabelOf(int group) const { return labels_->TextOf(group); }

    /// Frames around groups of boxes instead of those that are shown; none where it is given none.
    void ShowGroups(std::vector<GroupFrame> frames);
    const std::vector<GroupFrame>& Groups() const { return groups_->Frames(); }

    /// Lets the person draw the first and the last box of a grid, once, instead of using the tool.
    void DrawGrid(const std::function<void(const QRectF& first, const QRectF& last)>& drawn);
    void EndGrid();

    // For the tools; rectangles and points in the page frame.

    /// How many pixels of the screen one pixel of the page takes.
    double Scale() const;

    /// Where a box of this size goes that is to stand around a point: on whole pixels of the page, and below
    /// whatever stands there already, as long as there is room.
    QRectF FreePlace(const QPointF& centre, const QSizeF& size) const;

    /// The point on whole pixels of the page.
    QPointF Snapped(const QPointF& point, const QRectF& place = {}) const;

    /// The way in whole pixels that a place can be moved: not off the page or, where it lies beside it, not
    /// further.
    QPointF Way(const QRectF& place, const QPointF& by) const;

    /// The box at a point, the smallest where several lie over each other; 0 for none.
    int BoxAt(const QPointF& point) const;

    /// Whether a point lies within a box, and not only near it.
    bool HasBoxUnder(const QPointF& point) const;
    int SelectedBox() const { return selected_; }

    /// The marked boxes, where they are several that can be moved; their numbers and the room they take.
    bool HasSeveral() const { return marked_.size() > 1; }
    bool IsMarked(int group) const { return group == selected_ || marked_.contains(group); }
    QRectF PlaceOfMarked() const;

    /// Shows the marked boxes moved without telling of it.
    void ShowMarkedAt(const QPointF& by);

    /// Whether a box can be moved and resized; any other is told of when it is clicked.
    bool IsEditable(int group) const;
    int NextGroup() const { return nextGroup_; }

    /// Where a box is shown; an empty rectangle for one that is not there.
    QRectF PlaceOf(int group) const;

    /// Shows a box elsewhere without telling of it.
    void ShowAt(int group, const QRectF& place);

    /// Shows the rectangle that is being drawn; an empty one hides it.
    void ShowDrawn(const QRectF& rect);

    void TellSelected(int group, const QRectF& place);
    void TellMoved(int group);
    void TellPicked(int group, profiles::Pick pick) { listener_.picked(group, pick); }
    void TellFramed(const QRectF& area, bool isFurther);
    void TellMovedTogether(const QPointF& by, bool areCopies);

  private:
    struct Shown {
        RectItem* item;
        QRectF place;
        imaging::RectStyle style;
    };
    void Mark(int group) { Mark({}, group); }
    /// Where boxes are put: the page, or every place that a document can hold while there is none.
    QRectF Room() const;

    ImageView& view_;
    Listener listener_;
    QGraphicsItemGroup* items_;  ///< Parent of all rectangles, so that they go in one step.
    std::map<int, Shown> boxes_;
    HandleFrame* frame_;
    BoxLabels* labels_;
    GroupFrames* groups_;
    std::unique_ptr<GridTool> grid_;
    QGraphicsRectItem* drawn_;
    std::map<imaging::BoxTool, std::unique_ptr<PageTool>> tools_;
    imaging::BoxTool tool_ = imaging::BoxTool::Select;
    bool editable_ = false;
    int selected_ = 0;
    std::set<int> marked_;  ///< Where several are, all of them.
    int nextGroup_ = 1;
};

}  // namespace tavrene::ui
