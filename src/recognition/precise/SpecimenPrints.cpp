#include "recognition/precise/SpecimenPrints.h"

#include <utility>
#include <variant>

namespace tavrene::recognition {

const SpecimenPrint* SpecimenPrints::Of(const profiles::ProfileRecord& profile) {
    std::string fingerprint = files_.Fingerprint(profile.Image);
    const std::scoped_lock lock(mutex_);
    Known& known = known_[{profile.Name, profile.FileName}];
    if (known.image != profile.Image || known.fingerprint != fingerprint || known.boxes != profile.Boxes ||
        known.dpiX != profile.DPI_X || known.dpiY != profile.DPI_Y) {
        if (known.print)
            former_.push_back(std::move(known.print));
        known = {profile.Image, std::move(fingerprint), profile.Boxes, profile.DPI_X, profile.DPI_Y, nullptr};
        const auto read = imaging::ReadSpecimen(files_, profile.Image);
        if (const auto* const page = std::get_if<imaging::Page>(&read))
            known.print = std::make_shared<const SpecimenPrint>(TakePrint(*page, profile));
    }
    if (!known.print)
        faults_.unreadable.insert(profile.Name);
    else if (!known.print->belongs)
        faults_.replaced.insert(profile.Name);
    return known.print.get();
}

SpecimenFaults SpecimenPrints::TakeFaults() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(faults_, {});
}

}  // namespace tavrene::recognition
