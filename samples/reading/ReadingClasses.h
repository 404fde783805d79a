#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "reading/FormDesign.h"
#include "reading/ScanWear.h"

namespace tavrene::samples {

/// A kind of page that readings are judged on: one row of the table.
struct ReadingClass {
    std::string Name;
    std::string Curve = {};  ///< The figure that the row is a point of; empty for none.
    double At = 0;           ///< Its abscissa there.
    ScanWear Wear = {};      ///< Signs of shift, tilt and stretch are thrown for every page.
    bool Mixed = false;      ///< A bit of everything instead of `Wear`.
    bool Promised = false;   ///< Within what precise alignment is meant for.
    std::optional<FormKind> Kind = std::nullopt;  ///< Else they take turns.
    int Boxes = 0;
    int ScanDpi = 200;
    int ProfileDpi = 200;
    int ToldDpi = -1;  ///< What the file says; -1 is the truth, 0 nothing.
    bool Stamps = false;
    bool OverOutlines = false;
    SisterTrait Sister = SisterTrait::None;
    std::optional<StrangerKind> Stranger = std::nullopt;
};

/// All rows, in the order of the table.
std::span<const ReadingClass> ReadingClasses();

/// A bit of everything.
ScanWear MixedWear(Random& dice);

}  // namespace tavrene::samples
