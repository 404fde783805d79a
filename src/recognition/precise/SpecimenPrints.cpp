#include "recognition/precise/SpecimenPrints.h"

#include <utility>
#include <variant>

namespace tavrene::recognition {

const SpecimenPrint* SpecimenPrints::Of(const profiles::ProfileRecord& profile) {
    std::string fingerprint = files_.Fingerprint(profile.Image);
    const std::scoped_lock lock(mutex_);
    Known& known = known_[profile.Name];
    if (known.image != profile.Image || known.fingerprint != fingerprint || known.boxes != profile.Boxes) {
        if (known.print)
            former_.push_back(std::move(*known.print));
        known = {profile.Image, std::move(fingerprint), profile.Boxes, std::nullopt};
        const auto read = imaging::ReadSpecimen(files_, profile.Image);
        if (const auto* const page = std::get_if<imaging::Page>(&read))
            known.print = TakePrint(*page, profile);
    }
    if (!known.print)
        faults_.unreadable.insert(profile.Name);
    else if (!known.print->belongs)
        faults_.replaced.insert(profile.Name);
    return known.print ? &*known.print : nullptr;
}

SpecimenFaults SpecimenPrints::TakeFaults() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(faults_, {});
}

}  // namespace tavrene::recognition
