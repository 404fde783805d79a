#pragma once

#include <span>
#include <string>

#include "results/ResultTable.h"

namespace tavrene::commands {

/// The counts of all boxes as a page of HTML (of the kind that Qt's text documents show): a heading a
/// profile, and for each box how many of its forms have it checked, as a number, a share and a bar.
std::string CountsPage(std::span<const results::ResultTable> tables, const std::string& source);

}  // namespace tavrene::commands
