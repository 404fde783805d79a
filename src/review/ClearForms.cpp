#include "review/ClearForms.h"

#include <algorithm>

#include "app/Counted.h"

namespace tavrene::review {
namespace {

std::string LineOf(std::size_t count, const char* one, const char* many) {
    return count == 0 ? std::string() : "\n" + app::Counted(count, one, many);
}

std::string WhatStays(const ClearForms& forms) {
    return LineOf(forms.inDoubt, "form with boxes in doubt stays.", "forms with boxes in doubt stay.") +
           LineOf(forms.unknown, "form that could not be looked at yet stays.",
                  "forms that could not be looked at yet stay.") +
           LineOf(forms.hidden, "form that the list does not show stays.",
                  "forms that the list does not show stay.");
}

}  // namespace

void ClearForms::Add(const ReviewLine& line) {
    if (!line.Reviewed && line.Doubts != 0) {
        ++(line.Doubts ? inDoubt : unknown);
        return;
    }
    documents.push_back(line.Document);
    ++perProfile[line.Profile];
    reviewed += line.Reviewed ? 1 : 0;
}

std::string AcceptAllQuestion(const ClearForms& forms) {
    std::string text =
        "Accept " + app::Counted(forms.documents.size(), "form", "forms") + " without doubt?\n";
    for (const auto& [profile, count] : forms.perProfile)
        text += "\n" + std::to_string(count) + " of profile " + profile;
    text += "\n";
    if (forms.reviewed > 0)
        text += "\n" + std::to_string(forms.reviewed) + " of them were reviewed.";
    return text + WhatStays(forms) + "\n\nThey move to ProcessFinal. Undo Decision brings all of them back.";
}

std::string NothingClear(const ClearForms& forms) {
    std::string stays = WhatStays(forms);
    std::ranges::replace(stays, '\n', ' ');
    return "No form to accept." + stays;
}

std::string TextOfFailures(std::span<const std::string> failures) {
    constexpr std::size_t kMost = 10;
    std::string text;
    for (std::size_t k = 0; k < std::min(failures.size(), kMost); ++k)
        text += (k == 0 ? "" : "\n") + failures[k];
    if (failures.size() > kMost)
        text += "\nand " + std::to_string(failures.size() - kMost) + " more.";
    return text;
}

}  // namespace tavrene::review
