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

    /// `changed` is told what is wanted now, `left` that Escape gives the keys back to the list.
    void SetListener(std::function<void(FormFilter)> changed, std::function<void()> left) {
        changed_ = std::move(changed);
        left_ = std::move(left);
    }

    /// Offers the profiles for choice; what is chosen stays where it is still offered.
    void OfferProfiles(const QStringList& names);

    /// Gives the choice the focus.
    void TakeFocus() { kind_->setFocus(Qt::ShortcutFocusReason); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Tell();

    QComboBox* kind_;
    QLineEdit* text_;
    std::function<void(FormFilter)> changed_;
    std::function<void()> left_;
};

}  // namespace tavrene::ui
