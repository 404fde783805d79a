#pragma once

#include <string>
#include <vector>

#include "boxes/BoxLayouts.h"

namespace tavrene::samples {

/// What happened to a page between the press and the file.
enum class Wear { None, Specks, Eroded, Dilated, Broken, Tilted };

/// Pixels, both inclusive.
struct SizeRange {
    int Smallest = 0;
    int Largest = 0;
};

/// A page of the ground-truth set, before it is painted.
struct BoxPagePlan {
    std::string Class;  ///< The row of the score table that the page counts in.
    const BoxLayout* Layout = nullptr;
    int Dpi = 0;
    OutlineStyle Style;
    Wear Kind = Wear::None;
    double Amount = 0;  ///< Share of pixels, or degrees; its meaning goes with `Kind`.
    std::uint64_t Seed = 0;
    SizeRange Outer;               ///< Of the boxes' height.
    bool LargestSettings = false;  ///< The operator has set the largest sizes that can be set.

    std::string Name() const;
};

/// A painted page with its true boxes and the sizes that an operator would set for it.
struct BoxPage {
    imaging::WorkGrid Grid;
    std::vector<TrueBox> GroundTruth;
    boxes::BoxSizes Sizes;
};

/// All pages, in the order of the score table. With `sample` n > 1 only every n-th page of each class and
/// thickness.
std::vector<BoxPagePlan> PlanPages(int sample = 1);

/// The same plan always gives the same page.
BoxPage PaintPage(const BoxPagePlan& plan);

/// The settings that suit boxes of the given sizes, within what the settings dialog lets an operator choose.
boxes::BoxSizes SizesFor(const OuterSize& size, const OuterSize& second);

}  // namespace tavrene::samples
