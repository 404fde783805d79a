#include "recognition/PageLoading.h"

#include <utility>

namespace tavrene::recognition {

using imaging::Page;
using imaging::PageError;

void TellPageError(app::ActivityLog& log, app::Operator& person, const std::string& imageName,
                   PageError error) {
    log.LogProcessEvent(imageName + ": " + std::string(ReasonOf(error)));
    // That there is no library was told when the program started, and holds for every file alike.
    if (error != PageError::UnknownType && error != PageError::NoLibrary)
        person.ReportFile(imageName, ReasonOf(error));
}

std::optional<Page> LoadPage(const app::Files& files, app::ActivityLog& log, app::Operator& person,
                             const std::string& path) {
    std::variant<Page, PageError> read = imaging::ReadPage(files, path);
    if (const PageError* const error = std::get_if<PageError>(&read)) {
        TellPageError(log, person, app::FileName(path), *error);
        return std::nullopt;
    }
    return std::get<Page>(std::move(read));
}

}  // namespace tavrene::recognition
