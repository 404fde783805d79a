#include "ui/reviewing/ShownLines.h"

#include <utility>

#include "ui/base/QtText.h"

namespace tavrene::ui {

ShownLines::ShownLines(QObject* parent, ReviewTable& table) : QSortFilterProxyModel(parent), table_(table) {
    // A session without a language compares bytes and knows no numbers.
    order_.setLocale(QLocale(QLocale::English));
    order_.setNumericMode(true);
    order_.setCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&table);
}

void ShownLines::SetFilter(FormFilter filter) {
    filter_ = std::move(filter);
    invalidateFilter();
}

void ShownLines::FollowOpen() {
    if (filter_.kind != FormFilter::Kind::All || !filter_.text.isEmpty())
        invalidateFilter();
}

bool ShownLines::Wants(int row) const {
    const review::ReviewLine& line = table_.LineAt(row);
    if (!filter_.text.isEmpty() && !ToQt(line.Name).contains(filter_.text, Qt::CaseInsensitive))
        return false;
    switch (filter_.kind) {
        case FormFilter::Kind::All:
            return true;
        case FormFilter::Kind::NotReviewed:
            return !line.Reviewed;
        case FormFilter::Kind::InDoubt:
            return line.Doubts.value_or(0) > 0;
        case FormFilter::Kind::OfProfile:
            return ToQt(line.Profile) == filter_.profile;
    }
    return true;
}

std::optional<int> ShownLines::Beside(std::optional<int> row, int step) const {
    const QModelIndex from = row ? mapFromSource(table_.index(*row, 0)) : index(0, 0);
    if (!from.isValid())
        return std::nullopt;
    const QModelIndex beside = index(from.row() + (row ? step : 0), 0);
    return beside.isValid() ? std::optional(mapToSource(beside).row()) : std::nullopt;
}

bool ShownLines::filterAcceptsRow(int row, const QModelIndex&) const {
    return row == table_.OpenRow() || Wants(row);
}

bool ShownLines::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const review::ReviewLine& a = table_.LineAt(left.row());
    const review::ReviewLine& b = table_.LineAt(right.row());
    if (left.column() == ReviewTable::kDoubts)
        return a.Doubts < b.Doubts;  // those that are not counted first
    return order_.compare(left.data().toString(), right.data().toString()) < 0;
}

}  // namespace tavrene::ui
