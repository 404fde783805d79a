#include "profiles/ProfileLoader.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "app/Numeric.h"
#include "profiles/ProfileDocument.h"

namespace tavrene::profiles {
namespace {

// Recognition counts rows upwards and wants the lower edge of a box first, whatever order the document has.
void PutLowerEdgeFirst(OmrBox& box) {
    const std::int16_t upper = app::Min(box.T, box.B);
    box.T = app::Max(box.T, box.B);
    box.B = upper;
}

std::int16_t OutlineOf(const OmrBox& box) {
    return app::WrapToInt16(2 * ((box.R - box.L) + (box.T - box.B)) - 4);
}

BoxExtent ExtentOf(std::span<const OmrBox> boxes) {
    BoxExtent extent;
    if (boxes.empty())
        return extent;
    extent = {boxes[0].L, boxes[0].T, boxes[0].R, boxes[0].B};
    for (const OmrBox& box : boxes) {
        extent.L = app::Min(extent.L, box.L);
        extent.T = app::Min(extent.T, box.T);
        extent.R = app::Max(extent.R, box.R);
        extent.B = app::Max(extent.B, box.B);
    }
    return extent;
}

ProfileRecord ReadRecord(const app::Files& files, const std::string& path) {
    ProfileContent content = ReadProfileContent(LoadProfileDocument(files, path));
    ProfileRecord record;
    record.Name = app::BaseName(path);
    record.FileName = app::FileName(path);
    record.Image = content.Image;
    record.Active = content.Active;
    record.DPI_X = content.DPI_X;
    record.DPI_Y = content.DPI_Y;
    record.Boxes = std::move(content.Boxes);
    const auto counted = static_cast<std::size_t>(std::max<std::int16_t>(content.Count, 0));
    record.Boxes.resize(std::min(record.Boxes.size(), counted));
    for (OmrBox& box : record.Boxes) {
        PutLowerEdgeFirst(box);
        box.ExpectedOutline = OutlineOf(box);
    }
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
            log.LogProfileEvent("Profile " + fileName + " is left out: " + error.what());
        }
    }
    person.SetPanel(app::Panel::File, ProfileCounts(profiles));
    person.SetPanel(app::Panel::Message, "Ready");
    return profiles;
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
