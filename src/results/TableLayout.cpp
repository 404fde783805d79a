#include "results/TableLayout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>
#include <unordered_map>

namespace tavrene::results {
namespace {

// One column of the sheet behind the fixed ones: a single box, or the boxes of a group.
struct SheetColumn {
    std::string title;
    std::vector<std::size_t> boxes;  // columns of the table
    bool isGroup = false;
};

std::string TitleOf(const BoxColumn& box) {
    return box.Occurrence == 1 ? box.Name : box.Name + " (" + std::to_string(box.Occurrence) + ")";
}

// The place among `groups` of the one that each box belongs to; of several, the first.
std::vector<std::optional<std::size_t>> GroupOfEachBox(const ResultTable& table,
                                                       std::span<const BoxGroup> groups) {
    std::unordered_map<std::string_view, std::size_t> groupOfName;
    for (std::size_t k = 0; k < groups.size(); ++k) {
        for (const std::string& name : groups[k].Boxes)
            groupOfName.try_emplace(name, k);
    }
    std::vector<std::optional<std::size_t>> found(table.Boxes.size());
    for (std::size_t k = 0; k < found.size(); ++k) {
        if (const auto entry = groupOfName.find(table.Boxes[k].Name); entry != groupOfName.end())
            found[k] = entry->second;
    }
    return found;
}

std::vector<SheetColumn> ColumnsOf(const ResultTable& table, std::span<const BoxGroup> groups) {
    const std::vector<std::optional<std::size_t>> groupOf = GroupOfEachBox(table, groups);
    std::vector<SheetColumn> columns;
    std::unordered_map<std::size_t, std::size_t> columnOfGroup;
    for (std::size_t box = 0; box < table.Boxes.size(); ++box) {
        if (!groupOf[box]) {
            columns.push_back({TitleOf(table.Boxes[box]), {box}});
            continue;
        }
        const auto [entry, isNew] = columnOfGroup.try_emplace(*groupOf[box], columns.size());
        if (isNew)
            columns.push_back({groups[*groupOf[box]].Name, {}, true});
        columns[entry->second].boxes.push_back(box);
    }
    return columns;
}

std::string DateOf(const app::LocalTime& time) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return text.data();
}

// A number where it is one, so that a spreadsheet can reckon with it.
void PutConfidence(const std::string& text, CellSink& sink) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc() && rest == end)
        sink.Number(number);
    else
        sink.Text(text);
}

void PutBox(Mark mark, CellSink& sink) {
    if (mark == Mark::Absent)
        sink.Blank();
    else
        sink.Number(mark == Mark::Checked ? 1 : 0);
}

void PutGroup(const ResultTable& table, const FormRow& form, const SheetColumn& column, CellSink& sink) {
    std::string marks;
    for (const std::size_t box : column.boxes) {
        if (form.MarkOf(box) == Mark::Checked)
            marks += (marks.empty() ? "" : "|") + TitleOf(table.Boxes[box]);
    }
    if (marks.empty())
        sink.Blank();
    else
        sink.Text(marks);
}

void PutForm(const ResultTable& table, const FormRow& form, std::span<const SheetColumn> columns,
             CellSink& sink) {
    sink.Text(form.Image);
    sink.Text(table.Profile);
    sink.Number(form.Reviewed ? 1 : 0);
    PutConfidence(form.Confidence, sink);
    sink.Text(form.Written ? DateOf(*form.Written) : "");
    for (const SheetColumn& column : columns) {
        if (column.isGroup)
            PutGroup(table, form, column, sink);
        else
            PutBox(form.MarkOf(column.boxes.front()), sink);
    }
    sink.EndLine();
}

void PutTitles(std::span<const char* const> titles, CellSink& sink) {
    for (const char* const title : titles)
        sink.Text(title);
}

}  // namespace

FormCounter::FormCounter(std::span<const ResultTable> tables, const Progress& progress)
    : progress_(progress) {
    for (const ResultTable& table : tables)
        total_ += table.Forms.size();
}

bool PutTable(const ResultTable& table, std::span<const BoxGroup> groups, CellSink& sink,
              FormCounter& counter) {
    constexpr std::array kTitles = {"Image", "Profile", "Reviewed", "Confidence", "Date"};
    const std::vector<SheetColumn> columns = ColumnsOf(table, groups);
    PutTitles(kTitles, sink);
    for (const SheetColumn& column : columns)
        sink.Text(column.title);
    sink.EndLine();
    for (const FormRow& form : table.Forms) {
        if (!counter.Next())
            return false;
        PutForm(table, form, columns, sink);
    }
    return true;
}

void PutSummary(std::span<const ResultTable> tables, const GroupsOfProfiles& groups, CellSink& sink) {
    constexpr std::array kTitles = {"Profile", "Group", "Box", "Checked", "Empty"};
    PutTitles(kTitles, sink);
    sink.EndLine();
    for (const ResultTable& table : tables) {
        const std::span<const BoxGroup> ofProfile = GroupsOf(groups, table.Profile);
        const std::vector<std::optional<std::size_t>> groupOf = GroupOfEachBox(table, ofProfile);
        const std::vector<BoxCount> counts = CountMarks(table);
        for (std::size_t box = 0; box < counts.size(); ++box) {
            sink.Text(table.Profile);
            sink.Text(groupOf[box] ? ofProfile[*groupOf[box]].Name : "");
            sink.Text(TitleOf(table.Boxes[box]));
            sink.Number(static_cast<std::int64_t>(counts[box].Checked));
            sink.Number(static_cast<std::int64_t>(counts[box].Read - counts[box].Checked));
            sink.EndLine();
        }
    }
}

GroupsOfProfiles GroupsIn(const app::Files& files, std::span<const ResultTable> tables,
                          const std::string& folder) {
    GroupsOfProfiles groups;
    for (const ResultTable& table : tables) {
        std::vector<std::string> names;
        for (const BoxColumn& box : table.Boxes)
            names.push_back(box.Name);
        groups[table.Profile] = profiles::GroupsOrNone(files, folder + table.Profile + ".Tvp", names);
    }
    return groups;
}

std::span<const BoxGroup> GroupsOf(const GroupsOfProfiles& groups, const std::string& profile) {
    const auto found = groups.find(profile);
    return found == groups.end() ? std::span<const BoxGroup>() : std::span<const BoxGroup>(found->second);
}

}  // namespace tavrene::results
