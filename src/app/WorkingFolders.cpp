#include "app/WorkingFolders.h"

#include <array>

namespace tavrene::app {
namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

constexpr std::array kSubFolders = {"ProfileImages", "Profiles",      "ProcessIn", "ProcessOut",
                                    "ProcessFinal",  "ProcessReject", "Temp",      "Log"};

std::string SubFolder(const std::string& workDir, std::size_t index) {
    return workDir + kSeparator + kSubFolders[index];
}

}  // namespace

WorkingFolders PathsUnder(const std::string& workDir) {
    const auto path = [&workDir](std::size_t index) { return SubFolder(workDir, index) + kSeparator; };
    return {path(0), path(1), path(2), path(3), path(4), path(5), path(6), path(7)};
}

bool CreateWorkingFolders(Files& files, const std::string& workDir) {
    try {
        for (std::size_t index = 0; index < kSubFolders.size(); ++index) {
            const std::string folder = SubFolder(workDir, index);
            if (!files.FolderExists(folder))
                files.CreateFolder(folder);
        }
    } catch (const FileError&) {
        return false;
    }
    return true;
}

void RemoveLeftovers(Files& files, const std::string& workDir) {
    for (std::size_t index = 0; index < kSubFolders.size(); ++index)
        RemoveDeadTemporaries(files, SubFolder(workDir, index) + kSeparator);
}

}  // namespace tavrene::app
