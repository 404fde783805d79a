#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "recognition/MarkReading.h"

namespace tavrene::recognition {

/// The root attributes of a result document.
struct ResultHeader {
    std::string Profile;
    std::string Image;  ///< File name with extension, no folder.
    std::string Reviewed = "0";
    std::int16_t Confidence = 0;
};

/// One box of a result document as it stands there.
struct ResultMark {
    std::string Name;
    bool Checked = false;
};

/// The file that belongs to an image of the same folder (path ending in a separator): its base name with
/// ".xml".
std::string ResultPath(const std::string& folder, const std::string& imageName);

/// Composes and writes a result document, replacing an earlier one as a whole. Throws `app::FileError`.
void SaveResultDocument(app::Files& files, const std::string& path, const ResultHeader& header,
                        std::span<const MarkReading> readings);

/// Name and state of every box of a written result document, in its order. Throws `profiles::DocumentError`
/// or `app::FileError`.
std::vector<ResultMark> ReadResultMarks(const app::Files& files, const std::string& path);

/// The name of the image that a result document belongs to; empty when it cannot be told.
std::string ImageOfResult(const app::Files& files, const std::string& path);

}  // namespace tavrene::recognition
