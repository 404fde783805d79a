#include "review/BoxMatching.h"

#include <deque>
#include <map>
#include <string_view>

namespace tavrene::review {
namespace {

using profiles::PrintedBox;
using recognition::BoxShift;
using recognition::ResultMark;

// The square of the distance between two boxes' middles, times four.
long long Apart(const PrintedBox& a, const PrintedBox& b) {
    const long long dx = a.L + a.R - b.L - b.R;
    const long long dy = a.lower + a.upper - b.lower - b.upper;
    return dx * dx + dy * dy;
}

BoxShift NearestShift(const profiles::ProfileRecord& profile, std::span<const std::optional<BoxShift>> known,
                      std::size_t index) {
    std::optional<std::size_t> nearest;
    for (std::size_t k = 0; k < known.size(); ++k) {
        if (known[k] && (!nearest || Apart(profile.Boxes[k], profile.Boxes[index]) <
                                         Apart(profile.Boxes[*nearest], profile.Boxes[index])))
            nearest = k;
    }
    return nearest ? *known[*nearest] : BoxShift{};
}

}  // namespace

std::vector<std::optional<std::size_t>> MarksOfBoxes(const profiles::ProfileRecord& profile,
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

std::vector<BoxShift> ShiftsOfBoxes(const profiles::ProfileRecord& profile,
                                    std::span<const ResultMark> marks) {
    std::vector<std::optional<BoxShift>> known;
    for (const std::optional<std::size_t> mark : MarksOfBoxes(profile, marks))
        known.push_back(mark ? marks[*mark].Shift : std::nullopt);
    std::vector<BoxShift> shifts;
    for (std::size_t k = 0; k < known.size(); ++k)
        shifts.push_back(known[k] ? *known[k] : NearestShift(profile, known, k));
    return shifts;
}

}  // namespace tavrene::review
