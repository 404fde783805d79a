#include "profiles/GroupEdits.h"

#include <algorithm>
#include <map>
#include <set>

#include "profiles/BoxCells.h"
#include "profiles/BoxPlace.h"

namespace tavrene::profiles {
namespace {

void DropEmpty(std::vector<BoxGroup>& groups) {
    std::erase_if(groups, [](const BoxGroup& group) { return group.Boxes.empty(); });
}

}  // namespace

std::vector<BoxGroup> GroupsAfter(std::vector<BoxGroup> groups, const std::vector<BoxChange>& changes,
                                  const std::vector<OmrBox>& boxes) {
    std::map<std::string, std::string> renamed;
    for (const BoxChange& change : changes)
        if (change.before && change.after && change.before->Checked && change.after->Checked &&
            IsSamePlace(*change.before, *change.after) && change.before->Name != change.after->Name)
            renamed[change.before->Name] = change.after->Name;
    std::set<std::string> names;
    for (const OmrBox& box : boxes)
        if (box.Checked)
            names.insert(box.Name);
    for (BoxGroup& group : groups) {
        for (std::string& name : group.Boxes)
            if (const auto now = renamed.find(name); now != renamed.end())
                name = now->second;
        std::erase_if(group.Boxes, [&](const std::string& name) { return !names.contains(name); });
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
