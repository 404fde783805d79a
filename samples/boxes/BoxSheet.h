#pragma once

#include <string_view>
#include <vector>

#include "boxes/BoxAnalysis.h"
#include "painter/Canvas.h"
#include "painter/Random.h"
#include "painter/Typeface.h"

namespace tavrene::samples {

/// The centre lines of a printed outline, in the grid frame (rows count upwards; `T` is the lower one). An
/// even thickness puts them half way between two pixels.
struct TrueBox {
    double L = 0;
    double T = 0;
    double R = 0;
    double B = 0;
};

/// Width and height of a box over its outer edges, in pixels.
struct OuterSize {
    int Width = 0;
    int Height = 0;
};

/// What stands inside the boxes of a sheet, one sign in each.
enum class BoxPrint { None, Letters, Digits };

/// How the outlines of a sheet are printed. All lengths are pixels.
struct OutlineStyle {
    int Thickness = 1;
    int Breaks = 0;       ///< Interruptions of every outline, each on a side of its own.
    int BreakLength = 0;  ///< Length of an interruption along its side.
    int Radius = 0;       ///< Of the outer edge at the corners.
    int CornerGap = 0;    ///< Side of the square that is missing at every corner.
    int Shadow = 0;       ///< Width and offset of a shadow to the right and below.
    int ThickEdge = 0;    ///< One side, by chance, reaches so much farther inwards.
    int Taper = 0;        ///< One side, by chance, does so at one of its ends.
    BoxPrint Print = BoxPrint::None;
};

/// A blank form while it is painted. Places are pixels in the page frame.
class BoxSheet {
  public:
    BoxSheet(int width, int height, int dpi, const OutlineStyle& style, std::uint64_t seed);

    Canvas& Page() { return page_; }
    const Canvas& Page() const { return page_; }
    Random& Dice() { return dice_; }
    const OutlineStyle& Style() const { return style_; }
    const std::vector<TrueBox>& GroundTruth() const { return truth_; }

    /// Millimetres in pixels.
    int Mm(double millimetres) const;

    /// Box finding treats the places where a box's column and its row agree in a way of its own. Unless a
    /// sheet is about them, it leaves out boxes that would stand there.
    void AllowDiagonal() { diagonalAllowed_ = true; }

    /// A box whose outer top left corner is at column `x` and line `y`.
    void AddBox(int x, int y, const OuterSize& size);

    /// A line of text in Sans from column `x`, base line at line `y`.
    void AddText(int x, int y, double points, std::string_view text);

    /// Rulings as thick as the outlines, from their outer edge on.
    void AddRule(int x, int y, int length);
    void AddUprightRule(int x, int y, int length);
    void AddFrame(int x, int y, int width, int height);

  private:
    bool IsOnDiagonal(int x, int y, const OuterSize& size) const;
    void Interrupt(int side, int x, int y, const OuterSize& size);
    void PrintInside(int x, int y, const OuterSize& size);

    Canvas page_;
    OutlineStyle style_;
    Random dice_;
    bool diagonalAllowed_ = false;
    std::vector<TrueBox> truth_;
};

/// The page as box finding sees it: everything darker than middle grey is ink.
imaging::WorkGrid ToGrid(const Canvas& page);

}  // namespace tavrene::samples
