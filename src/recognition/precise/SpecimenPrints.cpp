#include "recognition/precise/SpecimenPrints.h"

#include <utility>
#include <variant>

namespace tavrene::recognition {

const SpecimenPrint* SpecimenPrints::Of(const profiles::ProfileRecord& profile) {
    std::string fingerprint = files_.Fingerprint(profile.Image);
    const std::scoped_lock lock(mutex_);
    Known& known = known_[{profile.Name, profile.FileName}];
    if (!known.isTaken || known.image != profile.Image || known.fingerprint != fingerprint ||
        known.boxes != profile.Boxes || known.dpiX != profile.DPI_X || known.dpiY != profile.DPI_Y) {
        if (known.print)
            former_.push_back(std::move(known.print));
        known = {profile.Image, std::move(fingerprint), profile.Boxes, profile.DPI_X, profile.DPI_Y, false,
                 nullptr};
        Take(profile, known);
    }
    if (!known.print)
        faults_.unreadable.insert(profile.Name);
    else if (!known.print->belongs)
        faults_.replaced.insert(profile.Name);
    return known.print.get();
}

// A file that cannot be read, since its share is away say, is tried again when it is next asked for; one that
// is no page stays as it is until somebody changes it.
void SpecimenPrints::Take(const profiles::ProfileRecord& profile, Known& known) {
    app::Bytes content;
    try {
        content = files_.Read(profile.Image);
    } catch (const app::FileError&) {
        return;
    }
    const auto read = imaging::PageOf(content, imaging::SpecimenFormat(profile.Image));
    if (const auto* const page = std::get_if<imaging::Page>(&read))
        known.print = std::make_shared<const SpecimenPrint>(TakePrint(*page, profile));
    known.isTaken = true;
}

SpecimenFaults SpecimenPrints::TakeFaults() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(faults_, {});
}

void SpecimenPrints::EndTrial() {
    const std::scoped_lock lock(mutex_);
    faults_ = {};
    former_.clear();
}

}  // namespace tavrene::recognition
