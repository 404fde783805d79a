// The half of the box editor that makes edits, takes them back and shows them.

#include <algorithm>
#include <limits>
#include <utility>

#include "app/Numeric.h"
#include "profiles/BoxEditor.h"
#include "profiles/BoxPlace.h"
#include "profiles/GroupEdits.h"
#include "profiles/OmrsOfBoxes.h"

namespace tavrene::profiles {

bool BoxEditor::Change(const std::function<void(std::vector<OmrBox>&)>& change,
                       const std::optional<BoxSelection>& selected) {
    if (!MayStore())
        return false;
    std::vector<OmrBox> after = profile_.BoxList;
    change(after);
    BoxEdit edit = EditTo(after, selected.value_or(profile_.Selected));
    const bool isTooMany =
        after.size() > profile_.BoxList.size() && !HasRoomFor(after.size() - profile_.BoxList.size());
    if (edit.changes.empty() || isTooMany)
        return false;
    Apply(std::move(edit));
    Select(profile_.Selected);
    return true;
}

void BoxEditor::Undo() {
    if (!CanUndo())
        return;
    const BoxEdit& edit = *history_.StepBack();
    Take(edit.changes, false, edit.countBefore);
    profile_.Groups = edit.groupsBefore;
    Select(edit.selectedBefore);
    profile_.ProfileChanged = !history_.IsSavedState();
}

void BoxEditor::Redo() {
    if (!CanRedo())
        return;
    const BoxEdit& edit = *history_.StepForward();
    Take(edit.changes, true, edit.countAfter);
    profile_.Groups = edit.groupsAfter;
    Select(edit.selectedAfter);
    profile_.ProfileChanged = !history_.IsSavedState();
}

bool BoxEditor::HasRoomFor(std::size_t boxes) const {
    return boxes <= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max() - profile_.Count);
}

BoxEdit BoxEditor::EditTo(const std::vector<OmrBox>& after, BoxSelection selected) const {
    const int more = static_cast<int>(KeptNumbers(after).size() - KeptNumbers(profile_.BoxList).size());
    BoxEdit edit{ChangesBetween(profile_.BoxList, after),
                 profile_.Count,
                 app::Max(0, app::ClampToInt16(profile_.Count + more)),
                 profile_.Selected,
                 std::move(selected),
                 profile_.Groups,
                 {}};
    if (profile_.Groups)
        edit.groupsAfter = GroupsAfter(*profile_.Groups, edit.changes, after);
    return edit;
}

void BoxEditor::SetGroups(std::optional<std::vector<BoxGroup>> groups) {
    if (!MayStore() || groups == profile_.Groups)
        return;
    BoxEdit edit = EditTo(profile_.BoxList, profile_.Selected);
    edit.groupsAfter = std::move(groups);
    Remember(std::move(edit));
}

void BoxEditor::Apply(BoxEdit edit) {
    Take(edit.changes, true, edit.countAfter);
    profile_.Selected = edit.selectedAfter;
    Remember(std::move(edit));
}

void BoxEditor::Remember(BoxEdit edit) {
    profile_.Groups = edit.groupsAfter;
    history_.Record(std::move(edit));
    profile_.ProfileChanged = true;
}

// What comes or goes is the end of the list, so the list is as long as the last change says.
void BoxEditor::Take(const std::vector<BoxChange>& changes, bool isForward, std::int16_t count) {
    std::vector<OmrBox>& boxes = profile_.BoxList;
    for (const BoxChange& change : changes) {
        const std::optional<OmrBox>& to = isForward ? change.after : change.before;
        const auto index = static_cast<std::size_t>(change.number) - 1;
        boxes.resize(to ? std::max(boxes.size(), index + 1) : std::min(boxes.size(), index));
        if (to)
            boxes[index] = *to;
        ShowChange(change.number, isForward ? change.before : change.after, to);
    }
    profile_.Count = count;
    SetNextBox(static_cast<int>(boxes.size()) + 1);
}

void BoxEditor::ShowChange(int number, const std::optional<OmrBox>& from, const std::optional<OmrBox>& to) {
    const bool wasShown = from && from->Checked;
    if (!to || !to->Checked) {
        screen_.page.RemoveRect(number);
        if (wasShown)
            screen_.rows.RemoveRow(number);
        return;
    }
    if (!wasShown || from->Name != to->Name)
        screen_.rows.PutRow(number, {ShownName(*to, number)});
    if (!wasShown || !IsSamePlace(*from, *to))
        screen_.page.PutRect(number, PlaceOf(*to), imaging::RectStyle::Editable);
}

}  // namespace tavrene::profiles
