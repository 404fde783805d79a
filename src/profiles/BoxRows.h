#pragma once

#include <string_view>

namespace tavrene::profiles {

/// The box list of the screen (`lvwSettings`): one row a box.
class BoxRows {
  public:
    virtual ~BoxRows() = default;

    virtual void ClearRows() = 0;

    /// A column behind the name, titled "Val"; adding it twice changes nothing.
    virtual void AddValColumn() = 0;
    virtual void RemoveExtraColumns() = 0;

    /// Appends the row of box `number` (1-based). `value` stands in the "Val" column where there is one.
    virtual void AddRow(int number, std::string_view name, std::string_view value) = 0;
};

}  // namespace tavrene::profiles
