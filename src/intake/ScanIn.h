#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/WorkingFolders.h"
#include "intake/Scanner.h"

namespace tavrene::intake {

/// What came of one go.
struct Scanned {
    std::vector<std::string> images = {};  ///< The names of the pages in `ProcessIn`, in their order.
    std::string reason = {};               ///< Why it ended, where that was not the end of the pages.
    bool isCancelled = false;
};

/// Is told how many pages are there, again and again; its answer false cancels.
using ScanWatch = std::function<bool(std::size_t pages)>;

/// Makes an image in `ProcessIn` of each page that the scanner gives: one, or as many as lie in its feeder.
/// Each is there as soon as it is whole, and stays whatever becomes of those behind it. They are named after
/// the time ("scan-20240305-140907-p001.tif"); no name is given that an image or result of the processing
/// folders has. Throws what `Scanner::Set` throws, and `app::FileError` when the working folders cannot be
/// listed.
Scanned ScanIn(app::Files& files, const app::WorkingFolders& folders, const app::LocalTime& now,
               Scanner& scanner, const ScanSettings& settings, const ScanWatch& watch);

}  // namespace tavrene::intake
