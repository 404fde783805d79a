#include "results/XlsxExport.h"

#include <xlsxwriter.h>

#include <memory>
#include <utility>

#include "app/TemporaryFolder.h"
#include "results/TableNames.h"

namespace tavrene::results {
namespace {

constexpr lxw_col_t kMostColumns = 16'384;

void Check(lxw_error error, const std::string& sheet) {
    if (error != LXW_NO_ERROR)
        throw WorkbookError("The sheet \"" + sheet + "\" cannot be made: " + lxw_strerror(error));
}

class Sheet final : public CellSink {
  public:
    Sheet(lxw_workbook* workbook, std::string name)
        : name_(std::move(name)), sheet_(workbook_add_worksheet(workbook, name_.c_str())) {
        if (sheet_ == nullptr)
            throw WorkbookError("The sheet \"" + name_ + "\" cannot be made.");
        worksheet_freeze_panes(sheet_, 1, 1);
    }

    void Text(std::string_view text) override {
        if (text.empty())
            return Blank();
        buffer_ = text;
        Check(worksheet_write_string(sheet_, line_, TakeColumn(), buffer_.c_str(), nullptr), name_);
    }
    void Number(std::int64_t number) override {
        Check(worksheet_write_number(sheet_, line_, TakeColumn(), static_cast<double>(number), nullptr),
              name_);
    }
    void Blank() override { TakeColumn(); }
    void EndLine() override {
        ++line_;
        column_ = 0;
    }

  private:
    lxw_col_t TakeColumn() {
        if (column_ == kMostColumns)
            throw WorkbookError("The sheet \"" + name_ + "\" cannot be made: a sheet has room for " +
                                std::to_string(kMostColumns) + " columns.");
        return column_++;
    }

    std::string name_;
    lxw_worksheet* sheet_;
    std::string buffer_;
    lxw_row_t line_ = 0;
    lxw_col_t column_ = 0;
};

struct FreeWorkbook {
    void operator()(lxw_workbook* workbook) const { lxw_workbook_free(workbook); }
};
using Workbook = std::unique_ptr<lxw_workbook, FreeWorkbook>;

Workbook NewWorkbook(const std::string& path, std::string folder) {
    // Lines go to a file of the scratch folder one by one, so that memory does not grow with the forms.
    lxw_workbook_options options{LXW_TRUE, folder.data(), LXW_TRUE};
    Workbook workbook(workbook_new_opt(path.c_str(), &options));
    if (!workbook)
        throw WorkbookError("There is not enough memory for a workbook.");
    return workbook;
}

}  // namespace

bool ExportXlsx(app::Files& files, std::span<const ResultTable> tables, const GroupsOfProfiles& groups,
                const std::string& path, const Progress& progress) {
    // The library writes to a file only, so the workbook is made in a folder of its own and taken from there.
    const app::TemporaryFolder scratch("tavrene-export");
    const std::string made = scratch.File("book.xlsx");
    Workbook workbook = NewWorkbook(made, scratch.Path());
    const std::vector<std::string> names = SheetNamesOf(tables);
    FormCounter counter(tables, progress);
    for (std::size_t k = 0; k < tables.size(); ++k) {
        Sheet sheet(workbook.get(), names[k]);
        if (!PutTable(tables[k], GroupsOf(groups, tables[k].Profile), sheet, counter))
            return false;
    }
    Sheet summary(workbook.get(), names.back());
    PutSummary(tables, groups, summary);
    Check(workbook_close(workbook.release()), app::FileName(path));
    files.Write(path, files.Read(made));
    return true;
}

}  // namespace tavrene::results
