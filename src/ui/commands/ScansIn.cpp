#include "ui/commands/ScansIn.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "app/Counted.h"
#include "app/ImageNames.h"
#include "imaging/PageReader.h"
#include "ui/commands/PagesIn.h"

namespace tavrene::commands {
namespace {

// A scan that is to be copied, under the name that it has and under one that nothing else has.
struct Incoming {
    std::string path;
    std::string ownName;
    std::string freeName;
    bool mayReplace;  // A scan of its own name waits in `ProcessIn`.

    // Any other file of that name, read already or read by the same run, would share its result.
    const std::string& NameFor(app::Answer answer) const {
        return mayReplace && answer == app::Answer::Yes ? ownName : freeName;
    }
};

// The extension by which a run takes it for an image; empty for other files. Runs do not know the longer
// spellings.
std::string ImageExtension(const std::string& path) {
    const std::string extension = "." + app::Extension(path);
    const std::string upper = app::UpperCase(extension);
    const std::string known = upper == ".TIFF" ? ".tif" : upper == ".JPEG" ? ".jpg" : extension;
    return imaging::FormatOfExtension("x" + known) ? known : std::string();
}

class Intake {
  public:
    Intake(app::Files& files, app::Operator& person, const app::WorkingFolders& folders)
        : files_(files), person_(person), folders_(folders), names_(files, folders) {}

    void Find(const std::string& source) {
        if (!files_.FolderExists(source)) {
            AddFile(source);
            return;
        }
        try {
            for (const std::string& name : files_.List(source, "*"))
                AddFile(Inside(source, name));
            for (const std::string& name : files_.ListFolders(source))
                Find(Inside(source, name));
        } catch (const app::FileError& error) {
            person_.ReportFile(app::FileName(source), error.what());
        }
    }

    // Whether scans that wait are replaced; Cancel when nothing is to be copied.
    app::Answer AskAboutNames() {
        const auto waiting = std::ranges::count_if(found_, &Incoming::mayReplace);
        if (waiting == 0)
            return app::Answer::No;
        return person_.AskYesNoCancel(std::to_string(waiting) + " of " + std::to_string(found_.size()) +
                                          " scans have names of scans that wait in ProcessIn.\nYes puts the "
                                          "new ones in their place, No "
                                          "gives the new ones other names.",
                                      app::Answer::No);
    }

    void Copy(app::Answer answer) {
        int copied = 0;
        for (const Incoming& scan : found_) {
            const std::string& name = scan.NameFor(answer);
            try {
                const bool isLast = &scan == &found_.back();
                files_.Write(folders_.ProcessIn + name, files_.Read(scan.path),
                             isLast ? app::Keep::Durably : app::Keep::WithNext);
                ++copied;
                renamed_ += name != scan.ownName ? 1 : 0;
            } catch (const app::FileError& error) {
                person_.ReportFile(app::FileName(scan.path), error.what());
            }
        }
        Tell(copied);
    }

    CopiedIn Result() const { return {pages_, told_}; }

  private:
    static std::string Inside(const std::string& folder, const std::string& name) {
        return app::FromPath(app::ToPath(folder) / app::ToPath(name));
    }

    void AddFile(const std::string& path) {
        const std::string extension = ImageExtension(path);
        const std::string folder = app::FromPath(app::ToPath(path).parent_path() / "");
        if (folder == folders_.ProcessIn)
            ++waiting_;
        else if (HoldsPages(files_, path))
            pages_.push_back(path);
        else if (extension.empty())
            ++others_;
        else
            Take(path, extension);
    }

    void Take(const std::string& path, const std::string& extension) {
        const std::string own = app::BaseName(path) + extension;
        const bool waits = files_.FileExists(folders_.ProcessIn + own) && replaced_.insert(own).second;
        found_.push_back({path, own, names_.Take(path, {&extension, 1}).front(), waits});
    }

    void Tell(int copied) {
        if (!pages_.empty() && found_.empty() && others_ + waiting_ == 0)
            return;
        told_ = app::Counted(copied, "scan was", "scans were") + " copied to ProcessIn.";
        if (renamed_ > 0)
            told_ += " " + app::Counted(renamed_, "has", "have") + " a new name.";
        if (others_ > 0)
            told_ +=
                " " + app::Counted(others_, "other file was", "other files were") + " left out: no image.";
        if (waiting_ > 0)
            told_ += " " + app::Counted(waiting_, "is", "are") + " in ProcessIn already.";
        person_.SetPanel(app::Panel::Message, told_);
    }

    app::Files& files_;
    app::Operator& person_;
    const app::WorkingFolders& folders_;
    app::ImageNames names_;
    std::vector<Incoming> found_;
    std::string told_;
    std::vector<std::string> pages_;  // files of several pages
    std::set<std::string> replaced_;
    int renamed_ = 0;
    int others_ = 0;
    int waiting_ = 0;
};

}  // namespace

CopiedIn CopyScansIn(std::span<const std::string> sources, app::Files& files, app::Operator& person,
                     const app::WorkingFolders& folders) {
    Intake intake(files, person, folders);
    for (const std::string& source : sources)
        intake.Find(source);
    const app::Answer answer = intake.AskAboutNames();
    if (answer == app::Answer::Cancel)
        return {};
    intake.Copy(answer);
    return intake.Result();
}

}  // namespace tavrene::commands
