#include "ui/commands/BoxSizeBars.h"

#include <algorithm>

namespace tavrene::commands {

void BoxSizeBars::SetSizes(const boxes::BoxSizes& sizes) {
    positions_ = {sizes.BoxMinWidth, sizes.BoxMaxWidth, kHighest - sizes.BoxMinHeight,
                  kHighest - sizes.BoxMaxHeight};
    for (int& position : positions_)
        position = std::clamp(position, kLowest, kHighest);
    for (const Bar bar : kAllBars)
        ApplyRule(bar);
}

void BoxSizeBars::Move(Bar bar, int position) {
    At(bar) = std::clamp(position, kLowest, kHighest);
    ApplyRule(bar);
}

boxes::BoxSizes BoxSizeBars::Sizes() const {
    const auto size = [](int pixels) { return static_cast<std::int16_t>(pixels); };
    return {size(Pixels(Bar::MinWidth)), size(Pixels(Bar::MaxWidth)), size(Pixels(Bar::MinHeight)),
            size(Pixels(Bar::MaxHeight))};
}

void BoxSizeBars::ApplyRule(Bar bar) {
    int& position = At(bar);
    switch (bar) {
        case Bar::MinWidth:
            position = std::min(position, Position(Bar::MaxWidth));
            break;
        case Bar::MaxWidth:
            position = std::max(position, Position(Bar::MinWidth));
            break;
        case Bar::MinHeight:
            // The floor of 10 goes first; a largest height below it is brought up by its own rule.
            position = std::min(std::max(position, Position(Bar::MaxHeight)), kHighest - kLowest);
            break;
        case Bar::MaxHeight:
            position = std::min(position, Position(Bar::MinHeight));
            break;
    }
}

boxes::BoxSizes SizesOfFirstPositions() {
    return BoxSizeBars().Sizes();
}

PreviewBox BoxInPreview(int previewWidth, int previewHeight, int boxWidth, int boxHeight) {
    const double left = (previewWidth - boxWidth) / 2.0;
    const double top = (previewHeight - boxHeight) / 2.0;
    return {left, top, left + boxWidth, top + boxHeight};
}

}  // namespace tavrene::commands
