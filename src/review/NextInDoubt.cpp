#include "review/NextInDoubt.h"

#include "app/Counted.h"

namespace tavrene::review {

NextInDoubt FindNextInDoubt(ReviewList& list, const ReviewLines& shown, std::optional<std::size_t> open,
                            const std::function<bool(std::size_t line)>& mayOpen, const WorkWatch& goesOn) {
    const std::size_t total = list.Uncounted();
    NextInDoubt found;
    std::optional<std::size_t> line = shown.Beside(open, 1);
    for (std::size_t tries = 0; tries < list.Lines().size(); ++tries) {
        if (!line)
            line = shown.Beside(std::nullopt, 1);
        if (!line || line == open)
            break;
        const bool isUnknown = list.IsUncounted(list.Lines()[*line]);
        if (isUnknown && !goesOn(total - list.Uncounted(), total))
            break;
        if (list.CountOf(*line) > 0) {
            if (mayOpen(*line)) {
                found.line = line;
                break;
            }
            ++found.asking;
        }
        line = shown.Beside(line, 1);
    }
    found.unknown = list.Uncounted();
    return found;
}

std::string TextOfNone(const NextInDoubt& found) {
    if (found.unknown > 0)
        return "No box in doubt was found yet; " + app::Counted(found.unknown, "form is", "forms are") +
               " still to be looked at.";
    if (found.asking > 0)
        return app::Counted(found.asking, "form has", "forms have") +
               " boxes in doubt, but a question to answer first: open by Enter.";
    return "No form of the list has a box in doubt.";
}

}  // namespace tavrene::review
