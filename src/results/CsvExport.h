#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "results/TableLayout.h"

namespace tavrene::results {

enum class Separator : char { Comma = ',', Semicolon = ';', Tab = '\t' };

struct CsvOptions {
    Separator separator = Separator::Comma;
    bool byteOrderMark = false;  ///< Some spreadsheets take a file for UTF-8 only when it begins with one.
};

/// The files that `ExportCsv` writes, by their names without a folder: one a table and last the summary. They
/// differ also where upper and lower case are the same.
std::vector<std::string> CsvNames(std::span<const ResultTable> tables);

/// Writes one file a profile and one of counts into `folder` (path ending in a separator), by RFC 4180 in
/// UTF-8. A text that a spreadsheet would take for a formula gets an apostrophe before it. No file is touched
/// until all are composed. False when `progress` ended it; then nothing was written. Throws `app::FileError`.
bool ExportCsv(app::Files& files, std::span<const ResultTable> tables, const GroupsOfProfiles& groups,
               const std::string& folder, const CsvOptions& options, const Progress& progress);

}  // namespace tavrene::results
