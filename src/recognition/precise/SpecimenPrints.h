#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/Files.h"
#include "recognition/precise/SpecimenPrint.h"

namespace tavrene::recognition {

/// The prints of the profiles' specimens, each read when it is first asked for and again only when its image
/// or its profile has changed.
class SpecimenPrints {
  public:
    /// `files` must outlive this.
    explicit SpecimenPrints(const app::Files& files) : files_(files) {}

    /// Null when the image is not there or cannot be read. The answer holds until the profile is next asked
    /// for.
    const SpecimenPrint* Of(const profiles::ProfileRecord& profile);

    /// Names of the profiles whose boxes did not lie on their specimen when it was read since the last call:
    /// the image was replaced.
    std::vector<std::string> TakeReplaced();

  private:
    struct Known {
        std::string image;
        std::string fingerprint;
        std::vector<profiles::PrintedBox> boxes;
        std::optional<SpecimenPrint> print;
    };

    const app::Files& files_;
    std::map<std::string, Known> known_;  // by profile name
    std::vector<std::string> replaced_;
};

}  // namespace tavrene::recognition
