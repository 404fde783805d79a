#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <functional>
#include <vector>

namespace tavrene::ui {

/// What may be boxes, in a list `lvwCandidates` under the box list. Enter, Space or a click takes one, Ctrl+A
/// all, Escape closes. Hidden while it has nothing to show.
class CandidatePane final : public QFrame {
  public:
    struct Listener {
        std::function<void(int id)> pointedAt;  ///< Its row has become the current one; 0 for none.
        std::function<void(int id)> taken;
        std::function<void()> allTaken;
        std::function<void()> closed;
        std::function<void(bool shown)> unlikelyShown;
    };
    struct Row {
        int id;  ///< At least 1.
        QString text;
    };

    explicit CandidatePane(QWidget* parent);

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    /// Shows rows in place of those before; the place in the list stays. None of them hides the pane.
    void ShowRows(const QString& heading, const std::vector<Row>& rows);

    /// How many shapes look like print; the check box that shows them too is there only for some.
    void SetUnlikely(int count);

    void TakeFocus() { list_->setFocus(); }
    QWidget& List() { return *list_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool TakeKey(int key, Qt::KeyboardModifiers modifiers);

    QLabel* heading_;
    QListWidget* list_;
    QCheckBox* unlikely_;
    Listener listener_;
};

}  // namespace tavrene::ui
