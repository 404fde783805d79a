#pragma once

#include <filesystem>
#include <map>
#include <regex>
#include <string>

#include "app/Files.h"
#include "support/TempFolder.h"

namespace tavrene::test {

/// Every file of a working folder by its path there, without what a second run on another day could not have
/// the same: days, times of day, seconds taken, and the folder's own name.
inline std::map<std::string, std::string> ContentOf(const std::string& workDir) {
    static const std::regex day("-[0-9]{8}\\.Log$");
    static const std::regex time("(^|\n)[0-9:]{8} [AP]M ");
    static const std::regex seconds("[0-9]+ Sec\\.");
    std::map<std::string, std::string> content;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(workDir)) {
        if (!entry.is_regular_file())
            continue;
        std::string path = app::FromPath(entry.path()).substr(workDir.size());
        std::string text = ReadText(app::FromPath(entry.path()));
        if (path.ends_with(".Log")) {
            path = std::regex_replace(path, day, "");
            text = std::regex_replace(std::regex_replace(text, time, "$1"), seconds, "n Sec.");
            for (std::size_t at = 0; (at = text.find(workDir)) != std::string::npos;)
                text.replace(at, workDir.size(), "WORK");
        }
        if (path.starts_with("/Temp/"))
            text.clear();
        content[path] = std::move(text);
    }
    return content;
}

}  // namespace tavrene::test
