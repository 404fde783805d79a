#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "reading/ReadingPage.h"

namespace tavrene::samples {

/// How one way to read fared on the pages of a class.
struct ReadingTally {
    std::size_t Recognised = 0;  ///< Forms taken for what they are.
    std::size_t Mistaken = 0;    ///< Forms or strangers taken for something else.
    std::size_t Boxes = 0;       ///< Judged boxes of the recognised forms.
    std::size_t Right = 0;
};

/// One row of the table.
struct ReadingRow {
    const ReadingClass* Class = nullptr;
    std::size_t Pages = 0;
    std::size_t Boxes = 0;  ///< Judged boxes of all pages.
    ReadingTally Plain;
    ReadingTally Precise;
    std::size_t PlainErrors = 0;  ///< Boxes and forms that the plain reading has wrong,
    std::size_t Flagged = 0;      ///< and of which the second opinion says otherwise.
};

/// Which pages of a class are painted. Even seeds are those that the constants were chosen on; pages that
/// somebody has looked at to mend something judge nothing any more, and `First` passes them over.
struct SeedRange {
    bool Even = false;
    std::size_t First = 0;
};

/// Reads `pages` pages of a class both ways. `tell`, if there is one, hears of every page that precise
/// alignment has wrong.
ReadingRow ScoreClass(const ReadingClass& kind, std::size_t pages, SeedRange seeds,
                      const std::function<void(const std::string&)>& tell = {});

}  // namespace tavrene::samples
