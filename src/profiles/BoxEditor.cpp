#include "profiles/BoxEditor.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "app/Numeric.h"
#include "profiles/OmrsOfBoxes.h"

namespace tavrene::profiles {
namespace {

using imaging::BoxTool;
using imaging::RectReport;

constexpr int kRowsBetweenRepaints = 50;

// A document written by hand may have the edges of a box in the other order; it stands at the same place.
imaging::PageRect PlaceOf(const OmrBox& box) {
    return {static_cast<double>(std::min(box.L, box.R)), static_cast<double>(std::min(box.T, box.B)),
            std::abs(static_cast<double>(box.R - box.L)), std::abs(static_cast<double>(box.B - box.T))};
}

bool IsSamePlace(const OmrBox& a, const OmrBox& b) {
    return PlaceOf(a) == PlaceOf(b);
}

std::string RowText(const OmrBox& box, int number) {
    return box.Name.empty() ? UnnamedBox(number) : box.Name;
}

// Moves two opposite sides, but neither off the page, whose extent is 0 where it is not known. A box that
// lies beside it can still come back.
void MoveSides(std::int16_t& a, std::int16_t& b, int by, int extent) {
    const int last = extent > 0 ? extent : std::numeric_limits<std::int16_t>::max();
    by = std::clamp(by, std::min(0, -std::min(a, b)), std::max(0, last - std::max(a, b)));
    a = static_cast<std::int16_t>(a + by);
    b = static_cast<std::int16_t>(b + by);
}

// Moves the farther one of two opposite sides.
void MoveFarSide(std::int16_t& a, std::int16_t& b, int by, int extent) {
    const int last = extent > 0 ? extent : std::numeric_limits<std::int16_t>::max();
    std::int16_t& farther = a > b ? a : b;
    farther =
        static_cast<std::int16_t>(std::clamp(farther + by, std::min(a, b) + 1, std::max<int>(farther, last)));
}

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
    profile_.CurrentBox = 0;
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
    screen_.rows.PutRow(number, {RowText(Box(number), number)});
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

void BoxEditor::Select(int number) {
    profile_.CurrentBox = number;
    screen_.page.Emphasise(number);
    screen_.rows.SelectRow(number);
}

void BoxEditor::RowClicked(int number) {
    if (IsKept(profile_, number))
        Select(number);
}

void BoxEditor::RowRenamed(int number, const std::string& name) {
    if (!profile_.IsOpen || !IsKept(profile_, number) || Box(number).Name == name)
        return;
    BoxEdit edit{number, Box(number), Box(number), profile_.Count, profile_.Count};
    edit.after->Name = name;
    Box(number).Name = name;
    Record(std::move(edit));
}

void BoxEditor::StoreCoordinates(const RectReport& report, OmrBox& box) const {
    const double scale = 100 / screen_.page.Zoom();
    const imaging::ScrollOffset scroll = screen_.page.Scroll();
    box.L = app::RoundToInt16((scroll.x + report.left) * scale);
    box.T = app::RoundToInt16((scroll.y + report.top) * scale);
    box.R = app::RoundToInt16((scroll.x + report.left + report.width) * scale);
    box.B = app::RoundToInt16((scroll.y + report.top + report.height) * scale);
}

bool BoxEditor::AddDrawnBox(const RectReport& report) {
    if (!HasSize(report) || profile_.Count == std::numeric_limits<std::int16_t>::max()) {
        screen_.page.RemoveRect(report.group);
        return false;
    }
    OmrBox box;
    int number = report.group;
    box.Name = FreeName(number);
    StoreCoordinates(report, box);
    profile_.BoxList.push_back(box);
    const std::int16_t before = profile_.Count++;
    PutBox(report.group);
    SetNextBox(report.group + 1);
    Record({report.group, std::nullopt, box, before, profile_.Count});
    return true;
}

void BoxEditor::RectSelected(const RectReport& report) {
    const bool isDrawn =
        tool_ == BoxTool::Add && static_cast<std::size_t>(report.group) == profile_.BoxList.size() + 1;
    if (isDrawn && (!MayStore() || !AddDrawnBox(report)))
        return;
    if (!IsKept(profile_, report.group))
        return;
    profile_.CurrentBox = report.group;
    screen_.rows.SelectRow(report.group);
    if (isDrawn || !HasSize(report) || !MayStore())
        return;
    OmrBox after = Box(report.group);
    StoreCoordinates(report, after);
    ChangePlace(report.group, after);
}

void BoxEditor::ChangePlace(int number, const OmrBox& after) {
    if (IsSamePlace(Box(number), after))
        return;
    BoxEdit edit{number, Box(number), after, profile_.Count, profile_.Count};
    Box(number) = after;
    screen_.page.PutRect(number, PlaceOf(after), imaging::RectStyle::Editable);
    Record(std::move(edit));
}

void BoxEditor::DrawBox(const imaging::PageRect& place) {
    const int number = static_cast<int>(profile_.BoxList.size()) + 1;
    if (MayStore() &&
        AddDrawnBox(imaging::ReportOf(number, place, screen_.page.Zoom(), screen_.page.Scroll())))
        Select(number);
}

// Counts `number` up behind the first one that names no box: a saved profile is numbered anew, so a box may
// have the name of another one's number.
std::string BoxEditor::FreeName(int& number) const {
    const auto isTaken = [this](const std::string& name) {
        return std::any_of(profile_.BoxList.begin(), profile_.BoxList.end(),
                           [&](const OmrBox& box) { return box.Checked && box.Name == name; });
    };
    while (isTaken(UnnamedBox(number)))
        ++number;
    return UnnamedBox(number++);
}

bool BoxEditor::AddBoxes(const std::vector<OmrBox>& boxes) {
    const std::size_t room =
        static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max() - profile_.Count);
    if (!MayStore() || boxes.empty() || boxes.size() > room)
        return false;
    BoxEdit edit{0, {}, {}, profile_.Count, {}, profile_.BoxList, profile_.BoxList};
    int number = static_cast<int>(profile_.BoxList.size()) + 1;
    for (OmrBox box : boxes) {
        box.Name = FreeName(number);
        const auto place = std::find_if(edit.listAfter.begin(), edit.listAfter.end(),
                                        [&](const OmrBox& other) { return StandsBefore(box, other); });
        edit.listAfter.insert(place, std::move(box));
    }
    edit.countAfter = static_cast<std::int16_t>(profile_.Count + static_cast<int>(boxes.size()));
    TakeList(edit.listAfter, edit.countAfter);
    Record(std::move(edit));
    const auto first = std::find_if(profile_.BoxList.begin(), profile_.BoxList.end(), [&](const OmrBox& box) {
        return box.Checked && IsSamePlace(box, boxes.front());
    });
    Select(static_cast<int>(first - profile_.BoxList.begin()) + 1);
    return true;
}

// The numbers of all boxes may be others then.
void BoxEditor::TakeList(const std::vector<OmrBox>& list, std::int16_t count) {
    for (int number = 1; number <= static_cast<int>(profile_.BoxList.size()); ++number)
        screen_.page.RemoveRect(number);
    screen_.rows.ClearRows(BoxColumns::Name);
    profile_.BoxList = list;
    profile_.Count = count;
    for (int number = 1; number <= static_cast<int>(profile_.BoxList.size()); ++number) {
        if (IsKept(profile_, number))
            PutBox(number);
    }
    SetNextBox(static_cast<int>(profile_.BoxList.size()) + 1);
    Select(NextKept(0));
}

void BoxEditor::RectMoved(int group) {
    if (MayStore() && IsKept(profile_, group))
        profile_.ProfileChanged = true;
}

int BoxEditor::NextKept(int number) const {
    const int last = static_cast<int>(profile_.BoxList.size());
    for (int next = number + 1; next <= last; ++next) {
        if (IsKept(profile_, next))
            return next;
    }
    for (int next = 1; next <= last; ++next) {
        if (IsKept(profile_, next))
            return next;
    }
    return 0;
}

void BoxEditor::DeleteBox() {
    const int number = profile_.CurrentBox;
    if (!profile_.IsOpen || !IsKept(profile_, number))
        return;
    BoxEdit edit{number, Box(number), Box(number), profile_.Count, profile_.Count};
    edit.after->Checked = false;
    edit.countAfter = app::Max(0, static_cast<std::int16_t>(profile_.Count - 1));
    Box(number).Checked = false;
    profile_.Count = edit.countAfter;
    Record(std::move(edit));
    screen_.page.RemoveRect(number);
    screen_.rows.RemoveRow(number);
    Select(profile_.Count >= 1 ? NextKept(number) : 0);
}

void BoxEditor::Nudge(int dx, int dy) {
    const int number = profile_.CurrentBox;
    if (!MayStore() || !IsKept(profile_, number))
        return;
    OmrBox box = Box(number);
    MoveSides(box.L, box.R, dx, profile_.ImageWidth);
    MoveSides(box.T, box.B, dy, profile_.ImageHeight);
    ChangePlace(number, box);
    Select(number);
}

void BoxEditor::Stretch(int dx, int dy) {
    const int number = profile_.CurrentBox;
    if (!MayStore() || !IsKept(profile_, number))
        return;
    OmrBox box = Box(number);
    MoveFarSide(box.L, box.R, dx, profile_.ImageWidth);
    MoveFarSide(box.T, box.B, dy, profile_.ImageHeight);
    ChangePlace(number, box);
    Select(number);
}

void BoxEditor::Undo() {
    if (!CanUndo())
        return;
    const BoxEdit& edit = *history_.StepBack();
    if (edit.number == 0)
        TakeList(edit.listBefore, edit.countBefore);
    else
        TakeState(edit.number, edit.before, edit.countBefore);
    profile_.ProfileChanged = !history_.IsSavedState();
}

void BoxEditor::Redo() {
    if (!CanRedo())
        return;
    const BoxEdit& edit = *history_.StepForward();
    if (edit.number == 0)
        TakeList(edit.listAfter, edit.countAfter);
    else
        TakeState(edit.number, edit.after, edit.countAfter);
    profile_.ProfileChanged = !history_.IsSavedState();
}

void BoxEditor::Record(BoxEdit edit) {
    history_.Record(std::move(edit));
    profile_.ProfileChanged = true;
}

// Edits are taken back in reverse order, so an added box that goes is the last of the list.
void BoxEditor::TakeState(int number, const std::optional<OmrBox>& state, std::int16_t count) {
    profile_.BoxList.resize(std::max(profile_.BoxList.size(), static_cast<std::size_t>(number)));
    if (state)
        Box(number) = *state;
    else
        profile_.BoxList.pop_back();
    profile_.Count = count;
    SetNextBox(static_cast<int>(profile_.BoxList.size()) + 1);
    ShowBox(number);
}

void BoxEditor::ShowBox(int number) {
    if (IsKept(profile_, number)) {
        PutBox(number);
        Select(number);
    } else {
        screen_.page.RemoveRect(number);
        screen_.rows.RemoveRow(number);
        Select(NextKept(number));
    }
}

void BoxEditor::ClearChanged() {
    profile_.ProfileChanged = false;
    history_.MarkSaved();
}

}  // namespace tavrene::profiles
