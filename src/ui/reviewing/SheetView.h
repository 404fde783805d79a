#pragma once

#include <QListView>
#include <functional>
#include <map>
#include <utility>

#include "ui/reviewing/SheetModel.h"

namespace tavrene::ui {

/// The boxes of the sheet as pictures `lvwSheet`, forty to a screen. Arrows move, with Shift they select
/// several; Space or a click turns marks round; Enter or a double click opens a form.
class SheetView final : public QListView {
  public:
    static constexpr int kColumns = 8;
    static constexpr int kRows = 5;
    static constexpr int kScreen = kColumns * kRows;

    explicit SheetView(QWidget* parent);

    struct Listener {
        std::function<void(int row)> opened;
        std::function<void()> changed;  ///< Other marks, or another current box.
    };
    void SetListener(Listener listener) { listener_ = std::move(listener); }

    void Show(SheetModel& model);

    /// The first row in sight, whole; the screen is this one and those that follow.
    int FirstOnScreen() const;

    /// What stands in the middle while there is no box.
    void SetHint(const QString& hint);

    /// Asks for the pictures of the next screen, and then of this one, so that those come first.
    void WantPictures();

    /// All of the screen, and no more: what nobody sees nobody means.
    void selectAll() override;

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    SheetModel* Sheet() const { return dynamic_cast<SheetModel*>(model()); }
    void TurnSelected();
    void FitCells();

    Listener listener_;
    QString hint_;
    std::map<const SheetModel*, int> places_;  ///< The current row of a part that is not shown.
    QPersistentModelIndex pressed_;            ///< Under the plain left button.
};

}  // namespace tavrene::ui
