#pragma once

#include <QFrame>

#include "review/ReviewScreen.h"
#include "ui/reviewing/FilterBar.h"
#include "ui/reviewing/PopupChoice.h"
#include "ui/reviewing/ReviewListView.h"
#include "ui/reviewing/UnreadPane.h"

class QTabWidget;

namespace tavrene::ui {

/// The choice `cboProfiles`: with every step the form is read again.
class ReviewChoice final : public PopupChoice, public review::ProfileChoice {
  public:
    explicit ReviewChoice(QWidget* parent);

    void ShowProfiles(std::span<const std::string> names) override;
    void SetChoice(std::string_view name) override;
    void TakeAway() override;
};

/// The review side of the window: the list of forms with the choice of the profile to read one against, and
/// on a second tab the pages that were not read.
class ReviewPane final : public QFrame {
  public:
    explicit ReviewPane(QWidget* parent);

    ReviewListView& List() { return *list_; }
    ReviewChoice& Choice() { return *choice_; }
    UnreadPane& Unread() { return *unread_; }

    void ShowUnread(const std::vector<review::UnreadPage>& pages);

    /// Brings the tab of the forms to the front; and there the filter to the keys.
    void ShowForms();
    void ShowFilter();

    /// Lets the filter offer the profiles that `cboProfiles` does.
    void OfferProfiles();

  private:
    FilterBar* filter_;
    ReviewListView* list_;
    ReviewChoice* choice_;
    UnreadPane* unread_;
    QTabWidget* tabs_;
};

}  // namespace tavrene::ui
