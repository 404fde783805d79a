#pragma once

#include <QComboBox>
#include <QFrame>

#include "review/ReviewScreen.h"
#include "ui/reviewing/ReviewListView.h"

namespace tavrene::ui {

/// The choice `cboProfiles`. Only a choice from its opened list counts: a wheel or a key that runs through
/// the names would read the form again with every step.
class ReviewChoice final : public QComboBox, public review::ProfileChoice {
  public:
    explicit ReviewChoice(QWidget* parent);

    void ShowProfiles(std::span<const std::string> names) override;
    void SetChoice(std::string_view name) override;
    void TakeAway() override;

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// The review side of the window: the list of forms and the choice of the profile to read one against.
class ReviewPane final : public QFrame {
  public:
    explicit ReviewPane(QWidget* parent);

    ReviewListView& List() { return *list_; }
    ReviewChoice& Choice() { return *choice_; }

  private:
    ReviewListView* list_;
    ReviewChoice* choice_;
};

}  // namespace tavrene::ui
