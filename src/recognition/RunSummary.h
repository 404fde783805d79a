#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrene::recognition {

/// What became of one image in a run: read with its result beside it in `ProcessOut`; there without a result,
/// since no profile fits it or nothing can be read from it; or neither it nor its result could be written.
enum class FileEnd { Read, NotRecognised, Refused, NotWritten };

struct FileReport {
    std::string name;
    FileEnd end = FileEnd::Refused;
    std::string reason;    ///< As the process log has it, without the name.
    int furtherPages = 0;  ///< Of a file of several pages those that nobody looks at, the first being read.
};

/// The files that a run has taken, in its order.
struct RunSummary {
    std::vector<FileReport> files;
    long seconds = 0;

    std::size_t Count(FileEnd end) const;
};

/// What a line of the process log says of the image `name`, without the name; empty for a line about
/// something else.
std::string WhatItSaysOf(std::string_view name, std::string_view logLine);

}  // namespace tavrene::recognition
