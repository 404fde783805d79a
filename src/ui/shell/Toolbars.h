#pragma once

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <functional>
#include <map>

#include "ui/commands/CommandTable.h"

namespace tavrene::ui {

/// How a command's button presents itself.
struct ButtonState {
    bool isEnabled = false;
    bool isShown = true;
};

/// The two toolbars and the menu bar of the window, built from the command table. Toolbar and menu share the
/// actions; an action's object name is its key.
class Toolbars {
  public:
    /// `run` is called when a command is chosen.
    Toolbars(QMainWindow& window, std::function<void(commands::Command)> run);

    void Update(const std::function<ButtonState(commands::Command)>& stateOf);

    /// Shows a toggle button pressed or released; nothing is run.
    void SetPressed(commands::Command command, bool pressed) { actions_.at(command)->setChecked(pressed); }

    QAction* ActionOf(commands::Command command) const { return actions_.at(command); }

    /// One that is there already, or a menu of boxes within theirs.
    QMenu* MenuOf(commands::Menu menu);

    /// Words under the pictures of the buttons, or none. A window that is too narrow for all of them shows
    /// none.
    void ShowLabels(bool shown);
    bool LabelsShown() const { return hasLabels_; }

    /// For another width of the window.
    void FitLabels();

  private:
    void AddCommand(QMainWindow& window, const commands::CommandInfo& info);
    void AddToToolbar(const commands::CommandInfo& info, QAction* action);
    void AddToMenu(const commands::CommandInfo& info, QAction* action);
    void SetStyle(Qt::ToolButtonStyle style);

    std::function<void(commands::Command)> run_;
    std::map<commands::Toolbar, QToolBar*> toolbars_;
    std::map<commands::Menu, QMenu*> menus_;
    std::map<commands::Command, QAction*> actions_;
    bool hasLabels_ = false;
    int labelledWidth_ = 0;  ///< Of all buttons with their labels.
};

}  // namespace tavrene::ui
