#pragma once

#include <QImage>

#include "app/Files.h"
#include "imaging/Bitmap.h"

namespace tavrene::ui {

/// A picture of one bit (1 is black), 8 bits of grey or 32 bits of colour; null where there is none.
QImage ToImage(const imaging::Bitmap& picture);

/// The picture of an image file as the screen takes it; null when the file cannot be read or is of no known
/// type.
QImage ReadPageImage(const app::Files& files, const std::string& path);

}  // namespace tavrene::ui
