#pragma once

#include <span>
#include <vector>

#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// How a box is picked: as the only one, in or out beside the others, or with all from the one picked before.
enum class Pick { Only, Toggle, Span };

/// The boxes that commands act on, by their numbers. Every selection but the empty one has a current box, and
/// an anchor from which a span reaches.
class BoxSelection {
  public:
    BoxSelection() = default;

    /// One box, or with 0 none.
    explicit BoxSelection(int number);

    /// These boxes and the current one, which is the anchor as well; with 0 none of them is selected.
    BoxSelection(std::vector<int> numbers, int current);

    int Current() const { return current_; }
    int Anchor() const { return anchor_; }

    /// Ascending, without doubles.
    const std::vector<int>& Numbers() const { return numbers_; }
    bool Has(int number) const;
    bool IsEmpty() const { return numbers_.empty(); }
    bool HasSeveral() const { return numbers_.size() > 1; }

    /// With a box taken in, which is the current one then, or taken out if it is not the last one.
    BoxSelection Toggled(int number) const;

    /// These boxes, which reach from the anchor to a box that is current then.
    BoxSelection Spanning(std::vector<int> numbers, int current) const;

    /// With these boxes as well.
    BoxSelection With(std::span<const int> numbers) const;

    bool operator==(const BoxSelection&) const = default;

  private:
    std::vector<int> numbers_;
    int current_ = 0;
    int anchor_ = 0;
};

/// The numbers of the boxes that are kept, ascending.
std::vector<int> KeptNumbers(std::span<const OmrBox> boxes);

/// The next box that is kept, after the last one the first again; 0 when none is.
int NextKept(std::span<const OmrBox> boxes, int number);

}  // namespace tavrene::profiles
