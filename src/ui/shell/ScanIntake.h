#pragma once

#include <QObject>
#include <QWidget>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Operator.h"
#include "app/SettingsStore.h"
#include "recognition/ProcessRun.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/commands/PagesIn.h"

class QMimeData;

namespace tavrene::ui {

/// What the intake needs of the world; everything must outlive it.
struct IntakeContext {
    app::Files& files;
    app::Operator& person;
    const commands::AppState& state;
    commands::CommandGate& gate;
    app::SettingsStore& store;
};

/// The commands `BringIn`, `BringInFolder` and `PasteScans` (files, folders or a picture), and files and
/// folders that are dropped anywhere on the window.
class ScanIntake final : public QObject {
  public:
    ScanIntake(QWidget& window, const IntakeContext& context);

    /// Brings in pages of files, with a box that tells how far it is and can be cancelled. `told` stands
    /// before what came of it. Gives the files whose pages came in.
    std::vector<std::string> BringIn(const std::vector<intake::Source>& sources,
                                     const std::string& told = {});

    /// The same with the pages that the last run did not look at; those that did not come in stay known.
    void BringInFurtherPages(recognition::ProcessRun& run);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// A command that takes events may be under way, and a question could not be answered meanwhile.
    void TakeWhenIdle(const std::vector<std::string>& paths);

    void Paste(const QMimeData* clipboard);
    std::string WhyNothingIsPasted() const;
    void Choose();
    void ChooseFolder();
    void Take(const QStringList& chosen);
    QString StartFolder() const;
    void TakeIn(const std::vector<std::string>& paths);
    void CopyIn(const std::vector<std::string>& paths);

    QWidget& window_;
    IntakeContext context_;
};

}  // namespace tavrene::ui
