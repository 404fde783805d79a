#pragma once

#include <array>

#include "boxes/BoxAnalysis.h"

namespace tavrene::commands {

/// The four bars of the settings dialog, by what they set.
enum class Bar { MinWidth, MaxWidth, MinHeight, MaxHeight };
inline constexpr std::array kAllBars = {Bar::MinWidth, Bar::MaxWidth, Bar::MinHeight, Bar::MaxHeight};

/// Positions of the four bars and the rules that tie them: a smallest size never exceeds its largest, and no
/// height falls below 10. The bars of the heights stand upright with the lowest position on top, so they are
/// inverted: height = 50 - position, and a thumb that moves up makes the box taller.
class BoxSizeBars {
  public:
    static constexpr int kLowest = 10;
    static constexpr int kHighest = 50;

    /// Puts all four bars in place first and applies the rules then, so that sizes that fit each other are
    /// kept whatever the bars showed before.
    void SetSizes(const boxes::BoxSizes& sizes);

    /// A bar was moved; it is corrected until its rule holds. The other bars stay.
    void Move(Bar bar, int position);

    /// The same by the size that the bar is to stand for.
    void SetPixels(Bar bar, int pixels) { Move(bar, Inverted(bar) ? kHighest - pixels : pixels); }

    int Position(Bar bar) const { return positions_[static_cast<std::size_t>(bar)]; }

    /// The size that a bar stands for, and the largest that it can; none can go below `kLowest`.
    int Pixels(Bar bar) const { return Inverted(bar) ? kHighest - Position(bar) : Position(bar); }
    static int MostPixels(Bar bar) { return Inverted(bar) ? kHighest - kLowest : kHighest; }

    boxes::BoxSizes Sizes() const;

  private:
    static bool Inverted(Bar bar) { return bar == Bar::MinHeight || bar == Bar::MaxHeight; }
    int& At(Bar bar) { return positions_[static_cast<std::size_t>(bar)]; }
    void ApplyRule(Bar bar);

    std::array<int, 4> positions_ = {16, 38, 16, 34};
};

/// The sizes that the bars' first positions stand for. The two heights come out swapped; a store without
/// sizes gets them so.
boxes::BoxSizes SizesOfFirstPositions();

/// A box in the middle of a preview, in pixels of the preview, not rounded.
struct PreviewBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};
PreviewBox BoxInPreview(int previewWidth, int previewHeight, int boxWidth, int boxHeight);

}  // namespace tavrene::commands
