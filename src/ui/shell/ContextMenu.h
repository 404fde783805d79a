#pragma once

#include <QAbstractItemView>
#include <QList>

class QAction;

namespace tavrene::ui {

/// The menu of a list's line, by the right button or the menu key: those of the window's own actions that can
/// be done with it. The line is clicked first, so that they act on the one that the menu stands at; where
/// that is refused there is no menu.
class ContextMenu final : public QObject {
  public:
    /// Belongs to `list`; the actions must outlive it.
    ContextMenu(QAbstractItemView& list, QList<QAction*> actions);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ShowAt(const QModelIndex& line, const QPoint& place);

    QAbstractItemView& list_;
    QList<QAction*> actions_;
};

}  // namespace tavrene::ui
