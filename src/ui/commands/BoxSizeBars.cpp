#include "ui/commands/BoxSizeBars.h"

#include <algorithm>

namespace tavrene::commands {

void BoxSizeBars::SetSizes(const BoxSizes& sizes) {
    positions_ = {sizes.minWidth, sizes.maxWidth, kHighest - sizes.minHeight, kHighest - sizes.maxHeight};
    for (int& position : positions_)
        position = std::clamp(position, kLowest, kHighest);
    for (const Bar bar : kAllBars)
        ApplyRule(bar);
}

void BoxSizeBars::Move(Bar bar, int position) {
    At(bar) = std::clamp(position, kLowest, kHighest);
    ApplyRule(bar);
}

BoxSizes BoxSizeBars::Sizes() const {
    return {Position(Bar::MinWidth), Position(Bar::MaxWidth), kHighest - Position(Bar::MinHeight),
            kHighest - Position(Bar::MaxHeight)};
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

BoxSizes SizesOfFirstPositions() {
    return BoxSizeBars().Sizes();
}

PreviewBox BoxInPreview(int previewWidth, int previewHeight, int boxWidth, int boxHeight) {
    const double left = (previewWidth - boxWidth) / 2.0;
    const double top = (previewHeight - boxHeight) / 2.0;
    return {left, top, left + boxWidth, top + boxHeight};
}

}  // namespace tavrene::commands
