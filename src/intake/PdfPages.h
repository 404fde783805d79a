#pragma once

#include <memory>
#include <span>
#include <variant>

#include "app/Files.h"
#include "intake/PageSource.h"

namespace tavrene::intake {

/// Whether the content begins as a PDF does.
bool IsPdf(std::span<const std::byte> content);

/// The pages of a PDF. A page that shows nothing but one picture, from edge to edge, is that picture pixel
/// for pixel; any other is drawn at 300 dots per inch. A file that is damaged anywhere is refused: a viewer
/// mends what it can and leaves the rest white, and marks would be lost in silence.
std::variant<std::unique_ptr<PageSource>, Reason> OpenPdf(app::Bytes content);

}  // namespace tavrene::intake
