#pragma once

#include <QMainWindow>
#include <QTreeWidget>
#include <utility>
#include <vector>

#include "app/SettingsStore.h"
#include "ui/page/ImageView.h"
#include "ui/shell/Toolbars.h"

namespace tavrene::ui {

/// What the window remembers about itself from one start to the next: its place and size, its splitters, the
/// columns that can be dragged, what the zoom follows and the words under the buttons. It lies beside the
/// settings, in a group of its own.
class WindowShape {
  public:
    struct Parts {
        app::SettingsStore& store;
        ImageView& view;
        Toolbars& toolbars;
        std::vector<QTreeWidget*> lists;  ///< Those whose columns can be dragged.
    };

    /// All must outlive it.
    WindowShape(QMainWindow& window, Parts parts) : window_(window), parts_(std::move(parts)) {}

    /// Once the window has all its parts; what was never stored stays as it is.
    void Restore();
    void Remember() const;

  private:
    QMainWindow& window_;
    Parts parts_;
};

}  // namespace tavrene::ui
