#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/FormSheet.h"
#include "painter/Marks.h"

namespace tavrene::samples {

/// How somebody marks boxes.
enum class Habit { None, Ticks, Crosses, Dots, Dashes, Fillings, Scribbles, Mixed };

using DrawMark = void (*)(Canvas&, Random&, const MarkArea&, const Pen&);

/// A mark of its own kind at a box, in place of the usual answer.
struct OddMark {
    std::string Box{};
    std::vector<DrawMark> Strokes{};  ///< One over the other.
    double Aside = 0;                 ///< Moved to the right, in box widths.
    bool Means = true;                ///< A person takes the box for checked.
};

/// Somebody who fills in a form. `Pen.width` is in layout units.
struct Respondent {
    Habit Marks = Habit::None;
    std::uint64_t Seed = 0;
    Pen Tool{};
    double Carelessness = 0;  ///< By how much of a box's size marks miss their place.
    double Slips = 0;         ///< Share of the empty boxes that the pen touched by accident.
    std::vector<OddMark> OddMarks{};
};

/// What the pen left on a form, as a page of its own, and the names of the marked boxes in the form's order.
struct Filling {
    Canvas Page;
    std::vector<std::string> CheckedBoxes;
};

/// Answers every question of a form and writes on its lines. With `Habit::None` nothing is written.
Filling FillIn(const PrintedForm& form, const Respondent& respondent);

}  // namespace tavrene::samples
