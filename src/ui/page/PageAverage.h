#pragma once

#include <QImage>

namespace tavrene::ui {

/// A smaller picture, in grey, of a one-bit page; each of its pixels is the mean of what it covers. The
/// smooth scaling of images gives the same, but turns the whole page into colours first, which takes many
/// times as long.
QImage Averaged(const QImage& page, const QSize& size);

}  // namespace tavrene::ui
