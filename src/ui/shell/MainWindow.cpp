#include "ui/shell/MainWindow.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QSplitter>
#include <QTimer>
#include <QUrl>

#include "imaging/Bitmap.h"
#include "ui/base/EscapeWatch.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"
#include "ui/base/TabStops.h"
#include "ui/commands/Places.h"
#include "ui/commands/SettingsCommand.h"
#include "ui/commands/WindowLoad.h"
#include "ui/scanning/ScanCommand.h"
#include "ui/settings/SettingsDialog.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/ContextMenus.h"
#include "ui/shell/EscapeFirst.h"
#include "ui/shell/Language.h"
#include "ui/shell/ScanIntake.h"

namespace tavrene::ui {

using commands::Command;

MainWindow::MainWindow(const app::Settings& settings, const WindowContext& context)
    : context_(context),
      state_(commands::InitialState(settings)),
      panels_(new StatusPanels(this)),
      summary_(new SummaryPanel(this)),
      help_(new HelpWindow(this)),
      splitter_(new QSplitter(this)),
      strip_(new MessageStrip(this)),
      view_(new ImageView(context.files, this)),
      boxes_(new BoxListView(this)),
      candidates_(new CandidatePane(this)),
      side_(new QStackedWidget(this)),
      profiles_(new ProfilePane(this)),
      forms_(new ReviewPane(this)),
      operator_(*this, *panels_, *strip_, *view_),
      dialogs_(*this, context.files),
      log_(context.files, context.clock, operator_, state_.folders.Log),
      precise_(context.files, state_.reading),
      run_({.files = context.files,
            .log = log_,
            .person = operator_,
            .clock = context.clock,
            .page = *view_,
            .rows = *boxes_,
            .precise = &precise_,
            .jobs = [this] { return commands::JobsOf(state_.reading); },
            .look = [this](const auto&... read) { return review_.LookAtRead()(read...); }},
           state_.settings, state_.folders),
      gate_({operator_, log_, [this] { return CurrentMode(); }, [this] { return desk_.MayLeave(); },
             [this] { return review_.MayLeave(); }}),
      desk_(state_, {context.files, operator_, log_, context.clock, gate_, dialogs_, context.store, precise_},
            {*view_, *boxes_, *profiles_, *candidates_}),
      review_(state_, {context.files, operator_, log_, context.store, gate_, precise_},
              {*view_, *boxes_, *side_, *forms_}, [this] { desk_.Close(); }),
      reading_(state_,
               {context.store, context.files, log_, operator_, precise_, gate_,
                [this] { review_.RunBegins(); }, [this](auto forms) { WereRead(forms); }, &WorkUndisturbed}),
      export_(*this, {context.store, context.files, operator_, dialogs_}, state_.folders),
      runs_(state_, run_, {[this] { RunBegins(); }, [this] { RunEnded(); }, [this] { close(); }}),
      toolbars_(*this, [this](Command command) { RunCommand(command); }),
      shape_(*this, {context.store, *view_, toolbars_, {&summary_->List(), &forms_->Unread().List()}}) {
    setObjectName("frmTavrene");
    BuildLayout();
    ConnectViewCommands();
    ConnectCommands();
    ConnectSummary();
    // One thing with each Escape, that which came last first.
    new EscapeFirst(*this,
                    [this] { return help_->Close() || operator_.CloseReports() || summary_->Close(); });
    AddContextMenus(
        {*profiles_, *forms_, *boxes_, *view_, toolbars_, desk_.Session(), [this] { OfferCommands(); }});
    auto* const intake = new ScanIntake(*this, {context.files, operator_, state_, gate_, context.store});
    new ScanCommand(*this, {context_.files, operator_, context_.clock, state_, gate_});
    summary_->SetSplitter([this, intake] {
        gate_.Take(Command::BringIn, [&] { intake->BringInFurtherPages(run_); });
        summary_->Show(run_.Summary());
    });
    AddLanguages(*toolbars_.MenuOf(commands::Menu::View), context.store, operator_);
    shape_.Restore();
    UpdateCommands();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildLayout() {
    splitter_->setObjectName("Splitter1");
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(1);
    side_->addWidget(profiles_);
    side_->addWidget(forms_);
    side_->setMinimumWidth(190);
    auto* const lists = new QSplitter(Qt::Vertical, splitter_);
    lists->setObjectName("Splitter2");
    lists->setChildrenCollapsible(false);
    lists->setMinimumWidth(220);
    lists->addWidget(boxes_);
    lists->addWidget(candidates_);
    view_->setMinimumWidth(220);
    view_->SetNames([boxes = boxes_](int number) { return boxes->NameOf(number); });
    splitter_->addWidget(side_);
    splitter_->addWidget(StripAbove(*strip_, *view_));
    splitter_->addWidget(lists);
    splitter_->setStretchFactor(1, 1);
    splitter_->setSizes({300, 690, 290});
    auto* const middle = new QWidget(this);
    QVBoxLayout* const column = FillingColumn(middle);
    column->addWidget(splitter_, 1);
    column->addWidget(summary_);
    setCentralWidget(middle);
    setStatusBar(panels_);
    OrderTabStops({&profiles_->Strip(), &profiles_->Active(), &forms_->List(), &forms_->Choice(), strip_,
                   view_, boxes_, &candidates_->List(), summary_, &panels_->Zoom()});
    // A laptop at twice the scale has no more room than this.
    setMinimumSize(640, 320);
    ResizeWithinScreen(*this, {1280, 800});
}

void MainWindow::ConnectViewCommands() {
    gate_.SetHandler(Command::ZoomToOrig, [this] { view_->ZoomToOriginal(); });
    gate_.SetHandler(Command::ZoomIn, [this] { view_->ZoomIn(); });
    gate_.SetHandler(Command::ZoomOut, [this] { view_->ZoomOut(); });
    gate_.SetHandler(Command::FitPage, [this] { view_->KeepFit(ZoomFit::Page); });
    gate_.SetHandler(Command::FitWidth, [this] { view_->KeepFit(ZoomFit::Width); });
    panels_->Zoom().Connect(*view_);
    gate_.SetHandler(Command::ToolbarLabels, [this] {
        toolbars_.ShowLabels(!toolbars_.LabelsShown());
        shape_.Remember();
    });
}

void MainWindow::ConnectCommands() {
    gate_.SetHandler(Command::Process, [this] { Process(); });
    gate_.SetHandler(Command::Stop, [this] { runs_.Stop(); });
    gate_.SetHandler(Command::Settings, [this] { ShowSettings(); });
    gate_.SetHandler(Command::ExportResults, [this] { export_.Run(); });
    gate_.SetHandler(Command::OpenWorkingFolder,
                     [this] { OpenOnDesktop(commands::WorkingFolderInUse(state_.folders)); });
    gate_.SetHandler(Command::OpenLog,
                     [this] { OpenOnDesktop(commands::LogToShow(context_.files, state_.folders)); });
    gate_.SetHandler(Command::Manual, [this] { help_->ShowFor(CurrentMode()); });
    gate_.SetHandler(Command::About, [this] { AboutDialog(this).exec(); });
    strip_->SetRunner([this](const std::function<void()>& act) {
        desk_.FinishEdits();
        gate_.Guard(act);
    });
    gate_.SetAfterwards([this] {
        UpdateCommands();
        runs_.CloseIfWaiting();
    });
}

commands::Mode MainWindow::CurrentMode() const {
    const review::ReviewSession& review = review_.Session();
    return commands::ModeOf({.isRunning = runs_.IsRunning(),
                             .isInReview = review.IsOn(),
                             .wasInReview = review.WasOn(),
                             .hasForm = review.HasForm(),
                             .hasProfile = desk_.Session().HasProfile(),
                             .canEdit = desk_.Session().IsOpen()});
}

// What it says and shows belongs to the run from here on, before its first file.
void MainWindow::RunBegins() {
    desk_.Close();
    reading_.RunBegins();
    review_.RunBegins();
    summary_->Close();
    operator_.CloseReports();
    panels_->CountFiles(true);
    UpdateCommands();
}

void MainWindow::RunEnded() {
    panels_->CountFiles(false);
    // It lists what the box has told meanwhile.
    operator_.CloseReports();
    if (!run_.Summary().files.empty())
        summary_->Show(run_.Summary());
    reading_.RunEnded(run_.Opinions());
    review_.RunEnded();
}

void MainWindow::WereRead(std::span<const recognition::FileReport> forms) {
    run_.Correct(forms);
    if (summary_->isVisible())
        summary_->Show(run_.Summary());
}

void MainWindow::ConnectSummary() {
    gate_.SetHandler(
        Command::RunSummary, [this] { summary_->Show(run_.Summary()); },
        [this] { return !run_.Summary().files.empty(); });
    for (ReasonList* const list : {&summary_->List(), &forms_->Unread().List()})
        list->SetListener(
            [this](const ReasonRow& file) { gate_.Take(Command::PickFile, [&] { ShowFile(file); }); });
    // Once the list that is being filled is whole.
    connect(&forms_->Unread().List(), &QTreeWidget::itemSelectionChanged, this, &MainWindow::OfferCommands,
            Qt::QueuedConnection);
    forms_->Unread().SetListener([this](Command command) { RunCommand(command); });
    gate_.SetHandler(Command::ProcessUnread, [this] { ProcessUnread(); });
}

bool MainWindow::HasFolder() const {
    return context_.folder == nullptr || context_.folder->Take(app::FolderLock::Use::Alone);
}

bool MainWindow::MayRun() {
    const bool mayRun = HasFolder();
    if (!mayRun)
        operator_.ShowMessage("", FromQt(Tr("MainWindow",
                                            "Another program works on the forms in %1.\n"
                                            "Process again when it has ended.")
                                             .arg(ToQt(state_.settings.WorkDir))));
    return mayRun;
}

void MainWindow::Process() {
    if (MayRun())
        runs_.Process();
}

// What cannot be processed stays where the list of unread pages shows it.
void MainWindow::ProcessUnread() {
    if (!run_.MayStart(state_.profiles) || !MayRun())
        return;
    review_.SendAllBack();
    runs_.Process();
}

// A file without a form is looked at by itself: what was open before would be taken for its boxes.
void MainWindow::ShowFile(const ReasonRow& file) {
    if (commands::WaitsForReview(context_.files, state_.folders, file.name) && review_.OpenFormOf(file.name))
        return;
    desk_.Close();
    review_.CloseForm();
    view_->ShowFile(commands::ImageInUse(context_.files, state_.folders, file.name));
    const app::Notice notice{file.name + ": " + file.reason};
    operator_.ShowNotices({&notice, 1});
    fileMode_ = CurrentMode();
    // What the notice leaves of the room is known only once the window is laid out.
    QTimer::singleShot(0, view_, [view = view_] { view->FitPage(); });
}

void MainWindow::RunCommand(Command command) {
    if (command == Command::Exit) {
        close();
        return;
    }
    desk_.FinishEdits();
    gate_.Run(command);
}

void MainWindow::OfferCommands() {
    toolbars_.Update([this, mode = CurrentMode()](Command command) {
        return ButtonState{gate_.Offers(command), commands::IsShownIn(command, mode)};
    });
}

void MainWindow::UpdateCommands() {
    OfferCommands();
    if (fileMode_ && *fileMode_ != CurrentMode()) {
        operator_.ShowNotices({});
        fileMode_.reset();
    }
    desk_.Update();
    review_.Update();
    ShowTitle();
    for (const Command command :
         {Command::SelectBox, Command::AddBox, Command::BoxNames, Command::GroupFrames, Command::SnapToPrint})
        toolbars_.SetPressed(command, desk_.Presses(command));
    toolbars_.SetPressed(Command::Review, review_.Session().IsOn());
    toolbars_.SetPressed(Command::ToolbarLabels, toolbars_.LabelsShown());
    toolbars_.SetPressed(Command::PreciseAlignment, state_.reading.preciseAlignment);
    toolbars_.SetPressed(Command::GoOn, review_.GoesOn());
    toolbars_.SetPressed(Command::SecondOpinion, state_.reading.secondOpinion);
    toolbars_.SetPressed(Command::UseAllCores, state_.reading.allCores);
}

// The toolkit puts a star in the place of "[*]" while there are unsaved changes.
void MainWindow::ShowTitle() {
    const review::OpenForm* const form = review_.Session().Form();
    const profiles::OpenProfile& profile = desk_.Session().Profile();
    const QString name = ToQt(form != nullptr ? form->Name : profile.Name);
    const QString program = ToQt(app::kApplicationName);
    setWindowTitle(name.isEmpty() ? program : QString(name).replace("[*]", "[*][*]") + "[*] - " + program);
    setWindowModified(form != nullptr ? form->Changed : profile.ProfileChanged);
}

void MainWindow::Load() {
    commands::LoadWindow(state_,
                         {log_, operator_, &imaging::ImageLibraryVersion,
                          [this] {
                              // It would be what another program is in the middle of.
                              if (HasFolder())
                                  run_.Settle();
                              desk_.Load();
                          }},
                         gate_);
    gate_.Guard([this] { review_.Load(); });
}

void MainWindow::ShowSettings() {
    commands::ShowSettings(state_.settings, operator_, [this](app::Settings& settings) {
        SettingsDialog(settings, context_.store, context_.files, this).exec();
    });
}

void MainWindow::OpenOnDesktop(const std::string& path) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path))))
        operator_.ShowMessage("", "This desktop has no program that opens " + path);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    desk_.FinishEdits();
    gate_.Take(Command::Exit, [this, event] {
        if (!runs_.MayClose())
            return;
        shape_.Remember();
        review_.KeepCounts();
        event->accept();
    });
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    toolbars_.FitLabels();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        QMainWindow::keyPressEvent(event);
    else if (!desk_.CloseCandidates())
        close();
}

}  // namespace tavrene::ui
