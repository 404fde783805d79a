#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "app/Files.h"
#include "recognition/precise/SpecimenPrint.h"

namespace tavrene::recognition {

/// Names of the profiles whose specimen is of no use: it is missing or unreadable, or the boxes do not lie on
/// it, since the image was replaced.
struct SpecimenFaults {
    std::set<std::string> unreadable;
    std::set<std::string> replaced;
};

/// The prints of the profiles' specimens, each read when it is first asked for and again only when its image
/// or its profile has changed. Several threads may ask at the same time.
class SpecimenPrints {
  public:
    /// `files` must outlive this.
    explicit SpecimenPrints(const app::Files& files) : files_(files) {}

    /// Null when the image is not there or cannot be read. The answer holds as long as this object,
    /// but not beyond a trial.
    const SpecimenPrint* Of(const profiles::ProfileRecord& profile);

    /// What was wrong with those that were asked for since the last call.
    SpecimenFaults TakeFaults();

    /// Forgets what was wrong, and the prints that others have taken the place of. Not while anybody reads.
    void EndTrial();

  private:
    struct Known {
        std::string image;
        std::string fingerprint;
        std::vector<profiles::PrintedBox> boxes;
        int dpiX = 0;
        int dpiY = 0;
        bool isTaken = false;
        std::shared_ptr<const SpecimenPrint> print;
    };

    void Take(const profiles::ProfileRecord& profile, Known& known);

    const app::Files& files_;
    std::mutex mutex_;
    std::map<std::pair<std::string, std::string>, Known> known_;  // by profile name and file
    std::vector<std::shared_ptr<const SpecimenPrint>> former_;    // for who still reads by them
    SpecimenFaults faults_;
};

}  // namespace tavrene::recognition
