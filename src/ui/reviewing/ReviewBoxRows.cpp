#include "ui/reviewing/ReviewBoxRows.h"

#include <QHeaderView>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kValColumn = 1;
constexpr int kInkColumn = 2;
constexpr int kColumns = 3;
constexpr int kInkMargin = 24;

// Reads on light and dark bases alike.
const QColor kDoubt(255, 180, 0, 90);

void MakeDoubtful(QTreeWidgetItem& row) {
    const QString why = "The ink is near the threshold: look at this box";
    for (int column = 0; column < kColumns; ++column) {
        QFont bold = row.font(column);
        bold.setBold(true);
        row.setFont(column, bold);
        row.setBackground(column, kDoubt);
    }
    row.setToolTip(kInkColumn, why);
    row.setData(0, Qt::AccessibleDescriptionRole, why);
}

}  // namespace

void ReviewBoxRows::AddInkColumn() {
    if (list_.columnCount() > kInkColumn)
        return;
    list_.setColumnCount(kColumns);
    list_.headerItem()->setText(kInkColumn, "Ink");
    list_.headerItem()->setTextAlignment(kInkColumn, Qt::AlignCenter);
    QFont bold = list_.font();
    bold.setBold(true);
    list_.header()->setSectionResizeMode(kInkColumn, QHeaderView::Fixed);
    list_.header()->resizeSection(kInkColumn, QFontMetrics(bold).horizontalAdvance("100.0%") + kInkMargin);
}

void ReviewBoxRows::SetInk(int number, std::string_view ink, bool doubtful) {
    if (!HasRow(number))
        return;
    QTreeWidgetItem& row = *list_.topLevelItem(number - 1);
    row.setText(kInkColumn, ToQt(ink));
    row.setTextAlignment(kInkColumn, Qt::AlignRight | Qt::AlignVCenter);
    if (doubtful)
        MakeDoubtful(row);
}

void ReviewBoxRows::SetVal(int number, std::string_view value) {
    if (HasRow(number))
        list_.topLevelItem(number - 1)->setText(kValColumn, ToQt(value));
}

void ReviewBoxRows::SelectRow(int number) {
    list_.SelectRow(number);
}

}  // namespace tavrene::ui
