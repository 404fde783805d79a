#include "app/ImageNames.h"

#include <algorithm>
#include <string_view>

#include "app/Utf8.h"

namespace tavrene::app {
namespace {

// The base name of a file as the beginning of a name: not hidden, and with room for what comes behind it.
std::string StemOf(const std::string& path) {
    constexpr std::size_t kRoom = 200;
    std::string base = ValidUtf8(BaseName(path));
    base.erase(0, std::min(base.find_first_not_of('.'), base.size()));
    std::string_view rest = base;
    while (!rest.empty()) {
        const std::size_t before = base.size() - rest.size();
        TakeCharacter(rest);
        if (base.size() - rest.size() > kRoom)
            return base.substr(0, before);
    }
    return base.empty() ? "scan" : base;
}

}  // namespace

std::string PageSuffix(int page, int pages) {
    constexpr std::size_t kDigits = 3;
    if (pages == 1)
        return {};
    const std::string number = std::to_string(page);
    const std::size_t digits = std::max(kDigits, std::to_string(pages).size());
    return "-p" + std::string(digits - number.size(), '0') + number;
}

ImageNames::ImageNames(const Files& files, const WorkingFolders& folders)
    : files_(files), incoming_(folders.ProcessIn) {
    // A result is found by the base name of its image, so an image in any of these folders keeps all names
    // that differ from its own by the extension alone.
    for (const std::string* const folder :
         {&folders.ProcessIn, &folders.ProcessOut, &folders.ProcessFinal, &folders.ProcessReject}) {
        for (const std::string& name : files.List(*folder, "*"))
            taken_.insert(LowerCase(BaseName(name)));
    }
}

std::vector<std::string> ImageNames::Take(const std::string& path, std::span<const std::string> endings) {
    const std::string stem = StemOf(path);
    std::vector<std::string> names;
    for (int round = 1; names.size() < endings.size(); ++round) {
        const std::string beginning = round == 1 ? stem : stem + "-" + std::to_string(round);
        names.clear();
        for (const std::string& ending : endings) {
            if (!IsFree(beginning + ending))
                break;
            names.push_back(beginning + ending);
        }
    }
    for (const std::string& name : names)
        taken_.insert(LowerCase(BaseName(name)));
    return names;
}

bool ImageNames::IsFree(const std::string& name) const {
    return taken_.count(LowerCase(BaseName(name))) == 0 && !files_.FileExists(incoming_ + name);
}

}  // namespace tavrene::app
