#include "ui/reviewing/SheetModel.h"

#include <algorithm>

#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

QString NameOfForm(const review::SheetBox& box) {
    return ToQt(app::BaseName(box.Document));
}

QString ReasonOf(const review::SheetBox& box) {
    return box.Reason ? Shown(review::TextOf(*box.Reason)) : QString();
}

}  // namespace

void SheetModel::Add(std::span<const review::SheetBox> boxes) {
    if (boxes.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(boxes.size()) - 1);
    for (const review::SheetBox& box : boxes)
        items_.push_back({box});
    endInsertRows();
}

void SheetModel::Clear() {
    beginResetModel();
    items_.clear();
    endResetModel();
}

review::SheetBox SheetModel::At(int row) const {
    const Item& item = items_.at(static_cast<std::size_t>(row));
    review::SheetBox box = item.box;
    box.IsChecked = box.IsChecked != item.isTurned;
    return box;
}

void SheetModel::Turn(int row) {
    Item& item = items_.at(static_cast<std::size_t>(row));
    item.isTurned = !item.isTurned;
    Q_EMIT dataChanged(index(row), index(row));
}

int SheetModel::TurnedCount() const {
    return static_cast<int>(std::ranges::count(items_, true, &Item::isTurned));
}

void SheetModel::Remove(std::span<const int> rows, std::span<const std::string> documents) {
    const auto isOneOf = [&](int row) {
        return std::ranges::find(documents, items_[static_cast<std::size_t>(row)].box.Document) !=
               documents.end();
    };
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (!isOneOf(*row))
            continue;
        beginRemoveRows({}, *row, *row);
        items_.erase(items_.begin() + *row);
        endRemoveRows();
    }
}

void SheetModel::TellMade(const std::string& document) {
    for (int row = 0; row < rowCount(); ++row)
        if (items_[static_cast<std::size_t>(row)].box.Document == document)
            Q_EMIT dataChanged(index(row), index(row));
}

int SheetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant SheetModel::CropData(const review::SheetBox& box, int role) const {
    const BoxCrop* const crop = crops_.Find(box);
    if (role == kPicture)
        return crop == nullptr ? QImage() : crop->picture;
    return crop == nullptr ? QString() : crop->name;
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
    const review::SheetBox box = At(index.row());
    switch (role) {
        case kPicture:
        case kBox:
            return CropData(box, role);
        case Qt::DisplayRole:
        case kForm:
            return NameOfForm(box);
        case kChecked:
            return box.IsChecked;
        case kTurned:
            return items_[static_cast<std::size_t>(index.row())].isTurned;
        case kReason:
            return ReasonOf(box);
        case Qt::ToolTipRole:
            return ToolTipOf(NameOfForm(box) + (box.Reason ? ": " + ReasonOf(box) : ""));
        case Qt::AccessibleTextRole:
            return QStringList{NameOfForm(box),
                               box.IsChecked ? Tr("SheetDialog", "marked") : Tr("SheetDialog", "not marked"),
                               ReasonOf(box)}
                .join(", ");
        default:
            return {};
    }
}

}  // namespace tavrene::ui
