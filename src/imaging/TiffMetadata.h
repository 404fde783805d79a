#pragma once

#include <cstddef>
#include <span>

#include "app/Files.h"

namespace tavrene::imaging {

/// A TIFF whose directories hold only the tags that its pictures, their resolution and their label are made
/// of; all else stands where it stood. The image library reads freed memory over a file that has both a
/// colour profile and an EXIF directory, and stumbles over tags that no page needs. What is no TIFF comes
/// back as it is; nothing outside `content` is read.
app::Bytes WithoutMetadata(std::span<const std::byte> content);

}  // namespace tavrene::imaging
