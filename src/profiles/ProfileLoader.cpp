#include "profiles/ProfileLoader.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

#include "app/Numeric.h"
#include "app/Reason.h"
#include "profiles/ProfileDocument.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

BoxExtent ExtentOf(std::span<const PrintedBox> boxes) {
    BoxExtent extent;
    if (boxes.empty())
        return extent;
    extent = {boxes[0].L, boxes[0].R, boxes[0].lower, boxes[0].upper};
    for (const PrintedBox& box : boxes) {
        extent.L = app::Min(extent.L, box.L);
        extent.R = app::Max(extent.R, box.R);
        extent.lower = app::Min(extent.lower, box.lower);
        extent.upper = app::Max(extent.upper, box.upper);
    }
    return extent;
}

// Without it recognition could not tell how large a scan's boxes are.
std::int16_t Resolution(const std::optional<std::int16_t>& value, const char* attribute) {
    if (!value)
        throw DocumentError(std::string("the attribute ") + attribute + " of Tavrene is missing");
    return *value;
}

ProfileRecord ReadRecord(const app::Files& files, const std::string& path) {
    const ProfileContent content = ReadProfileContent(LoadProfileDocument(files, path));
    ProfileRecord record;
    record.Name = app::BaseName(path);
    record.FileName = app::FileName(path);
    record.Image = content.Image;
    record.Active = content.Active;
    record.DPI_X = Resolution(content.DPI_X, "DPI_X");
    record.DPI_Y = Resolution(content.DPI_Y, "DPI_Y");
    const auto counted = static_cast<std::size_t>(std::max<std::int16_t>(content.Count, 0));
    const std::span<const OmrBox> boxes(content.Boxes.data(), std::min(content.Boxes.size(), counted));
    std::transform(boxes.begin(), boxes.end(), std::back_inserter(record.Boxes), PrintedBoxOf);
    record.Extent = ExtentOf(record.Boxes);
    return record;
}

std::vector<std::string> ListProfiles(const app::Files& files, app::ActivityLog& log,
                                      const std::string& folder) {
    try {
        return files.List(folder, "*.Tvp");
    } catch (const app::FileError& error) {
        log.LogProfileEvent(error.what());
        return {};
    }
}

}  // namespace

PrintedBox PrintedBoxOf(const OmrBox& box) {
    PrintedBox printed{box.Name, box.L, box.R, app::Max(box.T, box.B), app::Min(box.T, box.B)};
    printed.expectedOutline =
        app::WrapToInt16(2 * ((printed.R - printed.L) + (printed.lower - printed.upper)) - 4);
    return printed;
}

std::vector<ProfileRecord> LoadActiveProfiles(const app::Files& files, app::ActivityLog& log,
                                              app::Operator& person, const std::string& profilesFolder) {
    std::vector<ProfileRecord> profiles;
    for (const std::string& fileName : ListProfiles(files, log, profilesFolder)) {
        const std::string path = profilesFolder + fileName;
        try {
            ProfileRecord record = ReadRecord(files, path);
            person.SetPanel(app::Panel::Message, "Loading profile " + path);
            log.LogProfileEvent("Loaded Profile: " + fileName);
            profiles.push_back(std::move(record));
        } catch (const std::exception& error) {
            log.LogProfileEvent("Profile " + fileName + " is left out: " + app::ReasonOf(error));
        }
    }
    person.SetPanel(app::Panel::File, ProfileCounts(profiles));
    person.SetPanel(app::Panel::Message, "Ready");
    return profiles;
}

ProfileRecord RecordOf(const OpenProfile& profile) {
    ProfileRecord record;
    record.Name = profile.Name;
    record.FileName = app::FileName(profile.Path);
    record.Image = profile.Image;
    record.Active = profile.Active;
    record.DPI_X = profile.DPI_X;
    record.DPI_Y = profile.DPI_Y;
    for (const OmrBox& box : profile.BoxList)
        if (box.Checked)
            record.Boxes.push_back(PrintedBoxOf(box));
    record.Extent = ExtentOf(record.Boxes);
    return record;
}

int CountActive(std::span<const ProfileRecord> profiles) {
    return static_cast<int>(std::count_if(profiles.begin(), profiles.end(),
                                          [](const ProfileRecord& profile) { return profile.Active; }));
}

std::string ProfileCounts(std::span<const ProfileRecord> profiles) {
    return "Profiles:" + std::to_string(profiles.size()) +
           ", Active:" + std::to_string(CountActive(profiles));
}

}  // namespace tavrene::profiles
