#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::intake {

/// A file or a folder to be brought in; of a folder all files, also those in the folders below it.
struct Source {
    std::string path;
    int firstPage = 1;  ///< Of a file whose pages before it are in already.
};

/// What became of one file (or of a folder that could not be taken).
struct Outcome {
    std::string path;
    std::vector<std::string> images = {};  ///< The names of its pages in `ProcessIn`, in their order.
    std::string reason = {};               ///< Why nothing of it was brought in, in plain words; else empty.
};

struct Report {
    std::vector<Outcome> files;  ///< In the order of the sources; after a cancel those that were done.
    bool isCancelled = false;
};

/// How far the work is: the files done, and the pages of the current one.
struct Progress {
    std::string path;
    std::size_t filesDone = 0;
    std::size_t files = 0;
    int pagesDone = 0;
    int pages = 0;
};

/// Asked before each page; its answer false cancels.
using Watch = std::function<bool(const Progress&)>;

/// Makes an image in `ProcessIn` of every page of the sources, which are only read. A file comes in with all
/// of its pages or not at all: they are made in `Temp` and moved when the last one is there. The image of a
/// file of one page bears its name; those of several are `name-p001.tif` and so on. No name is given that an
/// image or result in any of the processing folders has, whatever its extension: a run would put the one in
/// the place of the other. Throws `app::FileError` when the working folders cannot be listed.
Report BringIn(app::Files& files, const app::WorkingFolders& folders, std::span<const Source> sources,
               const Watch& watch);

}  // namespace tavrene::intake
