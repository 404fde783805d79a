#include "profiles/GroupEdits.h"

#include <algorithm>
#include <map>
#include <utility>

#include "profiles/BoxCells.h"
#include "profiles/BoxPlace.h"

namespace tavrene::profiles {
namespace {

using Names = std::vector<std::string>;

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
        if (wasKept && isKept && IsSamePlace(*change.before, *change.after) &&
            change.before->Name != change.after->Name)
            renamed[change.before->Name].push_back(change.after->Name);
    }
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
