#pragma once

#include <span>
#include <stdexcept>
#include <string>

#include "app/Files.h"
#include "results/TableLayout.h"

namespace tavrene::results {

/// A table that does not fit into a workbook; `what()` is a plain sentence.
class WorkbookError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Writes a workbook (Office Open XML) with one sheet a profile and, last, one of counts. Texts stay texts,
/// whatever they look like. False when `progress` ended it; then nothing was written. Throws `WorkbookError`,
/// or `app::FileError`; `path` then holds what it held before.
bool ExportXlsx(app::Files& files, std::span<const ResultTable> tables, const GroupsOfProfiles& groups,
                const std::string& path, const Progress& progress);

}  // namespace tavrene::results
