#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "review/ReviewScreen.h"

namespace tavrene::review {

/// The forms of a list that nothing is in doubt of, and how many are left aside for what reason.
struct ClearForms {
    std::vector<std::string> documents;  ///< In the order of the list.
    std::map<std::string, int> perProfile;
    std::size_t reviewed = 0;  ///< Of these: a person has looked at them.
    std::size_t inDoubt = 0;
    std::size_t unknown = 0;  ///< Not looked at yet, or not to be read.
    std::size_t hidden = 0;   ///< The list does not show them.

    void Add(const ReviewLine& line);
};

/// The question before they are accepted.
std::string AcceptAllQuestion(const ClearForms& forms);

/// Why there is nothing to accept.
std::string NothingClear(const ClearForms& forms);

/// Some of the sentences, one a line, and how many more there are.
std::string TextOfFailures(std::span<const std::string> failures);

}  // namespace tavrene::review
