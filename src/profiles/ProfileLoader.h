#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "profiles/OpenProfile.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// Loads every profile document of the `Profiles` folder (path ending in a separator), active or not, in
/// listing order, and shows progress and the counts in the status bar. A document that cannot be read is left
/// out with one line in the profile log.
std::vector<ProfileRecord> LoadActiveProfiles(const app::Files& files, app::ActivityLog& log,
                                              app::Operator& person, const std::string& profilesFolder);

/// The profile at the desk as a run would load it once it is saved.
ProfileRecord RecordOf(const OpenProfile& profile);

int CountActive(std::span<const ProfileRecord> profiles);

/// The text of the `File` panel outside a run and outside review: "Profiles:3, Active:2".
std::string ProfileCounts(std::span<const ProfileRecord> profiles);

}  // namespace tavrene::profiles
