#pragma once

#include <span>
#include <string>

namespace tavrene::profiles {

/// The columns of the box list: the name alone, with the mark ("Val"), and with the ink that was measured.
enum class BoxColumns { Name, NameVal, NameValInk };

/// One row of the box list. What has no column is not shown.
struct BoxRow {
    std::string name;
    std::string val = {};
    std::string ink = {};     ///< Empty where it is not known.
    bool isDoubtful = false;  ///< The row stands out, for its ink is near the threshold.
};

/// The box list of the screen (`lvwSettings`): one row a box, in the order of the boxes' numbers, from 1. No
/// event reports what is done here.
class BoxRows {
  public:
    virtual ~BoxRows() = default;

    /// Takes all rows away and sets the columns of those to come.
    virtual void ClearRows(BoxColumns columns) = 0;

    /// Adds the row of a box among the others, or changes the one that is there.
    virtual void PutRow(int number, const BoxRow& row) = 0;
    virtual void RemoveRow(int number) = 0;

    /// Makes the row the only selected one and scrolls it into view; 0 selects none.
    virtual void SelectRow(int number) = 0;

    /// Makes these rows the selected ones, among them the current one, and scrolls that into view.
    virtual void SelectRows(std::span<const int> numbers, int current) = 0;

    /// Paints what has changed now.
    virtual void RefreshRows() = 0;
};

}  // namespace tavrene::profiles
