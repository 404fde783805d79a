#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <functional>
#include <utility>

#include "ui/reviewing/ShownLines.h"

namespace tavrene::ui {

/// What the review list is to show: the choice `cboFilter` and the text `txtFilter` that names must hold.
class FilterBar final : public QWidget {
  public:
    explicit FilterBar(QWidget* parent);

    /// `changed` is told what is wanted now.
    void SetListener(std::function<void(FormFilter)> changed) { changed_ = std::move(changed); }

    /// Offers the profiles for choice; what is chosen stays where it is still offered.
    void OfferProfiles(const QStringList& names);

    /// Gives the choice the focus.
    void TakeFocus() { kind_->setFocus(Qt::ShortcutFocusReason); }

  private:
    void Tell();

    QComboBox* kind_;
    QLineEdit* text_;
    std::function<void(FormFilter)> changed_;
};

}  // namespace tavrene::ui
