#include "recognition/PageLoading.h"

#include <utility>

namespace tavrene::recognition {

using imaging::Page;
using imaging::PageError;

std::variant<Page, PageError> LoadPageOrReason(const app::Files& files, app::ActivityLog& log,
                                               app::Operator& person, const std::string& path) {
    std::variant<Page, PageError> read = imaging::ReadPage(files, path);
    if (const PageError* const error = std::get_if<PageError>(&read)) {
        const std::string name = app::FileName(path);
        log.LogProcessEvent(name + ": " + std::string(ReasonOf(*error)));
        // That there is no library was told when the program started, and holds for every file alike.
        if (*error != PageError::UnknownType && *error != PageError::NoLibrary)
            person.ReportFile(name, ReasonOf(*error));
    }
    return read;
}

std::optional<Page> LoadPage(const app::Files& files, app::ActivityLog& log, app::Operator& person,
                             const std::string& path) {
    std::variant<Page, PageError> read = LoadPageOrReason(files, log, person, path);
    Page* const page = std::get_if<Page>(&read);
    return page != nullptr ? std::optional(std::move(*page)) : std::nullopt;
}

}  // namespace tavrene::recognition
