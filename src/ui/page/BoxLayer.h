#pragma once

#include <QGraphicsRectItem>
#include <functional>
#include <map>
#include <memory>

#include "profiles/EditorScreen.h"
#include "ui/page/HandleFrame.h"
#include "ui/page/PageTool.h"
#include "ui/page/RectItem.h"

namespace tavrene::ui {

class ImageView;

/// The boxes over the page that can be selected, moved, resized and drawn anew. It shows them and tells of
/// what the person does with them; where a box really is, the listener decides by putting it there.
class BoxLayer final : public profiles::EditableBoxes {
  public:
    struct Listener {
        std::function<void(const profiles::RectReport&)> selected;  ///< Also after a move and for a new one.
        std::function<void(int group)> moved;                       ///< Moved or resized; told first.
    };

    /// The view owns the layer and the items in its scene.
    explicit BoxLayer(ImageView& view);
    ~BoxLayer() override;

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    /// Whether the tools act.
    void SetEditable(bool editable);
    profiles::BoxTool Tool() const { return tool_; }

    /// Forgets all boxes.
    void Clear();

    void PutBox(int group, const imaging::PageRect& box) override;
    void RemoveBox(int group) override;
    void SelectBox(int group) override;
    void SetTool(profiles::BoxTool tool) override;
    void SetNextGroup(int group) override { nextGroup_ = group; }
    profiles::ScrollOffset Scroll() const override;

    // For the tools; rectangles and points in the page frame.

    /// Pixels of the screen an image pixel.
    double Scale() const;

    /// The point on whole pixels of the page.
    QPointF Snapped(const QPointF& point, const QRectF& place = {}) const;

    /// The place moved by whole pixels, not off the page or, of one that lies beside it, not further.
    QRectF Moved(const QRectF& place, const QPointF& by) const;

    /// The box at a point, the smallest where several lie over each other; 0 for none.
    int BoxAt(const QPointF& point) const;
    int SelectedBox() const { return selected_; }
    int NextGroup() const { return nextGroup_; }

    /// Where a box is shown; an empty rectangle for one that is not there.
    QRectF PlaceOf(int group) const;

    /// Shows a box elsewhere without telling of it.
    void ShowAt(int group, const QRectF& place);

    /// Shows the rectangle that is being drawn; an empty one hides it.
    void ShowDrawn(const QRectF& rect);

    void TellSelected(int group, const QRectF& place);
    void TellMoved(int group);

  private:
    struct Shown {
        RectItem* item;
        QRectF place;
    };
    void Mark(int group);

    /// Where boxes are put: the page, or every place that a document can hold while there is none.
    QRectF Room() const;

    ImageView& view_;
    Listener listener_;
    std::map<int, Shown> boxes_;
    HandleFrame* frame_;
    QGraphicsRectItem* drawn_;
    std::map<profiles::BoxTool, std::unique_ptr<PageTool>> tools_;
    profiles::BoxTool tool_ = profiles::BoxTool::Select;
    bool editable_ = false;
    int selected_ = 0;
    int nextGroup_ = 1;
};

}  // namespace tavrene::ui
