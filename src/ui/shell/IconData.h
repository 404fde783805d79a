#pragma once

#include <span>
#include <string_view>

namespace tavrene::ui {

/// What a part of a picture is painted with. `Line` follows the text colour of the palette.
enum class Ink { Line, Paper, Blue, Green, Red, Amber };

/// One part: a path in a square of 24 x 24 (y down), stroked, or filled and stroked.
///
/// The path is text: `M x y` begins a line, `L x y` goes on, `C x1 y1 x2 y2 x y` is a curve, `Z` closes, `O x
/// y r` is a circle, `R x y w h` a rectangle.
struct IconPart {
    std::string_view path;
    Ink ink = Ink::Line;
    bool filled = false;
};

/// The parts of a picture from back to front; empty for an unknown name.
std::span<const IconPart> PartsOfIcon(std::string_view name);

}  // namespace tavrene::ui
