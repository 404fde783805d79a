#include "intake/BringIn.h"

#include <exception>
#include <memory>
#include <utility>
#include <variant>

#include "app/ImageNames.h"
#include "app/Reason.h"
#include "imaging/ScanPicture.h"
#include "intake/PageSource.h"
#include "intake/StagedPages.h"

namespace tavrene::intake {
namespace {

std::string WithoutSeparator(const std::string& path) {
    const std::filesystem::path plain = app::ToPath(path).lexically_normal();
    return app::FromPath(plain.has_filename() ? plain : plain.parent_path());
}

std::string Inside(const std::string& folder, const std::string& name) {
    return app::FromPath(app::ToPath(folder) / app::ToPath(name));
}

class Intake {
  public:
    Intake(app::Files& files, const app::WorkingFolders& folders, const Watch& watch)
        : files_(files), folders_(folders), watch_(watch), names_(files, folders) {}

    Report Run(std::span<const Source> sources) {
        for (const Source& source : sources)
            Find(source);
        progress_.files = found_.size();
        for (const Source& source : found_) {
            Outcome outcome{source.path};
            progress_.path = source.path;
            try {
                TakeIn(source, outcome);
            } catch (const std::exception& error) {
                outcome.reason = app::ReasonOf(error);
            }
            if (report_.isCancelled)
                break;
            report_.files.push_back(std::move(outcome));
            ++progress_.filesDone;
        }
        return std::move(report_);
    }

  private:
    // Lists the files of a source before anything is written, so that no page is taken for a source.
    void Find(const Source& source) {
        const std::string path = WithoutSeparator(source.path);
        const std::string incoming = WithoutSeparator(folders_.ProcessIn);
        const bool isFolder = files_.FolderExists(path);
        const std::string folder = isFolder ? path : app::FromPath(app::ToPath(path).parent_path());
        if (folder == incoming && source.firstPage == 1)
            report_.files.push_back({source.path, {}, "It is waiting to be processed already."});
        else if (isFolder)
            FindInFolder(path);
        else
            found_.push_back(source);
    }

    void FindInFolder(const std::string& folder) {
        try {
            for (const std::string& name : files_.List(folder, "*"))
                found_.push_back({Inside(folder, name)});
            for (const std::string& name : files_.ListFolders(folder))
                Find({Inside(folder, name)});
        } catch (const std::exception& error) {
            report_.files.push_back({folder, {}, app::ReasonOf(error)});
        }
    }

    void TakeIn(const Source& source, Outcome& outcome) {
        auto opened = OpenPages(files_.Read(source.path));
        if (const Reason* const reason = std::get_if<Reason>(&opened)) {
            outcome.reason = reason->text;
            return;
        }
        StagedPages staged(files_, folders_.Temp);
        std::vector<std::string> endings;
        PageSource& pages = *std::get<std::unique_ptr<PageSource>>(opened);
        progress_.pages = pages.PageCount();
        for (int page = source.firstPage; page <= progress_.pages; ++page) {
            if (!Stage(pages, page, staged, endings, outcome))
                return;
        }
        const std::vector<std::string> names = names_.Take(source.path, endings);
        staged.MoveTo(folders_.ProcessIn, names);
        outcome.images = names;
    }

    // False when the file is not to be brought in.
    bool Stage(PageSource& pages, int page, StagedPages& staged, std::vector<std::string>& endings,
               Outcome& outcome) {
        progress_.pagesDone = page - 1;
        if (!watch_(progress_)) {
            report_.isCancelled = true;
            return false;
        }
        auto read = pages.Page(page - 1);
        if (const Reason* const reason = std::get_if<Reason>(&read)) {
            outcome.reason = reason->text;
            return false;
        }
        const imaging::ScanFile image = imaging::EncodeScan(std::get<imaging::Bitmap>(std::move(read)));
        staged.Add(image.content);
        endings.push_back(app::PageSuffix(page, progress_.pages) + image.extension);
        return true;
    }

    app::Files& files_;
    const app::WorkingFolders& folders_;
    const Watch& watch_;
    app::ImageNames names_;
    std::vector<Source> found_;
    Progress progress_;
    Report report_;
};

}  // namespace

Report BringIn(app::Files& files, const app::WorkingFolders& folders, std::span<const Source> sources,
               const Watch& watch) {
    return Intake(files, folders, watch).Run(sources);
}

}  // namespace tavrene::intake
