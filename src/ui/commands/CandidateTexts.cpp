#include "ui/commands/CandidateTexts.h"

#include "app/Counted.h"

namespace tavrene::commands {
namespace {

std::string Measures(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

// Empty without boxes of another size.
std::string OtherSizeText(const boxes::SecondLook& look) {
    if (!look.Other)
        return {};
    const boxes::OtherSize& other = *look.Other;
    return app::Counted(other.Count, "box", "boxes") + " of about " +
           Measures(other.Size.Width, other.Size.Height) +
           (other.IsLarger ? " px: larger than the settings allow."
                           : " px: smaller than the settings allow.");
}

std::string MoreMayBe(std::size_t candidates) {
    return app::Counted(candidates, "more may be a box", "more may be boxes");
}

}  // namespace

std::string OfferOf(int found, const boxes::SecondLook& look) {
    if (look.Candidates.empty())
        return {};
    const std::string other = OtherSizeText(look);
    return app::Counted(found, "box", "boxes") + " found. " + (other.empty() ? "" : other + " ") +
           MoreMayBe(look.Candidates.size()) + ": look at " + (look.Candidates.size() == 1 ? "it" : "them") +
           " with Find More Boxes (Ctrl+M).";
}

std::string HeadingOf(std::size_t candidates, const boxes::SecondLook& look) {
    const std::string other = OtherSizeText(look);
    const std::string keys = "Enter takes one, Ctrl+A all, Esc closes.";
    if (candidates == 0)
        return OutcomeOf(0, look) + " Esc closes.";
    return (other.empty() ? "" : other + " ") + MoreMayBe(candidates) + ". " + keys;
}

std::string OutcomeOf(std::size_t candidates, const boxes::SecondLook& look) {
    if (look.WasStopped)
        return "Looking for more boxes was stopped.";
    return candidates == 0 ? "No more boxes were found." : MoreMayBe(candidates) + ".";
}

std::string RowOf(const profiles::OmrBox& box) {
    return Measures(box.R - box.L, box.B - box.T) + " at " + std::to_string(box.L) + ", " +
           std::to_string(box.T);
}

}  // namespace tavrene::commands
