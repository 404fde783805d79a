#pragma once

#include <QObject>
#include <QWidget>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Operator.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::ui {

/// What the intake needs of the world; everything must outlive it.
struct IntakeContext {
    app::Files& files;
    app::Operator& person;
    const commands::AppState& state;
    commands::CommandGate& gate;
};

/// The command `PasteScans`, and files and folders that are dropped anywhere on the window.
class ScanIntake final : public QObject {
  public:
    ScanIntake(QWidget& window, const IntakeContext& context);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// A command that takes events may be under way, and a question could not be answered meanwhile.
    void TakeWhenIdle(const std::vector<std::string>& paths);

    void CopyIn(const std::vector<std::string>& paths);

    IntakeContext context_;
};

}  // namespace tavrene::ui
