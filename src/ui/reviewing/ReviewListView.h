#pragma once

#include <QTreeView>
#include <functional>
#include <optional>
#include <utility>

#include "review/ReviewScreen.h"
#include "ui/reviewing/ShownLines.h"

namespace tavrene::ui {

/// The review list `lvwReview`: a tick, the form's name, its doubts, the confidence and more. A click on a
/// header sorts it, a third one puts it back into the folder's order. A click on a line or Enter opens it;
/// moving the selection does not. A double click is a click.
class ReviewListView final : public QTreeView, public review::ReviewLines {
  public:
    using Opened = std::function<void(std::size_t line)>;

    explicit ReviewListView(QWidget* parent);

    void SetListener(Opened opened) { opened_ = std::move(opened); }

    void ShowLines(std::span<const review::ReviewLine> lines) override;
    void InsertLine(std::size_t index, const review::ReviewLine& line) override;
    void ChangeLine(std::size_t index, const review::ReviewLine& line) override;
    void RemoveLine(std::size_t index) override;
    void SelectLine(std::size_t index) override;
    std::optional<std::size_t> Beside(std::optional<std::size_t> index, int step) const override;

    /// Shows only some of the lines, and that of the open form.
    void SetFilter(FormFilter filter);

    /// Whether the filter lets a line through by itself.
    bool Wants(std::size_t line) const;

    /// The line of the form of that name, where it is listed.
    std::optional<std::size_t> LineOf(const std::string& form) const;

    /// The current line, counted from 0.
    std::optional<std::size_t> SelectedLine() const;

    /// Whether a line that is shown is that of the open form.
    bool IsOpen(const QModelIndex& shown) const;

    /// Makes the line of the open form stand out, wherever the selection is.
    void MarkOpen(std::optional<std::size_t> line);

  protected:
    /// The current line is always the selected one: no key takes that away.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void LayOutColumns();
    void ShowColumnsWithRoom();
    void TellOpened(const QModelIndex& index);

    ReviewTable* lines_;
    ShownLines* shown_;
    Opened opened_;
};

}  // namespace tavrene::ui
