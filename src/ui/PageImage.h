#pragma once

#include <QImage>

#include "app/Files.h"

namespace tavrene::ui {

/// The picture of an image file as the screen takes it; null when the file cannot be read or is of no known
/// type.
QImage ReadPageImage(const app::Files& files, const std::string& path);

}  // namespace tavrene::ui
