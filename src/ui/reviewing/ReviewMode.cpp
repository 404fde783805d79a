#include "ui/reviewing/ReviewMode.h"

#include <QApplication>
#include <QKeyEvent>
#include <optional>
#include <utility>

#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

using commands::Command;

namespace {

constexpr std::string_view kGoOn = "GoOn";

// Milliseconds of quiet after a command, a key or a click.
constexpr int kCountAfter = 400;

// What a key in one of the lists means; `canFlip` in a list of boxes that can be flipped.
std::optional<Command> CommandOf(const QKeyEvent& key, bool canFlip) {
    if ((key.modifiers() & ~Qt::KeypadModifier) != 0)
        return std::nullopt;
    switch (key.key()) {
        case Qt::Key_PageDown:
            return Command::NextForm;
        case Qt::Key_PageUp:
            return Command::PreviousForm;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return canFlip ? std::optional(Command::FlipBox) : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace

ReviewMode::ReviewMode(const commands::AppState& state, const ReviewModeContext& context,
                       const ReviewControls& controls, std::function<void()> closeProfile)
    : state_(state),
      gate_(context.gate),
      closeProfile_(std::move(closeProfile)),
      controls_(controls),
      marks_(controls.view),
      session_({context.files,
                context.log,
                context.person,
                controls.view,
                controls.boxes,
                {controls.pane.List(), controls.pane.Choice()},
                &context.precise},
               state.settings, state.folders, state.profiles),
      doubts_(session_, {context.person, gate_, controls_.boxes, *controls_.view.window()}),
      goesOn_(app::ReadWindowFlag(context.store, kGoOn, true)) {
    gate_.SetHandler(Command::GoOn, [this, &store = context.store] {
        goesOn_ = !goesOn_;
        app::WriteWindowFlag(store, kGoOn, goesOn_);
    });
    ConnectCommands();
    ConnectFormCommands();
    ConnectDecisions();
    ConnectControls();
    FollowList();
    WatchFolder();
    CountDoubtsInIdleTime();
}

void ReviewMode::ConnectCommands() {
    gate_.SetHandler(Command::Review, [this] { Toggle(); });
    gate_.SetHandler(
        Command::OpenForm,
        [this] {
            if (const auto line = controls_.pane.List().SelectedLine())
                session_.Open(*line);
        },
        [this] { return controls_.pane.List().SelectedLine().has_value(); });
    gate_.SetHandler(
        Command::BackToProcessIn,
        [this] { session_.SendBack(controls_.pane.Unread().List().SelectedNames()); },
        [this] { return !controls_.pane.Unread().List().SelectedNames().empty(); });
    gate_.SetHandler(
        Command::AllBackToProcessIn, [this] { session_.SendAllBack(); },
        [this] { return !session_.Unread().empty(); });
    ConnectNeighbour(Command::NextForm, 1);
    ConnectNeighbour(Command::PreviousForm, -1);
}

void ReviewMode::ConnectNeighbour(Command command, int step) {
    const auto line = [this, step] { return session_.Neighbour(controls_.pane.List().SelectedLine(), step); };
    gate_.SetHandler(
        command, [this, line] { session_.Open(*line()); }, [line] { return line().has_value(); });
}

// They wait while another line than that of the open form stands out, so that nobody decides about a form
// that is not the one in sight.
void ReviewMode::ConnectDecisions() {
    const auto isHighlighted = [this] { return IsOpenFormSelected(); };
    gate_.SetHandler(
        Command::Okay, [this] { Save(); }, isHighlighted);
    gate_.SetHandler(
        Command::AcceptForm, [this] { Decide([this] { session_.Accept(); }); }, isHighlighted);
    gate_.SetHandler(
        Command::RejectForm, [this] { Decide([this] { session_.Reject(); }); }, isHighlighted);
}

bool ReviewMode::IsOpenFormSelected() const {
    const std::optional<std::size_t> selected = controls_.pane.List().SelectedLine();
    return !selected || !session_.OpenLine() || selected == session_.OpenLine();
}

// Another selected line, or others that the filter shows. Not at once, for the list itself is brought up to
// date then, and once for all the lines that come and go together.
void ReviewMode::FollowList() {
    offer_.setSingleShot(true);
    offer_.setInterval(0);
    connect(&offer_, &QTimer::timeout, this, [this] {
        if (!gate_.IsBusy() && session_.IsOn())
            gate_.Guard([] {});  // what is offered follows every event
    });
    const auto follow = [this] { offer_.start(); };
    const ReviewListView& list = controls_.pane.List();
    connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this, follow);
    connect(list.model(), &QAbstractItemModel::rowsInserted, this, follow);
    connect(list.model(), &QAbstractItemModel::rowsRemoved, this, follow);
}

void ReviewMode::ConnectFormCommands() {
    gate_.SetHandler(Command::FlipBox, [this] { session_.FlipBox(controls_.boxes.CurrentNumber()); });
    gate_.SetHandler(Command::FilterForms, [this] { controls_.pane.ShowFilter(); });
}

void ReviewMode::ConnectControls() {
    controls_.pane.List().SetListener(
        [this](std::size_t line) { gate_.Take(Command::PickForm, [&] { session_.Open(line); }); });
    connect(&controls_.pane.Choice(), &QComboBox::textActivated, this, [this](const QString& name) {
        gate_.Take(Command::PickProfile, [&] { session_.ReadAgainst(FromQt(name)); });
    });
    marks_.SetListener([this](int group) { gate_.Take(Command::PickMark, [&] { RectClicked(group); }); });
    // The second click of a double click turns the mark back, as the first one turned it.
    const auto flip = [this](QTreeWidgetItem* row) {
        gate_.Take(Command::PickMark, [&] { session_.FlipBox(controls_.boxes.NumberOf(row)); });
    };
    connect(&controls_.boxes, &QTreeWidget::itemClicked, this, flip);
    connect(&controls_.boxes, &QTreeWidget::itemDoubleClicked, this, flip);
    connect(&controls_.boxes, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
        if (row != nullptr)
            gate_.Take(Command::PickMark, [&] { session_.BoxSelected(controls_.boxes.NumberOf(row)); });
    });
    controls_.boxes.installEventFilter(this);
    controls_.pane.List().installEventFilter(this);
}

void ReviewMode::Toggle() {
    const BusyCursor busy;
    if (session_.IsOn()) {
        session_.End();
        watcher_.removePath(ToQt(state_.folders.ProcessOut));
        return;
    }
    watcher_.addPath(ToQt(state_.folders.ProcessOut));
    closeProfile_();
    session_.Begin();
    controls_.pane.OfferProfiles();
    TakeFirstLine();
}

bool ReviewMode::OpenFormOf(const std::string& image) {
    if (!session_.IsOn())
        Toggle();
    const std::optional<std::size_t> line = controls_.pane.List().LineOf(app::BaseName(image));
    if (!line)
        return false;
    controls_.pane.ShowForms();
    controls_.pane.List().SelectLine(*line);
    session_.Open(*line);
    return true;
}

// So that the first form is one Enter away. Only a list in sight can have the focus.
void ReviewMode::TakeFirstLine() {
    controls_.side.setCurrentWidget(&controls_.pane);
    controls_.pane.ShowForms();
    controls_.pane.List().setFocus();
    if (const std::optional<std::size_t> line = session_.FirstToDo())
        controls_.pane.List().SelectLine(*line);
}

// While a command is under way, with a question of it open perhaps, the list stays as the command found it;
// it is brought up to date at the command's end.
void ReviewMode::WatchFolder() {
    constexpr int kBurst = 200;  // milliseconds
    folderChanged_.setSingleShot(true);
    folderChanged_.setInterval(kBurst);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] { folderChanged_.start(); });
    connect(&folderChanged_, &QTimer::timeout, this, [this] {
        if (!gate_.IsBusy())
            gate_.Guard([this] { session_.FollowFolder(); });
    });
}

// One form at a time, with a pause in which clicks and keys are taken first. A form that cannot be read is no
// failure of a command: opening it tells what is wrong.
void ReviewMode::CountDoubtsInIdleTime() {
    constexpr int kPause = 20;  // milliseconds
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, [this] {
        const bool isInUse = QApplication::activePopupWidget() != nullptr;
        if (gate_.IsBusy() || isInUse || gate_.CurrentMode() == commands::Mode::Run)
            idle_.start(kCountAfter);
        else if (const int left = input_.LeftOf(kCountAfter); left > 0)
            idle_.start(left);
        else if (session_.CountNextDoubts())
            idle_.start(kPause);
    });
}

void ReviewMode::Decide(const std::function<void()>& decide) {
    decide();
    GoOn();
}

// The keys go where the next thing is to do.
void ReviewMode::GoOn() {
    if (goesOn_ && session_.GoOn())
        controls_.boxes.setFocus();
    else if (!IsOpenFormSelected())
        controls_.pane.List().setFocus();
}

// Who saves a form and still has it in the list may mean to decide about it next.
void ReviewMode::Save() {
    if (!session_.Save())
        return;
    const std::optional<std::size_t> line = session_.OpenLine();
    if (line && !controls_.pane.List().Wants(*line))
        GoOn();
}

void ReviewMode::RectClicked(int group) {
    // A box without a row leaves none selected, so that no key means another one.
    controls_.boxes.SelectRow(group);
    controls_.boxes.setFocus();
    session_.FlipBox(group);
}

void ReviewMode::RunEnded() {
    session_.RunEnds();
    if (session_.IsOn())
        TakeFirstLine();
}

void ReviewMode::Update() {
    if (gate_.CurrentMode() != commands::Mode::Run)
        session_.FollowFolder();
    const bool inReview = session_.IsOn();
    if (inReview && !idle_.isActive())
        idle_.start(kCountAfter);
    controls_.side.setCurrentIndex(inReview ? controls_.side.indexOf(&controls_.pane) : 0);
    controls_.pane.ShowUnread(session_.Unread());
    controls_.pane.Unread().Update([this](Command command) { return gate_.Offers(command); });
    marks_.SetActive(session_.HasForm());
    controls_.view.SetHint(inReview
                               ? Tr("ReviewMode", "Choose a form on the left: a click or Enter opens it.")
                               : Tr("ReviewMode",
                                    "Choose a profile on the left, make one with New,\n"
                                    "or press Process to read the scans that wait in the folder ProcessIn."));
    controls_.pane.List().MarkOpen(session_.OpenLine());
    controls_.pane.Choice().setEnabled(session_.HasForm() && IsOpenFormSelected());
    // With the form all that had its keys is gone; Enter opens the next one. A list of files, whose line took
    // the form's place on the page, goes on by itself.
    const bool hasKeys = dynamic_cast<const ReasonList*>(QApplication::focusWidget()) != nullptr;
    if (std::exchange(hadForm_, session_.HasForm()) && inReview && !hadForm_ && !hasKeys)
        controls_.pane.List().setFocus();
}

// Who types a name in the list looks for a box. Digits belong to the name then, and blanks as far as a name
// has one there: otherwise they turn the box that was found.
bool ReviewMode::IsTyping(const QKeyEvent& key) {
    const QString text = key.text();
    const bool goesOn = since_.isValid() && since_.elapsed() < QApplication::keyboardInputInterval();
    if (text.isEmpty() || !(text[0].isLetter() || (goesOn && text[0].isPrint())))
        return false;
    const QString name = goesOn ? typed_ + text : text;
    if (text == " " && controls_.boxes.findItems(name, Qt::MatchStartsWith).isEmpty())
        return false;
    typed_ = name;
    since_.start();
    return true;
}

// The digits turn the boxes of a question round.
bool ReviewMode::TakeDigit(const QKeyEvent& key) {
    const int n = key.key() - Qt::Key_0;
    if ((key.modifiers() & ~Qt::KeypadModifier) != 0 || n < 1 || n > 9 || !session_.HasForm())
        return false;
    if (!key.isAutoRepeat())
        gate_.Take(Command::PickMark, [&] { session_.FlipInGroup(controls_.boxes.CurrentNumber(), n); });
    return true;
}

bool ReviewMode::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !session_.IsOn())
        return false;
    const auto& key = dynamic_cast<const QKeyEvent&>(*event);
    if (watched == &controls_.boxes && IsTyping(key))
        return false;
    const std::optional<Command> command = CommandOf(key, watched == &controls_.boxes && session_.HasForm());
    if (!command)
        return watched == &controls_.boxes && TakeDigit(key);
    if (!key.isAutoRepeat())
        gate_.Run(*command);
    return true;
}

}  // namespace tavrene::ui
