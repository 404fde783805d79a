#include "profiles/Thumbnails.h"

#include <exception>
#include <map>
#include <utility>
#include <variant>

#include "app/Reason.h"
#include "imaging/PageReader.h"

namespace tavrene::profiles {
namespace {

constexpr int kWidth = 140;
constexpr int kMaxHeight = 280;
constexpr int kPlaceholderHeight = 198;

// A page is the right one as long as this is the same. A placeholder has no label, so that a specimen that
// has come back is seen at the next chance.
std::string LabelFor(const app::Files& files, const StripEntry& profile) {
    const std::string fingerprint = files.Fingerprint(profile.Image);
    if (!profile.IsReadable || fingerprint.empty())
        return {};
    return std::to_string(kWidth) + "|" + fingerprint + "|" + profile.Image;
}

std::vector<std::string> LabelsOf(std::span<const imaging::TiffPage> pages) {
    std::vector<std::string> labels;
    labels.reserve(pages.size());
    for (const imaging::TiffPage& page : pages)
        labels.push_back(page.label);
    return labels;
}

std::string Caption(std::size_t number, std::size_t count) {
    return "Profile " + std::to_string(number) + " of " + std::to_string(count);
}

bool HasLibrary() {
    return !imaging::ImageLibraryVersion().empty();
}

}  // namespace

Thumbnails::Thumbnails(app::Files& files, app::ActivityLog& log, app::Operator& person,
                       std::string profilesFolder)
    : files_(files), log_(log), person_(person), path_(std::move(profilesFolder) + "Tavrene_Profiles.tif") {}

void Thumbnails::Rebuild(std::span<const StripEntry> profiles, ThumbnailStrip& strip) {
    TakeOverFile();
    const std::vector<std::string> before = LabelsOf(pages_);
    pages_ = PagesOf(profiles);
    // Without the image library there are no pictures, and the file keeps those that it has.
    if (HasLibrary() && !pages_.empty() && (LabelsOf(pages_) != before || !files_.FileExists(path_)))
        WriteFile();
    std::vector<StripThumbnail> thumbnails;
    thumbnails.reserve(pages_.size());
    for (const imaging::TiffPage& page : pages_)
        thumbnails.push_back({&page.picture, Caption(thumbnails.size() + 1, pages_.size())});
    strip.ShowThumbnails(thumbnails);
}

void Thumbnails::DeleteFile() {
    if (files_.FileExists(path_))
        files_.Delete(path_);
}

void Thumbnails::TakeOverFile() {
    if (std::exchange(isFileRead_, true) || !files_.FileExists(path_))
        return;
    try {
        pages_ = imaging::DecodeTiffPages(files_.Read(path_));
    } catch (const std::exception& error) {
        log_.LogProfileEvent(app::ReasonOf(error));
    }
}

std::vector<imaging::TiffPage> Thumbnails::PagesOf(std::span<const StripEntry> profiles) {
    std::multimap<std::string, imaging::TiffPage> old;
    for (imaging::TiffPage& page : pages_)
        old.emplace(page.label, std::move(page));
    std::vector<imaging::TiffPage> pages;
    pages.reserve(profiles.size());
    person_.SetProgressRange(static_cast<int>(profiles.size()));
    for (const StripEntry& profile : profiles) {
        const std::string label = LabelFor(files_, profile);
        auto kept = label.empty() ? old.end() : old.find(label);
        if (kept == old.end()) {
            pages.push_back(MakePage(profile, label));
            person_.SetProgress(static_cast<int>(pages.size()));
        } else {
            pages.push_back(std::move(kept->second));
            old.erase(kept);
        }
    }
    person_.SetProgress(0);
    return pages;
}

imaging::TiffPage Thumbnails::MakePage(const StripEntry& profile, const std::string& label) {
    const auto placeholder = [] {
        return imaging::TiffPage{imaging::PlaceholderPicture(kWidth, kPlaceholderHeight), {}};
    };
    if (!profile.IsReadable || !HasLibrary())  // why is in the log already
        return placeholder();
    std::string reason = "its specimen image " + profile.Image + " cannot be read";
    try {
        const auto read = imaging::ReadSpecimen(files_, profile.Image);
        if (const imaging::Page* const page = std::get_if<imaging::Page>(&read))
            return {imaging::ReducedPicture(page->bitmap, kWidth, kMaxHeight), label};
    } catch (const std::exception& error) {
        reason = app::ReasonOf(error);
    }
    log_.LogProfileEvent("No thumbnail for profile " + profile.FileName + ": " + reason);
    return placeholder();
}

void Thumbnails::WriteFile() {
    try {
        files_.Write(path_, imaging::EncodeTiffPages(pages_));
    } catch (const std::exception& error) {
        log_.LogProfileEvent(app::ReasonOf(error), app::ShowInStatusBar::Yes);
    }
}

}  // namespace tavrene::profiles
