#pragma once

#include <functional>
#include <string>

#include "app/Operator.h"
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

    /// Events of the box list and the image view.
    void RowClicked(int number);
    void RowRenamed(int number, const std::string& name);
    void RectSelected(const imaging::RectReport& report);
    void RectMoved(int group);

    /// Puts boxes among the others, each where sorting from the top of the page down and from left to right
    /// puts it, as one edit. They get names that no other box has; the first one becomes current. False when
    /// there is no room for all, or none to add; nothing is changed then.
    bool AddBoxes(const std::vector<OmrBox>& boxes);

    /// Deletes the current box; the next one that is left becomes current.
    void DeleteBox();

    /// Moves the current box by whole pixels of the image, to the right and down, but not off the page.
    void Nudge(int dx, int dy);

    /// Moves the right and the lower side of the current box alone; it keeps a width and height of at least
    /// one pixel and stays on the page.
    void Stretch(int dx, int dy);

    /// Puts a box at a place of the page, as if it had been drawn there, whatever the tool.
    void DrawBox(const imaging::PageRect& place);

    void Undo();
    void Redo();
    bool CanUndo() const { return profile_.IsOpen && history_.CanStepBack(); }
    bool CanRedo() const { return profile_.IsOpen && history_.CanStepForward(); }

    /// The boxes at hand are saved, or their changes given up.
    void ClearChanged();

    /// Selects a box in both views and makes it current.
    void Select(int number);

  private:
    OmrBox& Box(int number) { return profile_.BoxList[static_cast<std::size_t>(number) - 1]; }
    bool MayStore() const { return profile_.IsOpen; }
    bool AddDrawnBox(const imaging::RectReport& report);
    void ChangePlace(int number, const OmrBox& after);
    void StoreCoordinates(const imaging::RectReport& report, OmrBox& box) const;
    std::string FreeName(int& number) const;
    void TakeList(const std::vector<OmrBox>& list, std::int16_t count);
    int NextKept(int number) const;
    void Record(BoxEdit edit);
    void TakeState(int number, const std::optional<OmrBox>& state, std::int16_t count);
    void ShowBox(int number);
    void PutBox(int number);
    void SetNextBox(int number);

    OpenProfile& profile_;
    app::Operator& person_;
    ProfileScreen screen_;
    BoxHistory history_;
    imaging::BoxTool tool_ = imaging::BoxTool::Select;
};

}  // namespace tavrene::profiles
