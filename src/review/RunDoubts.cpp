#include "review/RunDoubts.h"

#include <exception>

#include "profiles/BoxGroups.h"
#include "recognition/ResultDocument.h"
#include "review/FormReading.h"

namespace tavrene::review {

recognition::FormLook RunDoubts::Look() {
    return [this](const std::string& image, const recognition::FormReading& reading,
                  const profiles::ProfileRecord& profile) -> std::function<void()> {
        try {
            return [this, image, name = profile.Name, doubts = DoubtsAbout(reading, profile)] {
                Take(image, name, doubts);
            };
        } catch (const std::exception&) {
            return {};  // review counts them
        }
    };
}

FormDoubts RunDoubts::DoubtsAbout(const recognition::FormReading& reading,
                                  const profiles::ProfileRecord& profile) {
    const auto groups =
        profiles::GroupsOrNone(files_, folders_.Profiles + profile.FileName, profiles::NamesOf(profile));
    return DoubtsOf(reading, {profile, groups}, settings_.FillThreshold, precise_);
}

void RunDoubts::Take(const std::string& image, const std::string& profile, const FormDoubts& doubts) {
    const std::string path = recognition::ResultPath(folders_.ProcessOut, image);
    if (finder_)
        finder_->Set({app::FileName(path), files_.Fingerprint(path), folders_.ProcessOut + image, profile},
                     doubts);
}

void RunDoubts::End() {
    if (finder_)
        finder_->KeepBesideOthers();
    finder_.reset();
}

}  // namespace tavrene::review
