#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <array>
#include <string>

#include "app/Operator.h"
#include "ui/base/InputWatch.h"
#include "ui/reviewing/SheetView.h"

namespace tavrene::ui {

/// The sheet of doubts: boxes of all waiting forms as pictures, marked ones apart from the others, judged and
/// confirmed a screen at a time. Pictures are made, and further forms looked at, while nobody waits.
class SheetDialog final : public QDialog {
  public:
    /// Both must outlive the dialog.
    SheetDialog(review::DoubtSheet& sheet, app::Operator& person, QWidget* parent);

    /// The box whose form the person wants to see; none (row 0) when the dialog was only closed.
    const review::SheetBox& Chosen() const { return chosen_; }

    /// What was done, as a sentence; empty for nothing.
    std::string Report() const;

  protected:
    void showEvent(QShowEvent* event) override;

    /// Turned marks that nobody has confirmed are asked about first.
    void done(int result) override;

  private:
    void LayOut();
    QWidget* Head();
    QWidget* Foot();
    void ChangeSubject();
    void Begin();
    void Add(const std::vector<review::SheetBox>& boxes);
    SheetModel& Part() { return *parts_[static_cast<std::size_t>(std::max(0, tabs_->currentIndex()))]; }
    void ShowPart();
    void Confirm();
    void GoOn();
    void Open(int row);
    int TurnedCount() const;
    bool MayDropTurned();
    void Update();
    void Work();
    bool LookAtForms();

    review::DoubtSheet& sheet_;
    app::Operator& person_;
    SheetCrops crops_;
    std::array<SheetModel*, 2> parts_;  ///< Marked, and not marked.
    QComboBox* subject_;
    QTabBar* tabs_;
    SheetView* view_;
    QLabel* about_;
    QLabel* progress_;
    QPushButton* confirm_;
    QTimer idle_;
    InputWatch input_;
    review::SheetBox chosen_;
    int begun_ = 0;  ///< The subject that is shown.
    int reviewed_ = 0;
    int corrected_ = 0;
};

}  // namespace tavrene::ui
