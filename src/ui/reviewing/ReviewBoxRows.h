#pragma once

#include "review/ReviewScreen.h"
#include "ui/lists/BoxListView.h"

namespace tavrene::ui {

/// What review adds to the box list: the "Ink" column, changing states, and rows that stand out.
class ReviewBoxRows final : public review::ReviewRows {
  public:
    /// `list` must outlive the object; its rows are those of the boxes 1, 2, ... without a gap.
    explicit ReviewBoxRows(BoxListView& list) : list_(list) {}

    void AddInkColumn() override;
    void SetInk(int number, std::string_view ink, bool doubtful) override;
    void SetVal(int number, std::string_view value) override;
    void SelectRow(int number) override;

    /// The number of a row, or of the current one; 0 for none.
    int NumberOf(QTreeWidgetItem* row) const { return list_.indexOfTopLevelItem(row) + 1; }
    int CurrentNumber() const { return NumberOf(list_.currentItem()); }
    bool HasRow(int number) const { return number >= 1 && number <= list_.topLevelItemCount(); }

  private:
    BoxListView& list_;
};

}  // namespace tavrene::ui
