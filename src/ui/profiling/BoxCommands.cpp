#include "ui/profiling/BoxCommands.h"

#include "profiles/BoxArrangement.h"

namespace tavrene::ui {

using commands::Command;
using profiles::BoxSelection;
using profiles::Direction;
using profiles::OmrBox;
using profiles::Side;

BoxCommands::BoxCommands(commands::CommandGate& gate, const profiles::OpenProfile& profile,
                         profiles::BoxEditor& editor)
    : profile_(profile), editor_(editor) {
    ConnectSelecting(gate);
    ConnectArranging(gate);
}

void BoxCommands::ConnectSelecting(commands::CommandGate& gate) {
    gate.SetHandler(
        Command::SelectAllBoxes,
        [this] {
            const std::vector<int> all = profiles::KeptNumbers(profile_.BoxList);
            const int current = profile_.Selected.Current();
            editor_.Select({all, current != 0 ? current : all.front()});
        },
        [this] { return !profiles::KeptNumbers(profile_.BoxList).empty(); });
    gate.SetHandler(
        Command::SelectSameSize,
        [this] { editor_.Select(profiles::OfSizeOf(profile_.BoxList, profile_.Selected.Current())); },
        [this] { return !profile_.Selected.IsEmpty(); });
}

void BoxCommands::ConnectArranging(commands::CommandGate& gate) {
    using Arrange = std::function<void(std::vector<OmrBox>&, const BoxSelection&)>;
    const auto aligned = [this](Side side) {
        return [this, side](std::vector<OmrBox>& boxes, const BoxSelection& selected) {
            profiles::Align(boxes, selected, side, ExtentOf(profile_));
        };
    };
    const auto distributed = [](Direction direction) {
        return [direction](std::vector<OmrBox>& boxes, const BoxSelection& selected) {
            profiles::Distribute(boxes, selected, direction);
        };
    };
    const std::pair<Command, Arrange> ways[] = {
        {Command::EqualSize,
         [this](std::vector<OmrBox>& boxes, const BoxSelection& selected) {
             profiles::MakeEqualSize(boxes, selected, ExtentOf(profile_));
         }},
        {Command::AlignLeft, aligned(Side::Left)},
        {Command::AlignRight, aligned(Side::Right)},
        {Command::AlignTop, aligned(Side::Top)},
        {Command::AlignBottom, aligned(Side::Bottom)},
        {Command::DistributeAcross, distributed(Direction::Across)},
        {Command::DistributeDown, distributed(Direction::Down)},
    };
    for (const auto& [command, arrange] : ways)
        gate.SetHandler(
            command,
            [this, arrange = arrange] {
                editor_.Change([&](std::vector<OmrBox>& boxes) { arrange(boxes, profile_.Selected); });
            },
            [this] { return profile_.Selected.HasSeveral(); });
}

}  // namespace tavrene::ui
