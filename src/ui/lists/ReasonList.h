#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tavrene::ui {

/// A file and what became of it.
struct ReasonRow {
    std::string name;
    std::string reason;
    bool operator==(const ReasonRow&) const = default;
};

/// A list of files with what became of each. A click on a line or Enter chooses it.
class ReasonList final : public QTreeWidget {
  public:
    using Chosen = std::function<void(const ReasonRow& row)>;

    /// `hint` is said in the place of the lines while there are none.
    ReasonList(const QStringList& headings, QString hint, QWidget* parent);

    void SetListener(Chosen chosen) { chosen_ = std::move(chosen); }

    /// The same rows once more change nothing, so that selection and place stay.
    void Show(std::vector<ReasonRow> rows);

    std::vector<std::string> SelectedNames() const;

    /// The height that shows so many lines.
    int HeightOf(int lines) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Choose(QTreeWidgetItem* item);
    int LineHeight() const;

    std::vector<ReasonRow> rows_;
    QString hint_;
    Chosen chosen_;
};

}  // namespace tavrene::ui
