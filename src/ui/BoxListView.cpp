#include "ui/BoxListView.h"

#include <QHeaderView>

#include "ui/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kValColumn = 1;
constexpr int kValWidth = 52;
constexpr int kRowMargin = 6;

}  // namespace

BoxListView::BoxListView(QWidget* parent) : QTreeWidget(parent) {
    setObjectName("lvwSettings");
    setAccessibleName("Check boxes of the page");
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(QFrame::NoFrame);
    setHeaderLabels({"Check box"});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
}

void BoxListView::ClearRows() {
    clear();
}

void BoxListView::AddValColumn() {
    if (columnCount() > kValColumn)
        return;
    setHeaderLabels({"Check box", "Val"});
    header()->setSectionResizeMode(kValColumn, QHeaderView::Fixed);
    header()->resizeSection(kValColumn, kValWidth);
    headerItem()->setTextAlignment(kValColumn, Qt::AlignCenter);
}

void BoxListView::RemoveExtraColumns() {
    setColumnCount(1);
}

void BoxListView::AddRow(int number, std::string_view name, std::string_view value) {
    auto* const row = new QTreeWidgetItem(this, {ToQt(name)});
    row->setData(0, Qt::UserRole, number);
    row->setSizeHint(0, {0, fontMetrics().height() + kRowMargin});
    row->setToolTip(0, row->text(0).toHtmlEscaped());
    if (columnCount() > kValColumn) {
        row->setText(kValColumn, ToQt(value));
        row->setTextAlignment(kValColumn, Qt::AlignCenter);
    }
}

}  // namespace tavrene::ui
