#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/Files.h"

namespace tavrene::results {

/// What a form says about a box. A form that was read when its profile had other boxes lacks some.
enum class Mark : signed char { Absent, Empty, Checked };

/// One result document.
struct FormRow {
    std::string Image;  ///< File name with extension, no folder.
    bool Reviewed = false;
    std::string Confidence;
    std::optional<app::LocalTime> Written;  ///< When the document was last written.
    std::vector<Mark> Marks;                ///< By column; it ends where nothing but `Absent` follows.

    Mark MarkOf(std::size_t column) const { return column < Marks.size() ? Marks[column] : Mark::Absent; }
};

/// The boxes of one name. Where a document holds a name more than once, each occurrence has its own column.
struct BoxColumn {
    std::string Name;
    int Occurrence = 1;
};

/// All forms of one profile, in the order of their documents' names.
struct ResultTable {
    std::string Profile;
    std::vector<BoxColumn> Boxes;  ///< In the order in which they were met.
    std::vector<FormRow> Forms;
};

/// A document that is in no table, and why in plain words.
struct LeftOut {
    std::string Document;
    std::string Reason;
};

/// The tables of a folder, in the order in which their profiles were met.
struct Results {
    std::vector<ResultTable> Tables;
    std::vector<LeftOut> Damaged;
};

/// Hears how much of how much is done; its answer false ends the work.
using Progress = std::function<bool(std::size_t done, std::size_t total)>;

/// Reads all result documents of `folder` (path ending in a separator) and changes none. Nothing when
/// `progress` ended it. Throws `app::FileError` when the folder cannot be listed.
std::optional<Results> ReadResults(const app::Files& files, const std::string& folder,
                                   const Progress& progress);

/// How often a box is checked, and on how many forms it was read at all.
struct BoxCount {
    std::size_t Checked = 0;
    std::size_t Read = 0;
};

/// One count a column.
std::vector<BoxCount> CountMarks(const ResultTable& table);

}  // namespace tavrene::results
