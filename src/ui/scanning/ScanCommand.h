#pragma once

#include <QAction>
#include <QWidget>
#include <optional>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/scanning/ScanDialog.h"

namespace tavrene::ui {

/// The command `Scan`. It is there while a scanner may be: whether one is, is looked for when the menu opens,
/// at most once a minute, which takes a while and holds up neither the menu nor the end of the program.
class ScanCommand final : public QObject {
  public:
    struct Context {
        app::Files& files;
        app::Operator& person;
        const app::Clock& clock;
        const commands::AppState& state;
        commands::CommandGate& gate;
    };

    /// The window has the command's action, whose object name is its key. Everything must outlive it, but for
    /// the state, which is needed only while the window is there.
    ScanCommand(QWidget& window, const Context& context);

    /// Pages that are on their way are waited for.
    ~ScanCommand() override { thread_.WaitForWork(); }

  private:
    void Look();
    void Offer(const QString& whyNot);
    void Run();

    QWidget& window_;
    QAction& action_;
    const QString toolTip_;
    Context context_;
    const intake::SaneLibrary* sane_ = intake::FindSane();
    bool isThere_ = sane_ != nullptr;  ///< As far as is known.
    bool isLooking_ = false;
    std::optional<double> lookedAt_;  ///< By the clock's seconds.
    ScanChoice choice_;
    ScanThread& thread_ = ScanThread::OfProgram();
};

}  // namespace tavrene::ui
