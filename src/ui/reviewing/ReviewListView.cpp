#include "ui/reviewing/ReviewListView.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <vector>

#include "ui/base/EmptyHint.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

enum Column { kName, kConfidence, kColumns };

constexpr int kRowMargin = 6;
constexpr int kHeaderMargin = 20;

}  // namespace

// A model of our own, so that a long list costs no more than what is in sight.
class ReviewListView::Lines final : public QAbstractTableModel {
  public:
    Lines(QObject* parent, const QFont& font, int rowHeight)
        : QAbstractTableModel(parent), bold_(font), rowHeight_(rowHeight) {
        bold_.setBold(true);
    }

    void Show(std::span<const review::ReviewLine> lines) {
        beginResetModel();
        open_ = -1;
        lines_.assign(lines.begin(), lines.end());
        endResetModel();
    }

    void Insert(std::size_t row, const review::ReviewLine& line) {
        const int place = static_cast<int>(row);
        beginInsertRows({}, place, place);
        open_ += open_ >= place ? 1 : 0;
        lines_.insert(lines_.begin() + place, line);
        endInsertRows();
    }

    void Change(std::size_t row, const review::ReviewLine& line) {
        lines_.at(row) = line;
        TellChanged(static_cast<int>(row));
    }

    void Remove(std::size_t row) {
        const int removed = static_cast<int>(row);
        beginRemoveRows({}, removed, removed);
        open_ = open_ == removed ? -1 : open_ - (open_ > removed ? 1 : 0);
        lines_.erase(lines_.begin() + removed);
        endRemoveRows();
    }

    void MarkOpen(int row) {
        if (row == open_)
            return;
        TellChanged(std::exchange(open_, row));
        TellChanged(row);
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kColumns; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::FontRole)
            return index.row() == open_ ? QVariant(bold_) : QVariant();
        if (role == Qt::SizeHintRole)
            return QSize(0, rowHeight_);
        const review::ReviewLine& line = lines_[static_cast<std::size_t>(index.row())];
        return index.column() == kName ? NameData(line, role) : ConfidenceData(line, role);
    }

    QVariant headerData(int section, Qt::Orientation, int role) const override {
        if (role == Qt::TextAlignmentRole && section == kConfidence)
            return Qt::AlignCenter;
        if (role != Qt::DisplayRole)
            return {};
        return section == kName ? "Form" : "Confidence";
    }

  private:
    static QVariant NameData(const review::ReviewLine& line, int role) {
        switch (role) {
            case Qt::DisplayRole:
                return ToQt(line.Name);
            case Qt::ToolTipRole:
                return ToolTipOf(ToQt(line.Name));
            case Qt::CheckStateRole:
                return line.Reviewed ? Qt::Checked : Qt::Unchecked;
            default:
                return {};
        }
    }

    static QVariant ConfidenceData(const review::ReviewLine& line, int role) {
        if (role == Qt::TextAlignmentRole)
            return Qt::AlignCenter;
        return role == Qt::DisplayRole ? ToQt(line.Confidence) : QVariant();
    }

    void TellChanged(int row) {
        if (row >= 0 && row < rowCount())
            Q_EMIT dataChanged(index(row, kName), index(row, kConfidence));
    }

    std::vector<review::ReviewLine> lines_;
    int open_ = -1;  // row of the open form
    QFont bold_;
    int rowHeight_;
};

ReviewListView::ReviewListView(QWidget* parent)
    : QTreeView(parent), lines_(new Lines(this, font(), fontMetrics().height() + kRowMargin)) {
    setObjectName("lvwReview");
    setAccessibleName("Processed forms");
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideMiddle);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setModel(lines_);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    header()->setSectionResizeMode(kConfidence, QHeaderView::Fixed);
    header()->resizeSection(kConfidence,
                            header()->fontMetrics().horizontalAdvance("Confidence") + kHeaderMargin);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { TellOpened(index); });
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
    const QModelIndex line = lines_->index(static_cast<int>(index), kName);
    setCurrentIndex(line);
    scrollTo(line);
}

std::optional<std::size_t> ReviewListView::SelectedLine() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? std::optional(static_cast<std::size_t>(current.row())) : std::nullopt;
}

void ReviewListView::MarkOpen(std::optional<std::size_t> line) {
    lines_->MarkOpen(line ? static_cast<int>(*line) : -1);
}

void ReviewListView::TellOpened(const QModelIndex& index) {
    if (index.isValid() && opened_)
        opened_(static_cast<std::size_t>(index.row()));
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
        PaintEmptyHint(*viewport(), "No processed forms are waiting.\nProcess reads new scans.");
}

}  // namespace tavrene::ui
