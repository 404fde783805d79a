#include "ui/commands/PagesIn.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "app/Counted.h"
#include "app/Reason.h"
#include "imaging/TiffHeader.h"
#include "ui/commands/Places.h"

namespace tavrene::commands {

bool HoldsPages(const app::Files& files, const std::string& path) {
    const std::string extension = app::UpperCase(app::Extension(path));
    constexpr std::array<std::string_view, 5> kAlways = {"PDF", "JP2", "J2K", "J2C", "WEBP"};
    if (std::ranges::find(kAlways, extension) != kAlways.end())
        return true;
    int pages = 1;
    // What cannot be read is told when it is to be copied.
    if (extension == "TIF" || extension == "TIFF")
        app::FailureOf([&] { pages = imaging::CountTiffPictures(files.Read(path)); });
    return pages > 1;
}

PagesBroughtIn BringPagesIn(std::span<const intake::Source> sources, app::Files& files, app::Operator& person,
                            const app::WorkingFolders& folders, const intake::Watch& watch) {
    const intake::Report report = intake::BringIn(files, folders, sources, watch);
    PagesBroughtIn in;
    std::size_t pages = 0;
    for (const intake::Outcome& file : report.files) {
        pages += file.images.size();
        if (!file.images.empty())
            in.paths.push_back(file.path);
        if (!file.reason.empty())
            person.ReportFile(app::FileName(file.path), file.reason);
    }
    in.told = app::Counted(pages, "page", "pages") + " of " + app::Counted(in.paths.size(), "file", "files") +
              (pages == 1 ? " was" : " were") + " brought in to ProcessIn." +
              (report.isCancelled ? " The rest was cancelled." : "");
    return in;
}

std::vector<intake::Source> FurtherPagesOf(const recognition::RunSummary& summary, const app::Files& files,
                                           const app::WorkingFolders& folders) {
    std::vector<intake::Source> sources;
    for (const recognition::FileReport& file : summary.files)
        if (file.furtherPages > 0)
            sources.push_back({ImageInUse(files, folders, file.name), 2});
    return sources;
}

}  // namespace tavrene::commands
