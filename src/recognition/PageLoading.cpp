#include "recognition/PageLoading.h"

#include <utility>
#include <variant>

namespace tavrene::recognition {

using imaging::Page;
using imaging::PageError;

std::optional<Page> LoadPage(const app::Files& files, app::ActivityLog& log, app::Operator& person,
                             const std::string& path) {
    std::variant<Page, PageError> read = imaging::ReadPage(files, path);
    if (Page* const page = std::get_if<Page>(&read))
        return std::move(*page);
    const PageError error = std::get<PageError>(read);
    const std::string name = app::FileName(path);
    log.LogProcessEvent(name + ": " + std::string(ReasonOf(error)));
    // That there is no library was told when the program started, and holds for every file alike.
    if (error != PageError::UnknownType && error != PageError::NoLibrary)
        person.ReportFile(name, ReasonOf(error));
    return std::nullopt;
}

}  // namespace tavrene::recognition
