#pragma once

#include <span>
#include <string>
#include <vector>

#include "results/ResultTable.h"

namespace tavrene::results {

/// A name for the file of each table and, last, of the summary, without an extension. All differ, also where
/// upper and lower case are the same, and hold nothing that a file system refuses.
std::vector<std::string> FileNamesOf(std::span<const ResultTable> tables);

/// The same for the sheets of a workbook, which take at most 31 characters.
std::vector<std::string> SheetNamesOf(std::span<const ResultTable> tables);

}  // namespace tavrene::results
