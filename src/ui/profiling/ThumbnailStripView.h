#pragma once

#include <QListView>
#include <functional>

#include "profiles/ProfileScreen.h"

namespace tavrene::ui {

/// The thumbnail strip `ImgThumbnail1`. Thumbnails are numbered from 1; only those in sight are painted.
/// Clicks and keys only ask for a thumbnail; which one is selected, `SelectThumbnail` alone says.
class ThumbnailStripView final : public QListView, public profiles::ThumbnailStrip {
  public:
    struct Listener {
        std::function<void(int k)> chosen;          ///< By mouse or keyboard.
        std::function<std::string(int k)> toolTip;  ///< Asked when the pointer rests on a thumbnail.
    };

    explicit ThumbnailStripView(QWidget* parent);

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    void ShowThumbnails(std::span<const profiles::StripThumbnail> thumbnails) override;
    void SelectThumbnail(int k) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    class Pages;

    void TellChosen(const QModelIndex& index);

    Pages* pages_;
    Listener listener_;
};

}  // namespace tavrene::ui
