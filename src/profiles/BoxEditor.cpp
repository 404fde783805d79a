#include "profiles/BoxEditor.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "app/Numeric.h"
#include "profiles/BoxArrangement.h"
#include "profiles/BoxPlace.h"
#include "profiles/OmrsOfBoxes.h"

namespace tavrene::profiles {
namespace {

using imaging::BoxTool;
using imaging::RectReport;

constexpr int kRowsBetweenRepaints = 50;

// From the top of the page down by the lower edge, and from left to right, as boxes that were found stand.
bool StandsBefore(const OmrBox& a, const OmrBox& b) {
    return a.B != b.B ? a.B < b.B : a.L < b.L;
}

bool HasSize(const RectReport& report) {
    return report.width + report.height > 0;
}

}  // namespace

BoxEditor::BoxEditor(OpenProfile& profile, app::Operator& person, const ProfileScreen& screen)
    : profile_(profile), person_(person), screen_(screen) {}

void BoxEditor::Clear() {
    screen_.rows.ClearRows(BoxColumns::Name);
    screen_.page.ClearRects();
    profile_.BoxList.clear();
    profile_.Count = 0;
    profile_.Selected = {};
    profile_.NextBoxId = 1;
    ClearChanged();
    history_.Clear();
}

void BoxEditor::BuildBoxList(const ProfileContent& content) {
    Clear();
    profile_.BoxList = content.Boxes;
    profile_.Count = content.Count;
    person_.SetProgressRange(std::max<int>(content.Count, 0));
    const int last = static_cast<int>(profile_.BoxList.size());
    for (int number = 1; number <= last; ++number) {
        PutBox(number);
        person_.SetProgress(number);
        if (number % kRowsBetweenRepaints == 0)
            screen_.rows.RefreshRows();
    }
    screen_.rows.RefreshRows();
    person_.SetProgress(0);
    SetNextBox(last + 1);
}

void BoxEditor::PutBox(int number) {
    screen_.rows.PutRow(number, {ShownName(Box(number), number)});
    screen_.page.PutRect(number, PlaceOf(Box(number)), imaging::RectStyle::Editable);
}

void BoxEditor::SetNextBox(int number) {
    profile_.NextBoxId = number;
    screen_.page.SetTool(tool_, number);
}

void BoxEditor::SetTool(BoxTool tool) {
    tool_ = tool;
    screen_.page.SetTool(tool_, profile_.NextBoxId);
}

void BoxEditor::Select(const BoxSelection& selected) {
    screen_.page.Emphasise(selected.Current());
    MarkSelected(selected);
}

// The page stays where it is under the pointer.
void BoxEditor::MarkSelected(const BoxSelection& selected) {
    profile_.Selected = selected;
    if (selected.HasSeveral()) {
        screen_.page.Mark(selected.Numbers(), selected.Current());
        screen_.rows.SelectRows(selected.Numbers(), selected.Current());
    } else {
        screen_.rows.SelectRow(selected.Current());
    }
}

void BoxEditor::RowClicked(int number, Pick pick) {
    if (!IsKept(profile_, number))
        return;
    const BoxSelection& selected = profile_.Selected;
    if (pick == Pick::Only || selected.IsEmpty()) {
        Select(number);
    } else if (pick == Pick::Toggle) {
        Select(selected.Toggled(number));
    } else {
        std::vector<int> numbers = KeptNumbers(profile_.BoxList);
        const int first = std::min(selected.Anchor(), number);
        const int last = std::max(selected.Anchor(), number);
        std::erase_if(numbers, [first, last](int other) { return other < first || other > last; });
        Select(selected.Spanning(std::move(numbers), number));
    }
}

void BoxEditor::RectPicked(int group, Pick pick) {
    if (!IsKept(profile_, group))
        return;
    const BoxSelection& selected = profile_.Selected;
    if (pick == Pick::Toggle && !selected.IsEmpty())
        MarkSelected(selected.Toggled(group));
    else if (pick == Pick::Span && IsKept(profile_, selected.Anchor()))
        MarkSelected(selected.Spanning(
            BoxesWithin(profile_.BoxList, SpanOf(Box(selected.Anchor()), Box(group))), group));
    else
        MarkSelected(BoxSelection(group));
    screen_.page.Mark(profile_.Selected.Numbers(), profile_.Selected.Current());
}

void BoxEditor::AreaPicked(const imaging::PageRect& area, bool isFurther) {
    const std::vector<int> numbers = BoxesWithin(profile_.BoxList, area);
    if (numbers.empty())
        return;
    MarkSelected(isFurther ? profile_.Selected.With(numbers) : BoxSelection(numbers, numbers.front()));
    screen_.page.Mark(profile_.Selected.Numbers(), profile_.Selected.Current());
}

// The row shows the name as it was typed, also an empty one.
void BoxEditor::RowRenamed(int number, const std::string& name) {
    if (!profile_.IsOpen || !IsKept(profile_, number) || Box(number).Name == name)
        return;
    std::vector<OmrBox> after = profile_.BoxList;
    after[static_cast<std::size_t>(number) - 1].Name = name;
    BoxEdit edit = EditTo(after, BoxSelection(number));
    edit.selectedBefore = edit.selectedAfter;
    Box(number).Name = name;
    Remember(std::move(edit));
}

void BoxEditor::StoreCoordinates(const RectReport& report, OmrBox& box) const {
    const double scale = 100 / screen_.page.Zoom();
    const imaging::ScrollOffset scroll = screen_.page.Scroll();
    box.L = app::RoundToInt16((scroll.x + report.left) * scale);
    box.T = app::RoundToInt16((scroll.y + report.top) * scale);
    box.R = app::RoundToInt16((scroll.x + report.left + report.width) * scale);
    box.B = app::RoundToInt16((scroll.y + report.top + report.height) * scale);
}

void BoxEditor::Place(OmrBox& box) const {
    if (placing_)
        PutAt(box, placing_(PlaceOf(box)));
}

bool BoxEditor::AddDrawnBox(const RectReport& report) {
    if (!HasSize(report) || profile_.Count == std::numeric_limits<std::int16_t>::max()) {
        screen_.page.RemoveRect(report.group);
        return false;
    }
    std::vector<OmrBox> after = profile_.BoxList;
    OmrBox box;
    box.Name = UnnamedBox(report.group);
    StoreCoordinates(report, box);
    Place(box);
    after.push_back(box);
    Apply(EditTo(after, BoxSelection(report.group)));
    return true;
}

void BoxEditor::RectSelected(const RectReport& report) {
    const bool isDrawn =
        tool_ == BoxTool::Add && static_cast<std::size_t>(report.group) == profile_.BoxList.size() + 1;
    if (isDrawn && (!MayStore() || !AddDrawnBox(report)))
        return;
    if (!IsKept(profile_, report.group))
        return;
    profile_.Selected = BoxSelection(report.group);
    screen_.rows.SelectRow(report.group);
    if (isDrawn || !HasSize(report) || !MayStore())
        return;
    std::vector<OmrBox> after = profile_.BoxList;
    OmrBox& box = after[static_cast<std::size_t>(report.group) - 1];
    StoreCoordinates(report, box);
    if (IsSamePlace(Box(report.group), box))
        return;
    Place(box);
    // It may have come back to where it was, from where the mouse has shown it.
    screen_.page.PutRect(report.group, PlaceOf(box), imaging::RectStyle::Editable);
    if (!IsSamePlace(Box(report.group), box))
        Apply(EditTo(after, profile_.Selected));
}

void BoxEditor::DrawBox(const imaging::PageRect& place) {
    const int number = static_cast<int>(profile_.BoxList.size()) + 1;
    if (MayStore() &&
        AddDrawnBox(imaging::ReportOf(number, place, screen_.page.Zoom(), screen_.page.Scroll())))
        Select(number);
}

bool BoxEditor::AddBoxes(const std::vector<OmrBox>& boxes) {
    if (!MayStore() || boxes.empty() || !HasRoomFor(boxes.size()))
        return false;
    std::vector<OmrBox> after = profile_.BoxList;
    int number = static_cast<int>(after.size()) + 1;
    for (OmrBox box : boxes) {
        box.Name = FreeName(after, number);
        const auto place = std::find_if(after.begin(), after.end(),
                                        [&](const OmrBox& other) { return StandsBefore(box, other); });
        after.insert(place, std::move(box));
    }
    const auto first = std::find_if(after.begin(), after.end(), [&](const OmrBox& box) {
        return box.Checked && IsSamePlace(box, boxes.front());
    });
    Apply(EditTo(after, BoxSelection(static_cast<int>(first - after.begin()) + 1)));
    Select(profile_.Selected);
    return true;
}

void BoxEditor::RectMoved(int group) {
    if (MayStore() && IsKept(profile_, group))
        profile_.ProfileChanged = true;
}

void BoxEditor::DeleteBox() {
    const BoxSelection gone = profile_.Selected;
    if (!profile_.IsOpen || !IsKept(profile_, gone.Current()))
        return;
    std::vector<OmrBox> after = profile_.BoxList;
    for (const int number : gone.Numbers())
        after[static_cast<std::size_t>(number) - 1].Checked = false;
    BoxEdit edit = EditTo(after, {});
    if (edit.countAfter >= 1)
        edit.selectedAfter = BoxSelection(NextKept(after, gone.Numbers().back()));
    Apply(std::move(edit));
    Select(profile_.Selected);
}

void BoxEditor::Nudge(int dx, int dy, bool isHeld) {
    ChangeByKey(Move, dx, dy, isHeld);
}

void BoxEditor::Stretch(int dx, int dy, bool isHeld) {
    ChangeByKey(profiles::Stretch, dx, dy, isHeld);
}

void BoxEditor::ChangeByKey(KeyStep step, int dx, int dy, bool isHeld) {
    const BoxSelection selected = profile_.Selected;
    if (!MayStore() || !IsKept(profile_, selected.Current()))
        return;
    std::vector<OmrBox> after = profile_.BoxList;
    step(after, selected, dx, dy, ExtentOf(profile_));
    BoxEdit edit = EditTo(after, selected);
    edit.isNudge = true;
    if (edit.changes.empty())
        return;
    Take(edit.changes, true, edit.countAfter);
    if (!isHeld || !history_.Continue(edit))
        Remember(std::move(edit));
    screen_.page.Emphasise(selected.Current());
    if (selected.HasSeveral())
        screen_.page.Mark(selected.Numbers(), selected.Current());
}

void BoxEditor::ClearChanged() {
    profile_.ProfileChanged = false;
    history_.MarkSaved();
}

}  // namespace tavrene::profiles
