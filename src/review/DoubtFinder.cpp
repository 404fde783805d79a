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
    if (stamp.empty())
        return nullptr;
    try {
        if (std::optional<FormDoubts> found = Read(form, *ProfileOf(form)))
            cache_.Put(form.Document, stamp, *std::move(found));
    } catch (const std::exception&) {
        return nullptr;  // opening the form tells what is wrong with it
    }
    return cache_.Find(form.Document, stamp);
}

std::optional<FormDoubts> DoubtFinder::Read(const FormOnDisk& form, const ProfileRecord& profile) {
    const auto read = imaging::ReadPage(files_, form.Image);
    const auto* const page = std::get_if<imaging::Page>(&read);
    if (page == nullptr)
        return std::nullopt;
    OpenForm open;
    open.Result = recognition::ResultDocument::Load(files_, folders_.ProcessOut + form.Document);
    TakeDocument(
        open, profile,
        profiles::GroupsOrNone(files_, folders_.Profiles + profile.FileName, profiles::NamesOf(profile)));
    FindLostShifts(open, *page, settings_.FillThreshold, precise_);
    MeasureForm(open, page, settings_.FillThreshold, precise_);
    FormDoubts doubts;
    for (std::size_t k = 0; k < open.Boxes.size(); ++k)
        if (const auto& reason = open.Boxes[k].doubt)
            doubts.push_back({static_cast<int>(k) + 1, *reason});
    return doubts;
}

}  // namespace tavrene::review
