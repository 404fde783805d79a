#include "review/DoubtFinder.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <variant>

#include "profiles/BoxGroups.h"
#include "review/FormReading.h"

namespace tavrene::review {

using profiles::ProfileRecord;

DoubtFinder::DoubtFinder(app::Files& files, const app::Settings& settings, const app::WorkingFolders& folders,
                         const std::vector<ProfileRecord>& profiles, recognition::PreciseReader* precise)
    : files_(files),
      settings_(settings),
      folders_(folders),
      profiles_(profiles),
      precise_(precise),
      cache_(files, folders.Temp + "doubts.txt") {}

void DoubtFinder::Begin() {
    cache_.Save();
    cache_.Load();
    rules_.clear();
    way_ = WayOfReading();
}

const ProfileRecord* DoubtFinder::ProfileOf(const FormOnDisk& form) const {
    const auto found = std::ranges::find(profiles_, form.Profile, &ProfileRecord::Name);
    return found == profiles_.end() ? nullptr : &*found;
}

const std::string& DoubtFinder::RulesFor(const ProfileRecord& profile) {
    std::string& rules = rules_[profile.Name];
    if (rules.empty()) {
        const std::string path = folders_.Profiles + profile.FileName;
        rules = files_.Fingerprint(path) + " " + files_.Fingerprint(profiles::BoxGroupsPath(path)) + " " +
                files_.Fingerprint(profile.Image);
    }
    return rules;
}

std::string DoubtFinder::StampOf(const FormOnDisk& form) {
    const ProfileRecord* const profile = ProfileOf(form);
    return profile == nullptr ? std::string()
                              : form.Fingerprint + " " + files_.Fingerprint(form.Image) + " " +
                                    WayOfReading() + " " + RulesFor(*profile);
}

std::string DoubtFinder::WayOfReading() const {
    const char* const way = precise_ == nullptr              ? "n"
                            : precise_->Reads()              ? "p"
                            : precise_->GivesSecondOpinion() ? "d"
                                                             : "n";
    return std::to_string(settings_.FillThreshold) + way;
}

bool DoubtFinder::HaveRulesChanged() {
    const std::string now = WayOfReading();
    return std::exchange(way_, now) != now;
}

const FormDoubts* DoubtFinder::Known(const FormOnDisk& form) {
    const std::string stamp = StampOf(form);
    return stamp.empty() ? nullptr : cache_.Find(form.Document, stamp);
}

const FormDoubts* DoubtFinder::Find(const FormOnDisk& form) {
    const std::string stamp = StampOf(form);
    const std::optional<LookedAt> found = TryRead(form, MeasureForm);
    if (!found)
        return nullptr;
    cache_.Put(form.Document, stamp, DoubtsOf(found->form));
    return cache_.Find(form.Document, stamp);
}

void DoubtFinder::Set(const FormOnDisk& form, FormDoubts doubts) {
    if (const std::string stamp = StampOf(form); !stamp.empty())
        cache_.Put(form.Document, stamp, std::move(doubts));
}

void DoubtFinder::KeepBesideOthers() {
    cache_.AddToFile(
        [this](const std::string& form) { return files_.FileExists(folders_.ProcessOut + form); });
}

std::optional<LookedAt> DoubtFinder::LookAt(const FormOnDisk& form) {
    return TryRead(form, PlaceBoxes);
}

std::optional<LookedAt> DoubtFinder::TryRead(const FormOnDisk& form, Measuring& measure) {
    const ProfileRecord* const profile = ProfileOf(form);
    if (profile == nullptr)
        return std::nullopt;
    try {
        return Read(form, *profile, measure);
    } catch (const std::exception&) {
        return std::nullopt;  // opening the form tells what is wrong with it
    }
}

std::optional<LookedAt> DoubtFinder::Read(const FormOnDisk& form, const ProfileRecord& profile,
                                          Measuring& measure) {
    auto read = imaging::ReadPage(files_, form.Image);
    auto* const page = std::get_if<imaging::Page>(&read);
    if (page == nullptr)
        return std::nullopt;
    LookedAt found{{}, std::move(*page)};
    OpenForm& open = found.form;
    open.Name = app::BaseName(form.Document);
    open.Document = form.Document;
    open.Fingerprint = form.Fingerprint;
    open.Result = recognition::ResultDocument::Load(files_, folders_.ProcessOut + form.Document);
    TakeDocument(
        open, profile,
        profiles::GroupsOrNone(files_, folders_.Profiles + profile.FileName, profiles::NamesOf(profile)));
    FindLostShifts(open, found.page, settings_.FillThreshold, precise_);
    measure(open, &found.page, settings_.FillThreshold, precise_);
    return found;
}

}  // namespace tavrene::review
