#include "results/ResultTable.h"

#include <algorithm>
#include <exception>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "app/Reason.h"
#include "app/Utf8.h"
#include "recognition/ResultDocument.h"

namespace tavrene::results {
namespace {

// A table while its forms are being added. Equal names in one document are boxes of their own: the first of a
// name has the first column of that name, the second the next.
class GrowingTable {
  public:
    explicit GrowingTable(const std::string& profile) { table_.Profile = app::ValidUtf8(profile); }

    void Add(FormRow row, const std::vector<recognition::ResultMark>& marks) {
        const std::size_t regular = RegularLength(marks);
        row.Marks.assign(regular, Mark::Absent);
        for (std::size_t k = 0; k < regular; ++k)
            row.Marks[k] = StateOf(marks[k]);
        if (regular < marks.size())
            AddIrregular(row, marks, regular);
        table_.Forms.push_back(std::move(row));
    }

    ResultTable Take() { return std::move(table_); }

  private:
    static Mark StateOf(const recognition::ResultMark& mark) {
        return mark.Checked ? Mark::Checked : Mark::Empty;
    }

    // How many marks stand where the columns of their names do. In nearly all documents of a profile that is
    // all of them, and no name has to be searched.
    std::size_t RegularLength(const std::vector<recognition::ResultMark>& marks) const {
        std::size_t length = 0;
        while (length < marks.size() && length < names_.size() && marks[length].Name == names_[length])
            ++length;
        return length;
    }

    void AddIrregular(FormRow& row, const std::vector<recognition::ResultMark>& marks, std::size_t first) {
        std::unordered_map<std::string_view, int> met;
        for (std::size_t k = 0; k < marks.size(); ++k) {
            const int occurrence = ++met[marks[k].Name];
            if (k < first)
                continue;
            const std::size_t column = ColumnOf(marks[k].Name, occurrence);
            row.Marks.resize(std::max(row.Marks.size(), column + 1), Mark::Absent);
            row.Marks[column] = StateOf(marks[k]);
        }
    }

    std::size_t ColumnOf(const std::string& name, int occurrence) {
        const auto [entry, isNew] = columns_.try_emplace({name, occurrence}, names_.size());
        if (isNew) {
            names_.push_back(name);
            table_.Boxes.push_back({app::ValidUtf8(name), occurrence});
        }
        return entry->second;
    }

    ResultTable table_;
    std::vector<std::string> names_;  // as the documents have them, by column
    std::map<std::pair<std::string, int>, std::size_t> columns_;
};

class TableSet {
  public:
    void Add(const std::string& profile, FormRow row, const std::vector<recognition::ResultMark>& marks) {
        const auto [entry, isNew] = places_.try_emplace(profile, tables_.size());
        if (isNew)
            tables_.emplace_back(profile);
        tables_[entry->second].Add(std::move(row), marks);
    }

    std::vector<ResultTable> Take() {
        std::vector<ResultTable> tables;
        for (GrowingTable& table : tables_)
            tables.push_back(table.Take());
        return tables;
    }

  private:
    std::vector<GrowingTable> tables_;
    std::unordered_map<std::string, std::size_t> places_;
};

void AddDocument(const app::Files& files, const std::string& path, TableSet& tables) {
    const auto document = recognition::ResultDocument::Load(files, path);
    FormRow row{app::ValidUtf8(document.Image()),
                document.IsReviewed(),
                app::ValidUtf8(document.Confidence()),
                files.WrittenAt(path),
                {}};
    tables.Add(document.Profile(), std::move(row), document.Marks());
}

}  // namespace

std::optional<Results> ReadResults(const app::Files& files, const std::string& folder,
                                   const Progress& progress) {
    Results results;
    TableSet tables;
    const std::vector<std::string> documents = files.List(folder, "*.xml");
    for (std::size_t k = 0; k < documents.size(); ++k) {
        if (!progress(k, documents.size()))
            return std::nullopt;
        try {
            AddDocument(files, folder + documents[k], tables);
        } catch (const std::exception& error) {
            results.Damaged.push_back({documents[k], app::ReasonOf(error)});
        }
    }
    results.Tables = tables.Take();
    return results;
}

std::vector<BoxCount> CountMarks(const ResultTable& table) {
    std::vector<BoxCount> counts(table.Boxes.size());
    for (const FormRow& form : table.Forms) {
        for (std::size_t k = 0; k < form.Marks.size(); ++k) {
            counts[k].Checked += form.Marks[k] == Mark::Checked ? 1U : 0U;
            counts[k].Read += form.Marks[k] == Mark::Absent ? 0U : 1U;
        }
    }
    return counts;
}

}  // namespace tavrene::results
