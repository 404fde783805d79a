#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "profiles/BoxGroups.h"
#include "results/ResultTable.h"

namespace tavrene::results {

using profiles::BoxGroup;

/// The groups of each profile, by its name. A box that is in none has a column of its own.
using GroupsOfProfiles = std::map<std::string, std::vector<BoxGroup>>;

/// Where the cells of a table go, line by line and from left to right.
class CellSink {
  public:
    virtual ~CellSink() = default;
    virtual void Text(std::string_view text) = 0;
    virtual void Number(std::int64_t number) = 0;
    virtual void Blank() = 0;
    virtual void EndLine() = 0;
};

/// Tells of each form that is put into a table, over all tables of an export.
class FormCounter {
  public:
    FormCounter(std::span<const ResultTable> tables, const Progress& progress);

    /// False when the work is to end.
    bool Next() { return progress_(done_++, total_); }

  private:
    const Progress& progress_;
    std::size_t done_ = 0;
    std::size_t total_ = 0;
};

/// One line of titles, then one a form: image, profile, reviewed (1 or 0), confidence, date, then for each
/// box 1 or 0, and for each group, at the place of its first box, the names of its checked boxes parted by
/// "|". A cell is blank where the form does not have the box. False when `counter` ended it.
bool PutTable(const ResultTable& table, std::span<const BoxGroup> groups, CellSink& sink,
              FormCounter& counter);

/// One line of titles, then one a profile and box: profile, group (blank for none), box, how many forms have
/// it checked, how many have it empty.
void PutSummary(std::span<const ResultTable> tables, const GroupsOfProfiles& groups, CellSink& sink);

/// The groups that the profile documents in `folder` (path ending in a separator) have for these tables; of
/// one that is not there, those that the names of the boxes tell.
GroupsOfProfiles GroupsIn(const app::Files& files, std::span<const ResultTable> tables,
                          const std::string& folder);

/// The groups of one profile.
std::span<const BoxGroup> GroupsOf(const GroupsOfProfiles& groups, const std::string& profile);

}  // namespace tavrene::results
