#pragma once

#include <string>

#include "boxes/second/SecondLook.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::commands {

/// What a new profile's operator is told of a second look: "62 boxes found. 5 more may be boxes: look at them
/// with Find More Boxes (Ctrl+M)."; empty when there is nothing to look at.
std::string OfferOf(int found, const boxes::SecondLook& look);

/// What stands over the list of candidates: how many there are, boxes of another size, and the keys.
std::string HeadingOf(std::size_t candidates, const boxes::SecondLook& look);

/// What the panel says when the look is over.
std::string OutcomeOf(std::size_t candidates, const boxes::SecondLook& look);

/// One row of the list: "30 x 28 at 512, 380", in pixels of the page.
std::string RowOf(const profiles::OmrBox& box);

}  // namespace tavrene::commands
