#pragma once

#include <QMainWindow>
#include <optional>
#include <span>
#include <string>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/FolderLock.h"
#include "app/SettingsStore.h"
#include "recognition/ProcessRun.h"
#include "recognition/precise/PreciseReader.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/commands/ReadingCommands.h"
#include "ui/commands/RunSession.h"
#include "ui/exporting/ResultsExport.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"
#include "ui/profiling/ProfileDesk.h"
#include "ui/profiling/ProfilePane.h"
#include "ui/reviewing/ReviewMode.h"
#include "ui/reviewing/ReviewPane.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/QtFileDialogs.h"
#include "ui/shell/QtOperator.h"
#include "ui/shell/StatusPanels.h"
#include "ui/shell/SummaryPanel.h"
#include "ui/shell/Toolbars.h"
#include "ui/shell/WindowShape.h"

class QSplitter;

namespace tavrene::ui {

/// What the window needs of the world; everything must outlive it.
struct WindowContext {
    app::SettingsStore& store;
    app::Files& files;
    const app::Clock& clock;
    /// Held while nobody else may work on the forms, and tried again before each run; null where nobody else
    /// can.
    app::FolderLock* folder = nullptr;
};

/// The working screen `frmTavrene`. It builds, lays out and forwards; what its commands do lies in
/// ui/commands and below.
class MainWindow final : public QMainWindow {
  public:
    MainWindow(const app::Settings& settings, const WindowContext& context);
    ~MainWindow() override;

    /// Tests the image library and loads the profiles; called once, before the window is shown.
    void Load();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void BuildLayout();
    void ConnectViewCommands();
    void ConnectCommands();
    commands::Mode CurrentMode() const;
    void RunBegins();
    void RunEnded();
    void WereRead(std::span<const recognition::FileReport> forms);
    void RunCommand(commands::Command command);
    void OfferCommands();
    void UpdateCommands();
    void ShowTitle();
    void ConnectSummary();
    void Process();
    void ProcessUnread();
    bool HasFolder() const;
    bool MayRun();
    void ShowFile(const ReasonRow& file);
    void ShowSettings();
    void OpenOnDesktop(const std::string& path);

    WindowContext context_;
    commands::AppState state_;
    StatusPanels* panels_;
    SummaryPanel* summary_;
    HelpWindow* help_;
    QSplitter* splitter_;
    MessageStrip* strip_;
    ImageView* view_;
    BoxListView* boxes_;
    CandidatePane* candidates_;
    QStackedWidget* side_;
    ProfilePane* profiles_;
    ReviewPane* forms_;
    QtOperator operator_;
    QtFileDialogs dialogs_;
    app::ActivityLog log_;
    recognition::PreciseReader precise_;
    recognition::ProcessRun run_;
    commands::CommandGate gate_;
    ProfileDesk desk_;
    ReviewMode review_;
    commands::ReadingCommands reading_;
    ResultsExport export_;
    commands::RunSession runs_;
    Toolbars toolbars_;
    WindowShape shape_;
    std::optional<commands::Mode> fileMode_;  ///< While a file is shown by itself, with the notice about it.
};

}  // namespace tavrene::ui
