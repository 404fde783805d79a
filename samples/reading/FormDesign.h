#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "painter/Canvas.h"
#include "painter/Marks.h"
#include "painter/Random.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::samples {

/// What a form is made of.
enum class FormKind { Survey, TwoColumns, Table, Letters, Dense, OneColumn, Few };

/// What sets a form apart from its sister.
enum class SisterTrait { None, MovedBox, OneMoreRow, Larger };

/// A form before it is painted; the same design always gives the same form, at every resolution.
struct FormDesign {
    FormKind Kind = FormKind::Survey;
    std::uint64_t Seed = 0;
    int Boxes = 0;  ///< Of `Few`.
    SisterTrait Trait = SisterTrait::None;

    bool operator==(const FormDesign&) const = default;
};

/// A blank form on a sheet of A4, with its boxes in the order of its profile.
struct BlankForm {
    Canvas Page{1, 1, 0};
    std::vector<MarkArea> Areas;  ///< The outer edges of the boxes.
    profiles::ProfileRecord Profile;
};

BlankForm PaintBlank(const FormDesign& design, int dpi);

/// Pages that are no form of ours.
enum class StrangerKind { Text, RuledTable, Ovals, OtherForm };
Canvas PaintStranger(StrangerKind kind, std::uint64_t seed, int dpi);

}  // namespace tavrene::samples
