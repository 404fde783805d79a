#pragma once

#include <QObject>
#include <QWidget>

#include "review/ReviewSession.h"
#include "ui/commands/CommandGate.h"
#include "ui/lists/BoxListView.h"

namespace tavrene::ui {

/// The commands about doubts, over one form or many: the next doubt, the sheet of them, and accepting what
/// has none, with taking that back.
class DoubtCommands {
  public:
    struct Context {
        app::Operator& person;
        commands::CommandGate& gate;
        BoxListView& boxes;
        QWidget& window;  ///< Over which dialogs open.
    };

    /// Everything must outlive the object.
    DoubtCommands(review::ReviewSession& session, const Context& context);

  private:
    void NextDoubt();
    void ShowSheet();
    void AcceptAllClear();
    void Accept(const review::ClearForms& forms);
    void UndoDecision();

    review::ReviewSession& session_;
    Context context_;
};

}  // namespace tavrene::ui
