#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "profiles/PrintedNames.h"

namespace tavrene::profiles {

/// What is printed beside and above the boxes of a form; page frame, image pixels. Boxes go by their index.
class PrintAround {
  public:
    enum class Side { Left, Right };

    PrintAround(std::vector<imaging::PageRect> boxes, std::vector<PrintedWord> words);

    /// The words that begin close at one side of a box, up to a wide gap or the next box, in reading order.
    std::string Beside(std::size_t box, Side side) const;

    /// For each box that stands in a table the words at the left of its row and those at the head of its
    /// column; empty for any other. The boxes of a table have no words between them.
    std::vector<std::string> InTables() const;

  private:
    struct Found {
        const PrintedWord* word;
        double from;  ///< How far off the box it begins and ends.
        double to;
    };
    std::vector<Found> OnLine(std::size_t box, Side side) const;
    std::string WordsWithin(std::size_t box, Side side, double reach, double gap) const;
    std::optional<std::size_t> Next(std::size_t box, Side side) const;
    std::optional<std::size_t> Above(std::size_t box) const;
    std::string HeadOf(std::size_t box) const;
    std::vector<std::string> Heads() const;
    std::vector<std::vector<std::size_t>> Rows() const;

    std::vector<imaging::PageRect> boxes_;
    std::vector<PrintedWord> words_;
};

}  // namespace tavrene::profiles
