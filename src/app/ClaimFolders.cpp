#include "app/ClaimFolders.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "app/Reason.h"

namespace tavrene::app {

std::string ClaimsIn(const std::string& folder) {
    return folder + ".claims/";
}

std::vector<std::string> ClaimFoldersIn(const std::string& claims) {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(ToPath(claims), error), end; !error && entry != end;
         entry.increment(error))
        if (std::string name = FromPath(entry->path().filename()); !name.starts_with(kLeftClaim))
            names.push_back(std::move(name));
    return names;
}

std::size_t CountClaimed(const Files& files, const std::string& folder) {
    const std::string claims = ClaimsIn(folder);
    std::size_t count = 0;
    for (const std::string& name : ClaimFoldersIn(claims))
        FailureOf([&] { count += files.List(claims + name + "/", "*").size(); });
    return count;
}

}  // namespace tavrene::app
