#include "ui/profiling/ProfileDesk.h"

#include <QShortcut>
#include <algorithm>
#include <initializer_list>

#include "app/Numeric.h"
#include "profiles/ProfileLoader.h"
#include "recognition/ProfileAdvice.h"
#include "recognition/ResultDocument.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"
#include "ui/profiling/TestProfileDialog.h"

namespace tavrene::ui {

using commands::Command;
using imaging::BoxTool;

ProfileDesk::ProfileDesk(commands::AppState& state, const DeskContext& context, const DeskControls& controls)
    : state_(state),
      files_(context.files),
      store_(context.store),
      person_(context.person),
      precise_(context.precise),
      gate_(context.gate),
      controls_(controls),
      session_({context.files, context.person, context.dialogs, context.log, context.clock, state.folders,
                [this](const auto& profile) { return recognition::AdviseOn(profile, state_.reading); },
                [this] {
                    return app::Notice{more_.Offer(), "Find More Boxes",
                                       [this] { gate_.Run(Command::FindMoreBoxes); }};
                },
                [this](const auto& folder, const auto& name) {
                    return recognition::HasResultOf(files_, folder, name);
                }},
               state.profiles, {controls.view, controls.rows, controls.pane.Strip()}),
      boxes_(context.gate, session_.Profile(), session_.Editor()),
      names_(context.gate, context.store, session_.Profile(), session_.Editor(), controls.view),
      copies_(context.gate, context.files, context.person, context.store, session_.Profile(),
              session_.Editor(), controls.view),
      groups_(context.gate, context.store, session_.Profile(), session_.Editor(), controls.view),
      more_({context.files, context.person, state, session_.Profile(), session_.Editor(), controls.view,
             controls.candidates},
            [this](const std::function<void()>& event) { gate_.Take(Command::EditBoxes, event); }) {
    ConnectCommands();
    ConnectBoxCommands();
    ConnectControls();
}

void ProfileDesk::ConnectCommands() {
    const auto connect = [this](Command command, std::function<void()> run) {
        gate_.SetHandler(command, [run = std::move(run)] {
            const BusyCursor busy;
            run();
        });
    };
    connect(Command::New, [this] {
        more_.Close();
        session_.New(boxes::SizesOf(state_.settings), state_.reach);
    });
    connect(Command::Save, [this] { session_.Save(); });
    connect(Command::DeleteProfile, [this] { session_.Delete(); });
    connect(Command::DuplicateProfile, [this] { session_.Duplicate(); });
    connect(Command::RenameProfile, [this] { session_.Rename(); });
    gate_.SetHandler(Command::TestProfile, [this] { TestProfile(); });
    connect(Command::FindMoreBoxes, [this] {
        session_.DropNotes();
        more_.Find();
    });
}

void ProfileDesk::ConnectBoxCommands() {
    gate_.SetHandler(Command::SelectBox, [this] { session_.Editor().SetTool(BoxTool::Select); });
    gate_.SetHandler(Command::AddBox, [this] { session_.Editor().SetTool(BoxTool::Add); });
    gate_.SetHandler(Command::PutBox, [this] { PutBox(); });
    gate_.SetHandler(Command::DeleteBox, [this] { session_.Editor().DeleteBox(); });
    gate_.SetHandler(
        Command::RenameBox, [this] { controls_.rows.EditName(session_.Profile().Selected.Current()); },
        [this] { return HasBox(); });
    gate_.SetHandler(
        Command::Undo, [this] { session_.Editor().Undo(); }, [this] { return session_.Editor().CanUndo(); });
    gate_.SetHandler(
        Command::Redo, [this] { session_.Editor().Redo(); }, [this] { return session_.Editor().CanRedo(); });
}

// The other profiles are those that a run would look at; scans that wait are tried where none was read yet.
void ProfileDesk::TestProfile() {
    std::vector<profiles::ProfileRecord> records = state_.profiles;
    const std::size_t tried = recognition::PutInPlace(records, RecordOf(session_.Profile()));
    const app::WorkingFolders& folders = state_.folders;
    std::string folder = folders.ProcessOut;
    std::vector<std::string> scans = ScansIn(files_, folder);
    if (scans.empty())
        scans = ScansIn(files_, folder = folders.ProcessIn);
    const auto way =
        state_.reading.preciseAlignment ? recognition::TrialWay::Precise : recognition::TrialWay::Plain;
    TestProfileDialog({files_, std::move(records), tried, std::move(folder), std::move(scans), precise_, way,
                       state_.settings.FillThreshold,
                       [this](int threshold) {
                           state_.settings.FillThreshold = app::ClampToInt16(threshold);
                           app::WriteCommonNumber(store_, "FillThreshold", state_.settings.FillThreshold);
                       }},
                      controls_.view.window())
        .exec();
    precise_.EndTrial();
}

// Of the size of the selected box, or of what is looked for on a page; the arrow keys are to take it further.
void ProfileDesk::PutBox() {
    const BoxLayer& boxes = controls_.view.Boxes();
    const app::Settings& sizes = state_.settings;
    const QSize usual =
        (QSize(sizes.BoxMinWidth, sizes.BoxMinHeight) + QSize(sizes.BoxMaxWidth, sizes.BoxMaxHeight)) / 2;
    const QRectF selected = boxes.PlaceOf(session_.Profile().Selected.Current());
    const QRectF place =
        boxes.FreePlace(controls_.view.Centre(), selected.isEmpty() ? QSizeF(usual) : selected.size());
    session_.Editor().DrawBox({place.left(), place.top(), place.width(), place.height()});
    controls_.view.setFocus();
}

void ProfileDesk::ConnectControls() {
    controls_.rows.SetListener(
        {[this](int number, profiles::Pick pick) {
             gate_.Take(Command::EditBoxes, [&] { session_.Editor().RowClicked(number, pick); });
         },
         [this](int number, const QString& name) {
             gate_.Take(Command::EditBoxes, [&] { session_.Editor().RowRenamed(number, FromQt(name)); });
         }});
    controls_.view.Boxes().SetListener(
        {[this](const imaging::RectReport& report) {
             gate_.Take(Command::EditBoxes, [&] {
                 if (!more_.Clicked(report.group))
                     session_.Editor().RectSelected(report);
             });
         },
         [this](int group) { gate_.Take(Command::EditBoxes, [&] { session_.Editor().RectMoved(group); }); },
         [this](int group, profiles::Pick pick) {
             gate_.Take(Command::EditBoxes, [&] { session_.Editor().RectPicked(group, pick); });
         },
         [this](const imaging::PageRect& area, bool isFurther) {
             gate_.Take(Command::EditBoxes, [&] { session_.Editor().AreaPicked(area, isFurther); });
         },
         [this](int dx, int dy) { gate_.Take(Command::EditBoxes, [&] { copies_.MoveBy(dx, dy); }); },
         [this](int dx, int dy) { gate_.Take(Command::EditBoxes, [&] { copies_.CopyBy(dx, dy); }); }});
    for (QWidget* const widget : std::initializer_list<QWidget*>{&controls_.view, &controls_.rows})
        new QShortcut(
            Qt::Key_Delete, widget,
            [this] {
                FinishEdits();
                gate_.Run(Command::DeleteBox);
            },
            Qt::WidgetWithChildrenShortcut);
    controls_.view.SetArrowHandler([this](const ArrowStep& step) {
        profiles::BoxEditor& editor = session_.Editor();
        const bool isTaken = CanEdit() && HasBox();
        if (isTaken)
            gate_.Take(Command::EditBoxes, [&] {
                step.stretches ? editor.Stretch(step.dx, step.dy, step.isHeld)
                               : editor.Nudge(step.dx, step.dy, step.isHeld);
            });
        return isTaken;
    });
    controls_.pane.Strip().SetListener(
        {[this](int k) { Pick(k); }, [this](int k) { return session_.NameOf(k); }});
    QObject::connect(&controls_.pane.Active(), &QCheckBox::clicked, &controls_.pane, [this](bool active) {
        gate_.Take(Command::SetActive, [&] { session_.SetActive(active); });
    });
}

// A save that comes first may change the order of the strip, so the profile goes by its path.
void ProfileDesk::Pick(int thumbnail) {
    FinishEdits();
    const std::string path = session_.PathOf(thumbnail);
    gate_.Take(Command::PickThumbnail, [&] {
        const BusyCursor busy;
        more_.Close();
        session_.Open(path);
    });
}

void ProfileDesk::Close() {
    session_.Close();
    controls_.pane.Strip().SelectThumbnail(0);
}

void ProfileDesk::FinishEdits() {
    controls_.rows.FinishEdit();
    controls_.view.CancelTool();
}

void ProfileDesk::Update() {
    more_.Update();
    names_.Update();
    groups_.Update();
    person_.ShowStandingNotices(session_.Notices());
    BoxLayer& boxes = controls_.view.Boxes();
    boxes.SetEditable(CanEdit());
    controls_.rows.SetEditable(CanEdit());
    controls_.pane.Active().setEnabled(CanEdit());
    controls_.pane.Active().setChecked(session_.Profile().Active);
}

bool ProfileDesk::Presses(Command command) const {
    if (command == Command::BoxNames)
        return names_.ShowsNames();
    if (command == Command::GroupFrames)
        return groups_.ShowsFrames();
    if (command == Command::SnapToPrint)
        return copies_.SnapsToPrint();
    const BoxTool tool = controls_.view.Boxes().Tool();
    return CanEdit() && ((command == Command::SelectBox && tool == BoxTool::Select) ||
                         (command == Command::AddBox && tool == BoxTool::Add));
}

}  // namespace tavrene::ui
