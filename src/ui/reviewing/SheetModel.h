#pragma once

#include <QAbstractListModel>
#include <span>
#include <string>
#include <vector>

#include "review/DoubtSheet.h"
#include "ui/reviewing/SheetCrops.h"

namespace tavrene::ui {

/// The boxes of one half of the sheet, those that were read as marked or the others.
class SheetModel final : public QAbstractListModel {
  public:
    enum Role {
        kPicture = Qt::UserRole,  ///< QImage; null while it is not made.
        kForm,                    ///< Its name.
        kBox,                     ///< Its name; empty while the picture is not made.
        kChecked,                 ///< As the person has it now.
        kTurned,                  ///< The person sees it otherwise than it was read.
        kReason                   ///< Why it is in doubt.
    };

    /// `crops` must outlive the model.
    SheetModel(SheetCrops& crops, QObject* parent) : QAbstractListModel(parent), crops_(crops) {}

    void Add(std::span<const review::SheetBox> boxes);
    void Clear();

    /// The box of a row as the person has it now.
    review::SheetBox At(int row) const;

    /// Turns the mark of a row round, or back.
    void Turn(int row);
    int TurnedCount() const;

    /// Whether the picture of a row was made, or found not to be possible.
    bool IsPictured(int row) const {
        return crops_.Find(items_.at(static_cast<std::size_t>(row)).box) != nullptr;
    }

    /// Takes away those of some rows, in ascending order, whose document is one of these.
    void Remove(std::span<const int> rows, std::span<const std::string> documents);

    /// The pictures of a form were made.
    void TellMade(const std::string& document);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    struct Item {
        review::SheetBox box;
        bool isTurned = false;
    };

    QVariant CropData(const review::SheetBox& box, int role) const;

    SheetCrops& crops_;
    std::vector<Item> items_;
};

}  // namespace tavrene::ui
