#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Operator.h"
#include "profiles/BoxArrangement.h"
#include "profiles/BoxHistory.h"
#include "profiles/OpenProfile.h"
#include "profiles/ProfileDocument.h"
#include "profiles/ProfileScreen.h"

namespace tavrene::profiles {

/// Corrects the boxes of the open profile through two linked views, the box list and the image view. Every
/// edit marks the profile as changed and can be taken back. Without an open profile nothing acts.
class BoxEditor {
  public:
    /// The references must outlive the editor.
    BoxEditor(OpenProfile& profile, app::Operator& person, const ProfileScreen& screen);

    /// Takes all boxes off the screen and out of the profile, and forgets the edits.
    void Clear();

    /// Fills the box list, its rows and the image view from what the document holds; the view is at zoom 100.
    void BuildBoxList(const ProfileContent& content);

    void SetTool(imaging::BoxTool tool);

    /// `place` has the last word on where a box stands that is drawn or moved by the mouse.
    void SetPlacing(std::function<imaging::PageRect(const imaging::PageRect&)> place) {
        placing_ = std::move(place);
    }

    /// Events of the box list and the image view.
    void RowClicked(int number, Pick pick = Pick::Only);
    void RowRenamed(int number, const std::string& name);
    void RectSelected(const imaging::RectReport& report);
    void RectMoved(int group);

    /// A box of the page was picked beside others; a span holds the boxes between it and the anchor.
    void RectPicked(int group, Pick pick);

    /// The boxes in a rectangle of the page were picked, as further ones or alone; without any nothing
    /// changes.
    void AreaPicked(const imaging::PageRect& area, bool isFurther);

    /// Puts boxes among the others, each where sorting from the top of the page down and from left to right
    /// puts it, as one edit. They get names that no other box has; the first one becomes current. False when
    /// there is no room for all, or none to add; nothing is changed then.
    bool AddBoxes(const std::vector<OmrBox>& boxes);

    /// Deletes the selected boxes; the next one that is left becomes current.
    void DeleteBox();

    /// Moves the selected boxes by whole pixels of the image, to the right and down, but not off the page.
    /// While a key is held its steps are one edit.
    void Nudge(int dx, int dy, bool isHeld = false);

    /// Changes the boxes, of which at most the end of the list may come or go, as one edit, and selects
    /// others or the same. False when nothing is changed by it, or there is no room for so many boxes.
    bool Change(const std::function<void(std::vector<OmrBox>&)>& change,
                const std::optional<BoxSelection>& selected = {});

    /// Moves their right and lower sides instead, each by itself.
    void Stretch(int dx, int dy, bool isHeld = false);

    /// Puts a box at a place of the page, as if it had been drawn there, whatever the tool.
    void DrawBox(const imaging::PageRect& place);

    /// Sets which boxes belong together, or lets their names tell it, as one edit.
    void SetGroups(std::optional<std::vector<BoxGroup>> groups);

    void Undo();
    void Redo();
    bool CanUndo() const { return profile_.IsOpen && history_.CanStepBack(); }
    bool CanRedo() const { return profile_.IsOpen && history_.CanStepForward(); }

    /// The boxes at hand are saved, or their changes given up.
    void ClearChanged();

    /// Selects boxes in both views.
    void Select(const BoxSelection& selected);
    void Select(int number) { Select(BoxSelection(number)); }

  private:
    OmrBox& Box(int number) { return profile_.BoxList[static_cast<std::size_t>(number) - 1]; }
    bool MayStore() const { return profile_.IsOpen; }
    bool AddDrawnBox(const imaging::RectReport& report);
    using KeyStep = void (*)(std::vector<OmrBox>&, const BoxSelection&, int, int, PageExtent);
    void ChangeByKey(KeyStep step, int dx, int dy, bool isHeld);
    void StoreCoordinates(const imaging::RectReport& report, OmrBox& box) const;
    void Place(OmrBox& box) const;
    bool HasRoomFor(std::size_t boxes) const;
    BoxEdit EditTo(const std::vector<OmrBox>& after, BoxSelection selected) const;
    void Apply(BoxEdit edit);
    void Remember(BoxEdit edit);
    void Take(const std::vector<BoxChange>& changes, bool isForward, std::int16_t count);
    void ShowChange(int number, const std::optional<OmrBox>& from, const std::optional<OmrBox>& to);
    void MarkSelected(const BoxSelection& selected);
    void PutBox(int number);
    void SetNextBox(int number);

    OpenProfile& profile_;
    app::Operator& person_;
    ProfileScreen screen_;
    BoxHistory history_;
    std::function<imaging::PageRect(const imaging::PageRect&)> placing_;
    imaging::BoxTool tool_ = imaging::BoxTool::Select;
};

}  // namespace tavrene::profiles
