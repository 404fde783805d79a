#pragma once

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QList>
#include <functional>
#include <optional>

#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"

class QAction;

namespace tavrene::ui {

/// The menu of what lies under the pointer or is selected, by the right button or the menu key: those of the
/// window's own actions that can be done with it now.
class ContextMenu final : public QObject {
  public:
    /// Makes that what is asked about the one that the actions act on, and gives where its menu stands on the
    /// screen; nothing where there is none, or where that is refused.
    using Target = std::function<std::optional<QPoint>(const QContextMenuEvent& asked)>;

    /// Belongs to `area`; the actions must outlive it.
    ContextMenu(QAbstractScrollArea& area, Target target, QList<QAction*> actions);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ShowAt(const QPoint& place);

    QAbstractScrollArea& area_;
    Target target_;
    QList<QAction*> actions_;
};

/// A line of a list whose click opens what it stands for. `isOpen` tells of which line that is open already:
/// it is not clicked again, for that would ask about changes and read the file anew.
ContextMenu::Target ClickedLine(QAbstractItemView& list, std::function<bool(const QModelIndex& line)> isOpen);

/// A line of a list that is only to be the selected one.
ContextMenu::Target SelectedLine(QAbstractItemView& list);

/// A box of the page that has a row in the list; the row becomes the current one.
ContextMenu::Target BoxOnPage(ImageView& page, BoxListView& rows);

}  // namespace tavrene::ui
