#include "ui/profiling/ProfileDesk.h"

#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

using commands::Command;
using imaging::BoxTool;

ProfileDesk::ProfileDesk(commands::AppState& state, const DeskContext& context, const DeskControls& controls)
    : state_(state),
      gate_(context.gate),
      controls_(controls),
      screen_{controls.view, controls.rows, controls.pane.Strip()},
      editor_(profile_, context.person, screen_),
      store_({context.files, context.person, context.log, context.clock, state.folders}, profile_,
             state.profiles, editor_, screen_),
      commands_(state, {store_, profile_, context.person, context.dialogs, controls.view}) {
    ConnectCommands();
    ConnectBoxCommands();
    ConnectControls();
}

void ProfileDesk::ConnectCommands() {
    const auto connect = [this](Command command, void (commands::ProfileCommands::*run)()) {
        gate_.SetHandler(command, [this, run] {
            const BusyCursor busy;
            (commands_.*run)();
        });
    };
    connect(Command::New, &commands::ProfileCommands::New);
    connect(Command::Save, &commands::ProfileCommands::Save);
    connect(Command::DeleteProfile, &commands::ProfileCommands::Delete);
}

void ProfileDesk::ConnectBoxCommands() {
    gate_.SetHandler(Command::SelectBox, [this] { editor_.SetTool(BoxTool::Select); });
    gate_.SetHandler(Command::AddBox, [this] { editor_.SetTool(BoxTool::Add); });
    gate_.SetHandler(Command::DeleteBox, [this] { editor_.DeleteBox(); });
    gate_.SetHandler(
        Command::RenameBox, [this] { controls_.rows.EditName(profile_.CurrentBox); },
        [this] { return HasBox(); });
    gate_.SetHandler(
        Command::Undo, [this] { editor_.Undo(); }, [this] { return editor_.CanUndo(); });
    gate_.SetHandler(
        Command::Redo, [this] { editor_.Redo(); }, [this] { return editor_.CanRedo(); });
}

void ProfileDesk::ConnectControls() {
    controls_.rows.SetListener(
        {[this](int number) { gate_.Take(Command::EditBoxes, [&] { editor_.RowClicked(number); }); },
         [this](int number, const QString& name) {
             gate_.Take(Command::EditBoxes, [&] { editor_.RowRenamed(number, FromQt(name)); });
         }});
    controls_.view.Boxes().SetListener(
        {[this](const imaging::RectReport& report) {
             gate_.Take(Command::EditBoxes, [&] { editor_.RectSelected(report); });
         },
         [this](int group) { gate_.Take(Command::EditBoxes, [&] { editor_.RectMoved(group); }); }});
    controls_.view.SetArrowHandler([this](int dx, int dy) {
        const bool isTaken = CanEdit() && HasBox();
        if (isTaken)
            gate_.Take(Command::EditBoxes, [&] { editor_.Nudge(dx, dy); });
        return isTaken;
    });
    controls_.pane.Strip().SetListener({[this](int k) {
                                            gate_.Take(Command::PickThumbnail, [&] {
                                                const BusyCursor busy;
                                                commands_.ThumbnailSelected(k);
                                            });
                                        },
                                        [this](int k) {
                                            std::string name;
                                            gate_.Guard([&] { name = store_.ThumbnailHover(k); });
                                            return name;
                                        }});
    QObject::connect(&controls_.pane.Active(), &QCheckBox::clicked, &controls_.pane, [this](bool active) {
        gate_.Take(Command::SetActive, [&] { commands_.SetActive(active); });
    });
}

void ProfileDesk::Close() {
    store_.Close();
    screen_.strip.SelectThumbnail(0);
}

void ProfileDesk::FinishEdits() {
    controls_.rows.FinishEdit();
    controls_.view.CancelTool();
}

void ProfileDesk::Update() {
    BoxLayer& boxes = controls_.view.Boxes();
    boxes.SetEditable(CanEdit());
    controls_.rows.SetEditable(CanEdit());
    controls_.pane.Active().setEnabled(CanEdit());
    controls_.pane.Active().setChecked(profile_.Active);
}

bool ProfileDesk::Presses(Command command) const {
    const BoxTool tool = controls_.view.Boxes().Tool();
    return CanEdit() && ((command == Command::SelectBox && tool == BoxTool::Select) ||
                         (command == Command::AddBox && tool == BoxTool::Add));
}

}  // namespace tavrene::ui
