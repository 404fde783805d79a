#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "app/Settings.h"
#include "boxes/LineSeg.h"
#include "imaging/WorkGrid.h"

namespace tavrene::boxes {

/// One assembled rectangle, in the grid frame: `T` is the lower row, `B` the higher one.
struct BoxRect {
    std::int16_t L = 0;
    std::int16_t T = 0;
    std::int16_t R = 0;
    std::int16_t B = 0;
    std::int16_t Kind = 0;   ///< Corners where the page shows no closed outline, 0 to 4.
    std::int16_t Valid = 0;  ///< -1 kept, 0 dropped.
    std::int16_t Mark = 0;   ///< -1 for open corners: it then has to have one of the form's sizes exactly.
    bool operator==(const BoxRect&) const = default;
};

/// What spoke against a rectangle that the rules had kept.
enum class LeftOutFor { OpenCorners, BesidePrint, PrintInside, OddSize };

struct LeftOutBox {
    BoxRect Box;
    LeftOutFor Reason = LeftOutFor::OpenCorners;
    bool operator==(const LeftOutBox&) const = default;
};

/// The limits on a box's sides, in pixels of the image.
struct BoxSizes {
    std::int16_t BoxMinWidth = 0;
    std::int16_t BoxMaxWidth = 0;
    std::int16_t BoxMinHeight = 0;
    std::int16_t BoxMaxHeight = 0;
    bool operator==(const BoxSizes&) const = default;
};

BoxSizes SizesOf(const app::Settings& settings);

/// How far apart two segments may lie and still be looked at together. The window takes the reaches when it
/// loads and keeps them, whatever sizes are set later.
struct PairReach {
    int X = 0;
    int Y = 0;
};

PairReach ReachFor(const BoxSizes& sizes);

/// Counts what is compared with what. Sizes far from those of the boxes make nearly every stroke of a page a
/// line piece and every pair of them a neighbour; the steps then give up, on any machine at the same point.
class WorkMeter {
  public:
    /// Counts on.
    void Spend(std::size_t comparisons) { spent_ += comparisons; }

    /// Whether to give up. What was found until then means nothing.
    bool IsSpent() const { return spent_ > kMost; }

    /// Uses up all that is left.
    void Exhaust() { spent_ = kMost + 1; }

    std::size_t Spent() const { return spent_; }

  private:
    // An A4 page full of small print at 300 dots an inch takes a hundredth of it with fitting sizes.
    static constexpr std::size_t kMost = 150'000'000;

    std::size_t spent_ = 0;
};

/// All that the steps of box finding share. Each step works in place.
struct BoxAnalysis {
    BoxAnalysis(imaging::WorkGrid page, const BoxSizes& boxSizes, const PairReach& pairReach);

    BoxSizes Sizes;
    PairReach Reach;
    imaging::WorkGrid WorkGrid;
    imaging::WorkGrid SaveGrid;  ///< Starts as a copy of the page before any gap is closed.
    std::vector<bool> RowSkip;   ///< Rows without a run long enough for a box side.
    std::vector<bool> ColSkip;   ///< Columns likewise; one entry a padded column.
    std::vector<LineSeg> Segments;
    std::vector<LineSeg> LongLines;
    std::vector<LineGroup> Groups;
    std::vector<BoxRect> Boxes;
    WorkMeter Work;
    std::vector<LeftOutBox> LeftOut;  ///< What the rules kept and the filter did not.
};

}  // namespace tavrene::boxes
