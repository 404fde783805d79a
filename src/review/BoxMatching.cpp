#include "review/BoxMatching.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <string_view>

namespace tavrene::review {
namespace {

using profiles::PrintedBox;
using profiles::ProfileRecord;
using recognition::BoxShift;
using recognition::ResultMark;

// The square of the distance between two boxes' middles, times four.
long long Apart(const PrintedBox& a, const PrintedBox& b) {
    const long long dx = a.L + a.R - b.L - b.R;
    const long long dy = a.lower + a.upper - b.lower - b.upper;
    return dx * dx + dy * dy;
}

using Shifts = std::vector<std::optional<BoxShift>>;

// Both profiles' boxes at one resolution; a profile without one is taken at the other's.
double ScaleTo(std::int16_t to, std::int16_t from) {
    return to > 0 && from > 0 ? static_cast<double>(to) / from : 1;
}

// Whether the middle of a box of `profile` lies in a box of `old`.
bool IsAtPlaceOf(const ProfileRecord& profile, const PrintedBox& box, const ProfileRecord& old,
                 const PrintedBox& oldBox) {
    const double x = (box.L + box.R) / 2.0 * ScaleTo(old.DPI_X, profile.DPI_X);
    const double y = (box.upper + box.lower) / 2.0 * ScaleTo(old.DPI_Y, profile.DPI_Y);
    return x >= oldBox.L && x <= oldBox.R && y >= oldBox.upper && y <= oldBox.lower;
}

Shifts ShiftsByName(const ProfileRecord& profile, std::span<const ResultMark> marks) {
    Shifts shifts;
    for (const std::optional<std::size_t> mark : MarksOfBoxes(profile, marks))
        shifts.push_back(mark ? marks[*mark].Shift : std::nullopt);
    return shifts;
}

void AddShiftsByPlace(Shifts& shifts, const ProfileRecord& profile, const ProfileRecord& old,
                      std::span<const ResultMark> marks) {
    const Shifts known = ShiftsByName(old, marks);
    for (std::size_t k = 0; k < shifts.size(); ++k)
        for (std::size_t n = 0; n < known.size() && !shifts[k]; ++n)
            if (known[n] && IsAtPlaceOf(profile, profile.Boxes[k], old, old.Boxes[n]))
                shifts[k] = known[n];
}

void AddShiftsByOrder(Shifts& shifts, std::span<const ResultMark> marks) {
    for (std::size_t k = 0; k < std::min(shifts.size(), marks.size()); ++k)
        if (!shifts[k])
            shifts[k] = marks[k].Shift;
}

// That of the nearest box that has one; without such a box any of the document is better than none.
BoxShift NearestShift(const ProfileRecord& profile, std::span<const std::optional<BoxShift>> known,
                      std::span<const ResultMark> marks, std::size_t index) {
    std::optional<std::size_t> nearest;
    for (std::size_t k = 0; k < known.size(); ++k) {
        if (known[k] && (!nearest || Apart(profile.Boxes[k], profile.Boxes[index]) <
                                         Apart(profile.Boxes[*nearest], profile.Boxes[index])))
            nearest = k;
    }
    if (nearest)
        return *known[*nearest];
    const auto any = std::find_if(marks.begin(), marks.end(),
                                  [](const ResultMark& mark) { return mark.Shift.has_value(); });
    return any == marks.end() ? BoxShift{} : *any->Shift;
}

}  // namespace

std::vector<std::optional<std::size_t>> MarksOfBoxes(const ProfileRecord& profile,
                                                     std::span<const ResultMark> marks) {
    std::map<std::string_view, std::deque<std::size_t>> free;
    for (std::size_t k = 0; k < marks.size(); ++k)
        free[marks[k].Name].push_back(k);
    std::vector<std::optional<std::size_t>> found;
    for (const PrintedBox& box : profile.Boxes) {
        const auto entry = free.find(box.Name);
        if (entry == free.end() || entry->second.empty()) {
            found.emplace_back(std::nullopt);
            continue;
        }
        found.emplace_back(entry->second.front());
        entry->second.pop_front();
    }
    return found;
}

std::vector<BoxShift> ShiftsOfBoxes(const ProfileRecord& profile, const ProfileRecord& old,
                                    std::span<const ResultMark> marks) {
    Shifts known = ShiftsByName(profile, marks);
    AddShiftsByPlace(known, profile, old, marks);
    AddShiftsByOrder(known, marks);
    std::vector<BoxShift> shifts;
    for (std::size_t k = 0; k < known.size(); ++k)
        shifts.push_back(known[k] ? *known[k] : NearestShift(profile, known, marks, k));
    return shifts;
}

}  // namespace tavrene::review
