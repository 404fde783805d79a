#pragma once

#include <QFrame>
#include <functional>
#include <utility>

#include "recognition/RunSummary.h"
#include "ui/lists/ReasonList.h"

class QLabel;

namespace tavrene::ui {

/// The panel `SummaryPanel` below the page: what became of the files of the last run. Each number opens the
/// list of its files below it, and closes it again; hidden until there is something to tell.
class SummaryPanel final : public QFrame {
  public:
    explicit SummaryPanel(QWidget* parent);

    /// `split` is called when the person wants the pages that were not looked at.
    void SetSplitter(std::function<void()> split) { split_ = std::move(split); }

    ReasonList& List() { return *files_; }

    /// Shows a run, with the list of what the person should look at first where there is such.
    void Show(const recognition::RunSummary& summary);

    /// False when it was closed already.
    bool Close();

  private:
    void ShowList(const QString& link);

    recognition::RunSummary summary_;
    std::function<void()> split_;
    QString link_;  ///< Of the list that is shown.
    QLabel* text_;
    ReasonList* files_;
};

}  // namespace tavrene::ui
