#include "ui/reviewing/ReviewListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <array>
#include <utility>

#include "ui/base/EmptyHint.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kRowMargin = 6;
constexpr int kHeaderMargin = 16;
constexpr int kNameWidth = 150;
constexpr int kLeastNameWidth = 90;
constexpr int kTickMargin = 6;  // pixels before the tick

// What a person needs least comes last: the tick says it already. With the room that the names have to keep.
constexpr std::array kWhereThereIsRoom = {std::pair(ReviewTable::kDoubts, kLeastNameWidth),
                                          std::pair(ReviewTable::kProfile, kNameWidth),
                                          std::pair(ReviewTable::kReviewed, kNameWidth)};

}  // namespace

ReviewListView::ReviewListView(QWidget* parent)
    : QTreeView(parent),
      lines_(new ReviewTable(this, font(), fontMetrics().height() + kRowMargin)),
      shown_(new ShownLines(this, *lines_)) {
    setObjectName("lvwReview");
    setAccessibleName(Tr("ReviewListView", "Processed forms"));
    setFrameShape(QFrame::NoFrame);
    setIndentation(kTickMargin);
    setItemsExpandable(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideMiddle);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setModel(shown_);
    setSortingEnabled(true);
    LayOutColumns();
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { TellOpened(index); });
}

// What a person looks for first stands first; the order is the folder's until a header is clicked.
void ReviewListView::LayOutColumns() {
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->moveSection(header()->visualIndex(ReviewTable::kDoubts), 1);
    header()->setMinimumSectionSize(20);
    header()->setSectionResizeMode(ReviewTable::kName, QHeaderView::Stretch);
    for (int column = ReviewTable::kName + 1; column < ReviewTable::kColumns; ++column) {
        const QString title = lines_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        header()->resizeSection(column, header()->fontMetrics().horizontalAdvance(title) + kHeaderMargin);
    }
    header()->resizeSection(ReviewTable::kProfile, 2 * header()->sectionSize(ReviewTable::kProfile));
}

// A column that would take the room from the names is not shown until the list is made wider.
void ReviewListView::ShowColumnsWithRoom() {
    int room = viewport()->width() - header()->sectionSize(ReviewTable::kConfidence);
    for (const auto& [column, names] : kWhereThereIsRoom) {
        // A hidden one tells no size.
        header()->setSectionHidden(column, false);
        room -= header()->sectionSize(column);
        header()->setSectionHidden(column, room < names);
    }
}

void ReviewListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    ShowColumnsWithRoom();
}

void ReviewListView::SetFilter(FormFilter filter) {
    shown_->SetFilter(std::move(filter));
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

bool ReviewListView::Wants(std::size_t line) const {
    return shown_->Wants(static_cast<int>(line));
}

std::optional<std::size_t> ReviewListView::Beside(std::optional<std::size_t> index, int step) const {
    const std::optional<int> row =
        shown_->Beside(index ? std::optional(static_cast<int>(*index)) : std::nullopt, step);
    return row ? std::optional(static_cast<std::size_t>(*row)) : std::nullopt;
}

void ReviewListView::ShowLines(std::span<const review::ReviewLine> lines) {
    lines_->Show(lines);
}

void ReviewListView::InsertLine(std::size_t index, const review::ReviewLine& line) {
    lines_->Insert(index, line);
}

void ReviewListView::ChangeLine(std::size_t index, const review::ReviewLine& line) {
    lines_->Change(index, line);
}

void ReviewListView::RemoveLine(std::size_t index) {
    lines_->Remove(index);
}

void ReviewListView::SelectLine(std::size_t index) {
    const QModelIndex line =
        shown_->mapFromSource(lines_->index(static_cast<int>(index), ReviewTable::kName));
    setCurrentIndex(line);
    scrollTo(line);
}

std::optional<std::size_t> ReviewListView::LineOf(const std::string& form) const {
    const QModelIndexList found = lines_->match(lines_->index(0, ReviewTable::kName), Qt::DisplayRole,
                                                ToQt(form), 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return found.isEmpty() ? std::nullopt : std::optional(static_cast<std::size_t>(found.front().row()));
}

std::optional<std::size_t> ReviewListView::SelectedLine() const {
    const QModelIndex current = shown_->mapToSource(currentIndex());
    return current.isValid() ? std::optional(static_cast<std::size_t>(current.row())) : std::nullopt;
}

bool ReviewListView::IsOpen(const QModelIndex& shown) const {
    return shown_->mapToSource(shown).row() == lines_->OpenRow();
}

void ReviewListView::MarkOpen(std::optional<std::size_t> line) {
    const int row = line ? static_cast<int>(*line) : -1;
    if (row == lines_->OpenRow())
        return;
    lines_->MarkOpen(row);
    shown_->FollowOpen();
    // One that the filter has hidden until now is not selected yet.
    if (line && !currentIndex().isValid())
        SelectLine(*line);
}

void ReviewListView::TellOpened(const QModelIndex& index) {
    if (index.isValid() && opened_)
        opened_(static_cast<std::size_t>(shown_->mapToSource(index).row()));
}

QItemSelectionModel::SelectionFlags ReviewListView::selectionCommand(const QModelIndex& index,
                                                                     const QEvent*) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

void ReviewListView::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    const bool isEnter = isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter);
    if (!isEnter)
        QTreeView::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        TellOpened(currentIndex());
}

void ReviewListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (lines_->rowCount() == 0)
        PaintEmptyHint(*viewport(),
                       Tr("ReviewListView", "No processed forms are waiting.\nProcess reads new scans."));
    else if (shown_->rowCount() == 0)
        PaintEmptyHint(*viewport(), Tr("ReviewListView",
                                       "No form is like this.\nChoose All forms above to see the others."));
}

}  // namespace tavrene::ui
