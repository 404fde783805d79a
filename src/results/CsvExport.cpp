#include "results/CsvExport.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "app/Reason.h"
#include "results/TableNames.h"

namespace tavrene::results {
namespace {

// What spreadsheets take for the beginning of a formula; the wide forms as well, which some of them fold.
bool LooksLikeFormula(std::string_view text) {
    constexpr std::array<std::string_view, 11> kBeginnings = {
        "=", "+", "-", "@", "\t", "\r", "\n", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};
    return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                       [text](std::string_view beginning) { return text.starts_with(beginning); });
}

class CsvText final : public CellSink {
  public:
    explicit CsvText(const CsvOptions& options)
        : separator_(static_cast<char>(options.separator)),
          special_{separator_, '"', '\r', '\n'},
          text_(options.byteOrderMark ? "\xEF\xBB\xBF" : "") {}

    void Text(std::string_view text) override {
        Begin();
        const std::string_view guard = LooksLikeFormula(text) ? "'" : "";
        if (text.find_first_of(std::string_view(special_.data(), special_.size())) == std::string_view::npos)
            text_.append(guard).append(text);
        else
            AppendQuoted(guard, text);
    }
    void Number(std::int64_t number) override {
        Begin();
        text_ += std::to_string(number);
    }
    void Blank() override { Begin(); }
    void EndLine() override {
        text_ += "\r\n";
        atStart_ = true;
    }

    std::string Take() { return std::move(text_); }

  private:
    void Begin() {
        if (!atStart_)
            text_ += separator_;
        atStart_ = false;
    }

    void AppendQuoted(std::string_view guard, std::string_view text) {
        text_.append("\"").append(guard);
        for (const char c : text)
            text_.append(c == '"' ? 2 : 1, c);
        text_ += '"';
    }

    char separator_;
    std::array<char, 4> special_;
    std::string text_;
    bool atStart_ = true;
};

void DeleteAll(app::Files& files, std::span<const std::string> paths) {
    for (const std::string& path : paths)
        app::FailureOf([&] { files.Delete(path); });
}

// A disk that is full at the last table must not leave new tables beside those of the export before: all are
// written under hidden names first.
void WriteTogether(app::Files& files, const std::string& folder, std::span<const std::string> names,
                   std::span<const std::string> texts) {
    std::vector<std::string> written;
    try {
        for (std::size_t k = 0; k < names.size(); ++k) {
            written.push_back(folder + "." + names[k]);
            files.Write(written.back(), app::AsBytes(texts[k]));
        }
        for (std::size_t k = 0; k < names.size(); ++k)
            files.Move(written[k], folder + names[k]);
    } catch (...) {
        DeleteAll(files, written);
        throw;
    }
}

}  // namespace

std::vector<std::string> CsvNames(std::span<const ResultTable> tables) {
    std::vector<std::string> names = FileNamesOf(tables);
    for (std::string& name : names)
        name += ".csv";
    return names;
}

bool ExportCsv(app::Files& files, std::span<const ResultTable> tables, const GroupsOfProfiles& groups,
               const std::string& folder, const CsvOptions& options, const Progress& progress) {
    std::vector<std::string> texts;
    FormCounter counter(tables, progress);
    for (const ResultTable& table : tables) {
        CsvText text(options);
        if (!PutTable(table, GroupsOf(groups, table.Profile), text, counter))
            return false;
        texts.push_back(text.Take());
    }
    CsvText summary(options);
    PutSummary(tables, groups, summary);
    texts.push_back(summary.Take());
    WriteTogether(files, folder, CsvNames(tables), texts);
    return true;
}

}  // namespace tavrene::results
