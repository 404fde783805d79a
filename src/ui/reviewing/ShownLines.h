#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>
#include <optional>

#include "ui/reviewing/ReviewTable.h"

namespace tavrene::ui {

/// Which forms the review list shows.
struct FormFilter {
    enum class Kind { All, NotReviewed, InDoubt, OfProfile };

    Kind kind = Kind::All;
    QString profile;  ///< Of `OfProfile`.
    QString text;     ///< Part of the name, whatever the case; empty for any.
};

/// The lines of the review list in the order that the person wants, as far as the filter lets them through;
/// that of the open form always. Names are in their natural order: form2 before form10.
class ShownLines final : public QSortFilterProxyModel {
  public:
    ShownLines(QObject* parent, ReviewTable& table);

    void SetFilter(FormFilter filter);

    /// Another form is open: the one that was may have to go.
    void FollowOpen();

    /// Whether the filter itself wants a row of the table.
    bool Wants(int row) const;

    /// The row of the table `step` shown rows below another; below none the first.
    std::optional<int> Beside(std::optional<int> row, int step) const;

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

  private:
    ReviewTable& table_;
    FormFilter filter_;
    QCollator order_;
};

}  // namespace tavrene::ui
