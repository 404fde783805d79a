#include "ui/lists/ReasonList.h"

#include <QHeaderView>

#include "ui/base/EmptyHint.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

enum Column { kName, kReason, kColumns };

constexpr int kLineMargin = 6;

}  // namespace

ReasonList::ReasonList(const QStringList& headings, QString hint, QWidget* parent)
    : QTreeWidget(parent), hint_(std::move(hint)) {
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setTextElideMode(Qt::ElideMiddle);
    setHeaderLabels(headings);
    connect(this, &QTreeWidget::itemClicked, this, &ReasonList::Choose);
    connect(this, &QTreeWidget::itemActivated, this, &ReasonList::Choose);
}

void ReasonList::Show(std::vector<ReasonRow> rows) {
    if (rows == rows_)
        return;
    rows_ = std::move(rows);
    clear();
    QList<QTreeWidgetItem*> items;
    for (const ReasonRow& row : rows_) {
        items += new QTreeWidgetItem({ToQt(row.name), Shown(row.reason)});
        items.back()->setSizeHint(kName, QSize(0, LineHeight()));
        for (int column = 0; column < kColumns; ++column)
            items.back()->setToolTip(column, ToolTipOf(items.back()->text(column)));
    }
    addTopLevelItems(items);
}

std::vector<std::string> ReasonList::SelectedNames() const {
    std::vector<std::string> names;
    for (const QTreeWidgetItem* const item : selectedItems())
        names.push_back(FromQt(item->text(kName)));
    return names;
}

int ReasonList::LineHeight() const {
    return fontMetrics().height() + kLineMargin;
}

int ReasonList::HeightOf(int lines) const {
    return header()->sizeHint().height() + lines * LineHeight() + 2;
}

void ReasonList::Choose(QTreeWidgetItem* item) {
    // A copy, for what is told may fill the list anew.
    if (chosen_)
        chosen_(ReasonRow(rows_.at(static_cast<std::size_t>(indexOfTopLevelItem(item)))));
}

void ReasonList::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() == 0)
        PaintEmptyHint(*viewport(), hint_);
}

}  // namespace tavrene::ui
