#pragma once

#include <QWidget>

#include "app/SettingsStore.h"
#include "ui/commands/ExportCommand.h"

namespace tavrene::ui {

/// The command `ExportResults`: asks what and where to, and shows how far the work has come.
class ResultsExport {
  public:
    struct Context {
        app::SettingsStore& store;
        app::Files& files;
        app::Operator& person;
        app::FileDialogs& dialogs;
    };

    /// Everything must outlive the object.
    ResultsExport(QWidget& window, const Context& context, const app::WorkingFolders& folders)
        : window_(window), context_(context), folders_(folders) {}

    /// Throws what reading or writing throws; nothing is changed then.
    void Run();

  private:
    commands::ExportContext Job();
    std::string StartFolder() const;
    void Export(const results::Results& found);
    void ShowCounts(const results::Results& found);

    QWidget& window_;
    Context context_;
    const app::WorkingFolders& folders_;
    commands::ExportChoice choice_;  ///< As it was last made.
};

}  // namespace tavrene::ui
