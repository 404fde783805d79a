#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <span>
#include <vector>

#include "review/ReviewScreen.h"

namespace tavrene::ui {

/// The lines of the review list as the toolkit asks for them: a model of our own, so that a long list costs
/// no more than what is in sight.
class ReviewTable final : public QAbstractTableModel {
  public:
    enum Column { kName, kConfidence, kProfile, kDoubts, kReviewed, kColumns };

    ReviewTable(QObject* parent, const QFont& font, int rowHeight);

    void Show(std::span<const review::ReviewLine> lines);
    void Insert(std::size_t row, const review::ReviewLine& line);
    void Change(std::size_t row, const review::ReviewLine& line);
    void Remove(std::size_t row);

    /// Makes the row of the open form stand out; -1 for none.
    void MarkOpen(int row);
    int OpenRow() const { return open_; }

    const review::ReviewLine& LineAt(int row) const { return lines_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kColumns; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void TellChanged(int row);

    std::vector<review::ReviewLine> lines_;
    int open_ = -1;
    QFont bold_;
    int rowHeight_;
};

}  // namespace tavrene::ui
