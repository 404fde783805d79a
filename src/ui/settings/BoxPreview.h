#pragma once

#include <QFrame>

namespace tavrene::ui {

/// A small white area that shows one box size at one screen pixel an image pixel, in the middle.
class BoxPreview final : public QFrame {
  public:
    static constexpr int kSide = 88;

    explicit BoxPreview(const QString& name);

    void ShowSize(int boxWidth, int boxHeight);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int boxWidth_ = 0;
    int boxHeight_ = 0;
};

}  // namespace tavrene::ui
