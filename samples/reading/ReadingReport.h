#pragma once

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

#include "reading/ReadingScore.h"

namespace tavrene::samples {

/// A row as one line of fields parted by tabs, and back. Rows of classes that there are no more are left out.
std::string LineOf(const ReadingRow& row);
std::vector<ReadingRow> RowsFrom(std::istream& lines);

/// What the rows come to, and the table: Markdown.
std::string TableOf(std::span<const ReadingRow> rows);

/// How both readings fare as tilt, shift and the like grow: one picture.
std::string CurvesOf(std::span<const ReadingRow> rows);

}  // namespace tavrene::samples
