#include "recognition/RunSummary.h"

#include <algorithm>

namespace tavrene::recognition {

std::size_t RunSummary::Count(FileEnd end) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(files, [end](const FileReport& file) { return file.end == end; }));
}

std::string WhatItSaysOf(std::string_view name, std::string_view logLine) {
    const std::string plain = std::string(name) + ": ";
    const std::string bracketed = "Image [" + std::string(name) + "] ";
    for (const std::string& beginning : {plain, bracketed}) {
        if (!logLine.starts_with(beginning))
            continue;
        logLine.remove_prefix(beginning.size());
        return std::string(logLine.substr(0, logLine.find_last_not_of(' ') + 1));
    }
    return {};
}

}  // namespace tavrene::recognition
