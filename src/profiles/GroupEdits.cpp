#include "profiles/GroupEdits.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "profiles/BoxCells.h"
#include "profiles/BoxPlace.h"

namespace tavrene::profiles {
namespace {

using Names = std::vector<std::string>;

// What each changed box is called before and after, where it is kept. Boxes that stand where some stood
// before, in whatever order, are the same ones; others go by their numbers.
std::vector<std::pair<std::string, std::string>> RenamesIn(const std::vector<BoxChange>& changes) {
    using Place = std::tuple<double, double, double, double>;
    const auto placeOf = [](const OmrBox& box) {
        const imaging::PageRect place = PlaceOf(box);
        return Place(place.left, place.top, place.width, place.height);
    };
    std::map<Place, std::string> before;
    std::map<Place, std::string> after;
    std::vector<std::pair<std::string, std::string>> renames;
    for (const BoxChange& change : changes) {
        const bool wasKept = change.before && change.before->Checked;
        const bool isKept = change.after && change.after->Checked;
        if (wasKept)
            before[placeOf(*change.before)] = change.before->Name;
        if (isKept)
            after[placeOf(*change.after)] = change.after->Name;
        if (wasKept && isKept && IsSamePlace(*change.before, *change.after))
            renames.emplace_back(change.before->Name, change.after->Name);
    }
    const auto wereKept = [](const BoxChange& change) { return change.before && change.before->Checked; };
    const auto isSamePlace = [](const auto& one, const auto& other) { return one.first == other.first; };
    if (static_cast<std::ptrdiff_t>(before.size()) != std::ranges::count_if(changes, wereKept) ||
        !std::ranges::equal(before, after, isSamePlace))
        return renames;
    renames.clear();
    for (const auto& [place, name] : before)
        renames.emplace_back(name, after[place]);
    return renames;
}

// What the boxes of each name are called now. Of two boxes with one name a group has both, so it keeps both
// when one of them gets a name of its own.
std::map<std::string, Names> FollowersOf(const std::vector<BoxChange>& changes,
                                         const std::vector<OmrBox>& boxes) {
    std::map<std::string, int> before;  // how many there were of a name that is still in use
    std::map<std::string, Names> renamed;
    for (const OmrBox& box : boxes)
        if (box.Checked)
            ++before[box.Name];
    const std::map<std::string, int> after = before;
    for (const BoxChange& change : changes) {
        const bool wasKept = change.before && change.before->Checked;
        const bool isKept = change.after && change.after->Checked;
        if (isKept)
            --before[change.after->Name];
        if (wasKept)
            ++before[change.before->Name];
    }
    for (const auto& [was, is] : RenamesIn(changes))
        if (was != is)
            renamed[was].push_back(is);
    std::map<std::string, Names> followers = renamed;
    for (const auto& [name, count] : after)
        if (const auto gone = renamed.find(name);
            gone == renamed.end() || static_cast<int>(gone->second.size()) < before[name])
            followers[name].insert(followers[name].begin(), name);
    return followers;
}

void DropEmpty(std::vector<BoxGroup>& groups) {
    std::erase_if(groups, [](const BoxGroup& group) { return group.Boxes.empty(); });
}

}  // namespace

std::vector<BoxGroup> GroupsAfter(std::vector<BoxGroup> groups, const std::vector<BoxChange>& changes,
                                  const std::vector<OmrBox>& boxes) {
    const std::map<std::string, Names> followers = FollowersOf(changes, boxes);
    for (BoxGroup& group : groups) {
        Names after;
        for (const std::string& name : group.Boxes)
            if (const auto now = followers.find(name); now != followers.end())
                for (const std::string& follower : now->second)
                    if (std::ranges::find(after, follower) == after.end())
                        after.push_back(follower);
        group.Boxes = std::move(after);
    }
    DropEmpty(groups);
    return groups;
}

std::vector<BoxGroup> WithGroup(std::vector<BoxGroup> groups, const BoxGroup& group) {
    groups = WithoutBoxes(std::move(groups), group.Boxes);
    groups.push_back(group);
    return groups;
}

std::vector<BoxGroup> WithoutBoxes(std::vector<BoxGroup> groups, std::span<const std::string> names) {
    for (BoxGroup& group : groups)
        std::erase_if(group.Boxes, [&](const std::string& name) {
            return std::find(names.begin(), names.end(), name) != names.end();
        });
    DropEmpty(groups);
    return groups;
}

std::string NameForGroup(std::span<const std::string> names) {
    if (names.empty())
        return {};
    std::string shared = names.front();
    for (const std::string& name : names)
        shared.resize(static_cast<std::size_t>(
            std::mismatch(shared.begin(), shared.end(), name.begin(), name.end()).first - shared.begin()));
    // Only whole words: "Q1 often" and "Q1 open" share "Q1".
    const auto end = shared == names.front() ? shared.size() : shared.find_last_of(' ');
    shared.resize(end == std::string::npos ? 0 : end);
    return shared.empty() ? names.front() : shared;
}

std::vector<BoxGroup> GroupsByRow(const std::vector<OmrBox>& boxes, std::span<const int> numbers) {
    std::map<int, std::vector<std::string>> rows;
    for (const BoxCell& cell : CellsOf(boxes, numbers, CellOrder::Across))
        rows[cell.row].push_back(boxes[static_cast<std::size_t>(cell.number) - 1].Name);
    std::vector<BoxGroup> groups;
    for (auto& [row, names] : rows)
        if (names.size() > 1)
            groups.push_back({NameForGroup(names), names, Takes::One});
    return groups;
}

}  // namespace tavrene::profiles
