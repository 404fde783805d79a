#include "ui/reviewing/ReviewTable.h"

#include <QSize>
#include <utility>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString TextOf(const review::ReviewLine& line, int column) {
    switch (column) {
        case ReviewTable::kName:
            return ToQt(line.Name);
        case ReviewTable::kConfidence:
            return ToQt(line.Confidence);
        case ReviewTable::kProfile:
            return ToQt(line.Profile);
        case ReviewTable::kDoubts:
            return line.Doubts ? QString::number(*line.Doubts) : QString();
        default:
            return line.Reviewed ? Tr("ReviewTable", "yes") : QString();
    }
}

bool IsCentred(int column) {
    return column != ReviewTable::kName && column != ReviewTable::kProfile;
}

}  // namespace

ReviewTable::ReviewTable(QObject* parent, const QFont& font, int rowHeight)
    : QAbstractTableModel(parent), bold_(font), rowHeight_(rowHeight) {
    bold_.setBold(true);
}

void ReviewTable::Show(std::span<const review::ReviewLine> lines) {
    beginResetModel();
    open_ = -1;
    lines_.assign(lines.begin(), lines.end());
    endResetModel();
}

void ReviewTable::Insert(std::size_t row, const review::ReviewLine& line) {
    const int place = static_cast<int>(row);
    beginInsertRows({}, place, place);
    open_ += open_ >= place ? 1 : 0;
    lines_.insert(lines_.begin() + place, line);
    endInsertRows();
}

void ReviewTable::Change(std::size_t row, const review::ReviewLine& line) {
    lines_.at(row) = line;
    TellChanged(static_cast<int>(row));
}

void ReviewTable::Remove(std::size_t row) {
    const int removed = static_cast<int>(row);
    beginRemoveRows({}, removed, removed);
    open_ = open_ == removed ? -1 : open_ - (open_ > removed ? 1 : 0);
    lines_.erase(lines_.begin() + removed);
    endRemoveRows();
}

void ReviewTable::MarkOpen(int row) {
    if (row == open_)
        return;
    TellChanged(std::exchange(open_, row));
    TellChanged(row);
}

int ReviewTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant ReviewTable::data(const QModelIndex& index, int role) const {
    const review::ReviewLine& line = LineAt(index.row());
    const bool isName = index.column() == kName;
    switch (role) {
        case Qt::DisplayRole:
            return TextOf(line, index.column());
        case Qt::FontRole:
            return index.row() == open_ ? QVariant(bold_) : QVariant();
        case Qt::SizeHintRole:
            return QSize(0, rowHeight_);
        case Qt::TextAlignmentRole:
            return IsCentred(index.column()) ? QVariant(Qt::AlignCenter) : QVariant();
        case Qt::ToolTipRole:
            return isName ? QVariant(ToolTipOf(ToQt(line.Name) + " · " + ToQt(line.Profile))) : QVariant();
        case Qt::CheckStateRole:
            return isName ? QVariant(line.Reviewed ? Qt::Checked : Qt::Unchecked) : QVariant();
        default:
            return {};
    }
}

QVariant ReviewTable::headerData(int section, Qt::Orientation, int role) const {
    static constexpr const char* kTitles[kColumns] = {
        QT_TRANSLATE_NOOP("ReviewTable", "Form"), QT_TRANSLATE_NOOP("ReviewTable", "Confidence"),
        QT_TRANSLATE_NOOP("ReviewTable", "Profile"), QT_TRANSLATE_NOOP("ReviewTable", "Doubts"),
        QT_TRANSLATE_NOOP("ReviewTable", "Reviewed")};
    if (role == Qt::TextAlignmentRole && IsCentred(section))
        return Qt::AlignCenter;
    return role == Qt::DisplayRole ? QVariant(Tr("ReviewTable", kTitles[section])) : QVariant();
}

void ReviewTable::TellChanged(int row) {
    if (row >= 0 && row < rowCount())
        Q_EMIT dataChanged(index(row, kName), index(row, kColumns - 1));
}

}  // namespace tavrene::ui
