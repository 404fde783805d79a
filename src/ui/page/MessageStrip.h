#pragma once

#include <QFrame>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "app/Operator.h"

class QScrollArea;
class QVBoxLayout;

namespace tavrene::ui {

/// The strip `MessageStrip` over the page: notices in whole sentences, each with a button where something can
/// be done about it. Not to be seen while there are none.
class MessageStrip final : public QFrame {
  public:
    explicit MessageStrip(QWidget* parent);

    /// `run` is given what a button does.
    void SetRunner(std::function<void(const std::function<void()>& act)> run) { run_ = std::move(run); }

    /// Shows these notices instead of the ones before them.
    void Show(std::span<const app::Notice> notices);

    /// The same for those that stand, below the others; one that was closed stays closed while it has its
    /// topic.
    void ShowStanding(std::span<const app::Notice> notices);

  private:
    void Refresh();
    void Close();
    void Fill(std::vector<app::Notice> notices);
    void Add(const app::Notice& notice);

    std::function<void(const std::function<void()>&)> run_;
    QScrollArea* area_;
    QVBoxLayout* lines_ = nullptr;
    std::vector<app::Notice> told_;
    std::vector<app::Notice> standing_;
    std::vector<app::Notice> shown_;
    std::set<std::string> closed_;  ///< Topics of `standing_`.
};

}  // namespace tavrene::ui
