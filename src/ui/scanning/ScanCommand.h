#pragma once

#include <QAction>
#include <QWidget>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/scanning/ScanDialog.h"

namespace tavrene::ui {

/// The command `Scan`. It is there while a scanner may be: whether one is, is looked for whenever the menu
/// opens, which takes a while and does not hold up the menu.
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
    ScanChoice choice_;
    ScanThread thread_;
};

}  // namespace tavrene::ui
