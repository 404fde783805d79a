#include "ui/profiling/NameCommands.h"

#include <algorithm>
#include <string_view>

#include "profiles/BoxCells.h"
#include "ui/base/QtText.h"
#include "ui/profiling/NameBoxesDialog.h"

namespace tavrene::ui {

using commands::Command;
using profiles::OmrBox;

namespace {

constexpr std::string_view kBoxNames = "BoxNames";

}  // namespace

NameCommands::NameCommands(commands::CommandGate& gate, app::SettingsStore& store,
                           const profiles::OpenProfile& profile, profiles::BoxEditor& editor, ImageView& view)
    : profile_(profile),
      editor_(editor),
      view_(view),
      showsNames_(app::ReadWindowFlag(store, kBoxNames, false)) {
    gate.SetHandler(
        Command::NameBoxes, [this] { NameBoxes(); },
        [this] { return !profiles::KeptNumbers(profile_.BoxList).empty(); });
    gate.SetHandler(Command::BoxNames, [this, &store] {
        showsNames_ = !showsNames_;
        app::WriteWindowFlag(store, kBoxNames, showsNames_);
    });
    view.SetTabHandler([this, &gate](bool isForward) {
        bool isTaken = false;
        gate.Take(Command::EditBoxes, [&] { isTaken = Step(isForward); });
        return isTaken;
    });
    ConnectOrder(gate);
}

void NameCommands::ConnectOrder(commands::CommandGate& gate) {
    gate.SetHandler(Command::SortByPlace, [this] { Reorder(profiles::SortByPlace); });
    for (const auto& [command, by] :
         {std::pair(Command::MoveRowsUp, -1), std::pair(Command::MoveRowsDown, 1)})
        gate.SetHandler(
            command,
            [this, by = by] {
                Reorder([&](std::vector<OmrBox>& boxes) {
                    return profiles::MoveInList(boxes, profile_.Selected.Numbers(), by);
                });
            },
            [this] { return !profile_.Selected.IsEmpty(); });
}

// The same boxes stay selected under their new numbers.
void NameCommands::Reorder(const std::function<std::vector<int>(std::vector<OmrBox>&)>& reorder) {
    std::vector<OmrBox> after = profile_.BoxList;
    const std::vector<int> moved = reorder(after);
    const auto now = [&](int number) { return moved[static_cast<std::size_t>(number) - 1]; };
    std::vector<int> numbers;
    for (const int number : profile_.Selected.Numbers())
        numbers.push_back(now(number));
    const int current = profile_.Selected.Current();
    editor_.Change([&](std::vector<OmrBox>& boxes) { boxes = after; },
                   profiles::BoxSelection(numbers, current == 0 ? 0 : now(current)));
}

bool NameCommands::Step(bool isForward) {
    const std::vector<int> kept = profiles::KeptNumbers(profile_.BoxList);
    const auto current = std::find(kept.begin(), kept.end(), profile_.Selected.Current());
    if (current == kept.end() || (isForward ? current + 1 == kept.end() : current == kept.begin()))
        return false;
    editor_.Select(isForward ? *(current + 1) : *(current - 1));
    return true;
}

void NameCommands::NameBoxes() {
    const bool isSome = profile_.Selected.HasSeveral();
    NameBoxesDialog dialog(
        profile_.BoxList, isSome ? profile_.Selected.Numbers() : profiles::KeptNumbers(profile_.BoxList),
        ToQt(profile_.Image), [this](const auto& names, const auto& bad) { Preview(names, bad); },
        view_.window());
    // Beside the page, on which the names are shown.
    dialog.adjustSize();
    const QRect window = view_.window()->frameGeometry();
    dialog.move(window.right() - dialog.width() - 24, window.bottom() - dialog.height() - 64);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    Update();
    if (isAccepted)
        Reorder([&](std::vector<OmrBox>& boxes) {
            for (const profiles::NewName& name : dialog.Names())
                boxes[static_cast<std::size_t>(name.number) - 1].Name = name.name;
            return profiles::PutInOrder(boxes, dialog.Order());
        });
}

void NameCommands::Preview(const std::vector<profiles::NewName>& names, const std::set<int>& bad) {
    std::map<int, BoxLabel> labels;
    for (const profiles::NewName& name : names)
        labels[name.number] = {ToQt(name.name)};
    for (const int number : bad) {
        BoxLabel& label = labels[number];
        label.isBad = true;
        if (label.text.isEmpty())
            label.text = ToQt(profile_.BoxList[static_cast<std::size_t>(number) - 1].Name);
    }
    view_.Boxes().ShowLabels(std::move(labels));
}

void NameCommands::Update() {
    std::map<int, BoxLabel> labels;
    if (showsNames_ && profile_.IsOpen)
        for (const int number : profiles::KeptNumbers(profile_.BoxList))
            labels[number] = {ToQt(profile_.BoxList[static_cast<std::size_t>(number) - 1].Name)};
    view_.Boxes().ShowLabels(std::move(labels));
}

}  // namespace tavrene::ui
