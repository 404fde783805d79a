#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"

namespace tavrene::profiles {

/// How many of its boxes a group's question takes.
enum class Takes { One, AnyNumber, AtLeastOne };

/// Boxes that answer one question together.
struct BoxGroup {
    std::string Name;
    std::vector<std::string> Boxes;  ///< By name, in the order of the profile.
    Takes Marks = Takes::AnyNumber;
    bool operator==(const BoxGroup&) const = default;
};

/// The file beside a profile document that its groups are kept in; no pattern of documents matches it.
std::string BoxGroupsPath(const std::string& profilePath);

/// The groups that somebody has set for a profile, none among them perhaps; nothing where nobody has. A box
/// that stands in two groups counts in both. Throws `DocumentError`, or `app::FileError` for a file that
/// cannot be read.
std::optional<std::vector<BoxGroup>> ReadBoxGroups(const app::Files& files, const std::string& profilePath);

/// Keeps the groups of a profile, as a whole or not at all. Throws `app::FileError`.
void WriteBoxGroups(app::Files& files, const std::string& profilePath, std::span<const BoxGroup> groups);

/// Forgets what was set, so that the names tell the groups again. Throws `app::FileError`.
void DeleteBoxGroups(app::Files& files, const std::string& profilePath);

/// The groups that names tell: two boxes or more with the same first words ("Sex female", "Sex male"), by as
/// many words as all of them share. "Question 1 yes" and "Question 2 yes" are of two groups: numbers part
/// them. How many marks a group takes names do not tell: any number.
std::vector<BoxGroup> GroupsByName(std::span<const std::string> names);

/// The groups of a profile with boxes of these names: those that are set, or else those that names tell.
/// Throws as `ReadBoxGroups` does.
std::vector<BoxGroup> GroupsOf(const app::Files& files, const std::string& profilePath,
                               std::span<const std::string> names);

}  // namespace tavrene::profiles
