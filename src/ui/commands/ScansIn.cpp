#include "ui/commands/ScansIn.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "app/ImageNames.h"
#include "imaging/PageReader.h"

namespace tavrene::commands {
namespace {

// A scan that is to be copied, under the name that it has and under one that nothing else has.
struct Incoming {
    std::string path;
    std::string ownName;
    std::string freeName;
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

    // False when nothing is to be copied.
    bool SettleNames() {
        const auto taken = std::ranges::count_if(found_, IsTaken);
        if (taken == 0)
            return true;
        const app::Answer answer = person_.AskYesNoCancel(
            std::to_string(taken) + " of " + std::to_string(found_.size()) +
                " scans have names that scans in the working folder have already.\nYes puts the new ones in "
                "the place of those that have the same name, No gives the new ones other names.",
            app::Answer::No);
        if (answer == app::Answer::Cancel)
            return false;
        std::set<std::string> used;
        for (Incoming& scan : found_)
            if (answer == app::Answer::No || !used.insert(app::LowerCase(scan.ownName)).second)
                scan.ownName = scan.freeName;
        return true;
    }

    void Copy() {
        int copied = 0;
        for (const Incoming& scan : found_) {
            try {
                const bool isLast = &scan == &found_.back();
                files_.Write(folders_.ProcessIn + scan.ownName, files_.Read(scan.path),
                             isLast ? app::Keep::Durably : app::Keep::WithNext);
                ++copied;
            } catch (const app::FileError& error) {
                person_.ReportFile(app::FileName(scan.path), error.what());
            }
        }
        Tell(copied);
    }

  private:
    static bool IsTaken(const Incoming& scan) { return scan.ownName != scan.freeName; }

    static std::string Inside(const std::string& folder, const std::string& name) {
        return app::FromPath(app::ToPath(folder) / app::ToPath(name));
    }

    void AddFile(const std::string& path) {
        const std::string extension = ImageExtension(path);
        const std::string folder = app::FromPath(app::ToPath(path).parent_path() / "");
        if (extension.empty())
            ++others_;
        else if (folder == folders_.ProcessIn)
            ++waiting_;
        else
            found_.push_back(
                {path, app::BaseName(path) + extension, names_.Take(path, {&extension, 1}).front()});
    }

    void Tell(int copied) {
        const auto counted = [](int count, const char* one, const char* many) {
            return std::to_string(count) + " " + (count == 1 ? one : many);
        };
        std::string text = counted(copied, "scan was", "scans were") + " copied to ProcessIn.";
        if (others_ > 0)
            text += " " + counted(others_, "other file was", "other files were") + " left out: no image.";
        if (waiting_ > 0)
            text += " " + counted(waiting_, "is", "are") + " in ProcessIn already.";
        person_.SetPanel(app::Panel::Message, text);
    }

    app::Files& files_;
    app::Operator& person_;
    const app::WorkingFolders& folders_;
    app::ImageNames names_;
    std::vector<Incoming> found_;
    int others_ = 0;
    int waiting_ = 0;
};

}  // namespace

void CopyScansIn(std::span<const std::string> sources, app::Files& files, app::Operator& person,
                 const app::WorkingFolders& folders) {
    Intake intake(files, person, folders);
    for (const std::string& source : sources)
        intake.Find(source);
    if (intake.SettleNames())
        intake.Copy();
}

}  // namespace tavrene::commands
