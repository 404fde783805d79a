#include "boxes/BoxAnalysis.h"

#include <utility>

namespace tavrene::boxes {

BoxSizes SizesOf(const app::Settings& settings) {
    return {settings.BoxMinWidth, settings.BoxMaxWidth, settings.BoxMinHeight, settings.BoxMaxHeight};
}

PairReach ReachFor(const BoxSizes& sizes) {
    constexpr int slack = 6;
    return {sizes.BoxMaxWidth + slack, sizes.BoxMaxHeight + slack};
}

BoxAnalysis::BoxAnalysis(imaging::WorkGrid page, const BoxSizes& boxSizes, const PairReach& pairReach)
    : Sizes(boxSizes), Reach(pairReach), WorkGrid(std::move(page)), SaveGrid(WorkGrid.Clone()) {}

}  // namespace tavrene::boxes
