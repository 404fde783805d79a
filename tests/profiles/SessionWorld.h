#pragma once

#include "FakeStrip.h"
#include "imaging/TiffPages.h"
#include "profiles/ProfileSession.h"
#include "support/FakeFileDialogs.h"
#include "support/RunWorld.h"

namespace tavrene::test {

/// A profile session over a working folder, with scripted answers of the person and of the file dialogs.
class SessionWorld : public RunWorld {
  protected:
    bool Create(const std::string& name, const std::string& image) {
        constexpr boxes::BoxSizes sizes{16, 38, 16, 34};
        dialogs_.answers = {folders_.Profiles + name, image};
        session_.New(sizes, boxes::ReachFor(sizes));
        return Profile().Image == image;
    }

    void AddProfiles(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            AddSpecimenProfile(name, form_);
        session_.FillStrip();
        transcript_.Clear();
    }

    // As from the strip, after the prompt. False when another profile, or none, is open afterwards.
    bool Pick(int k) {
        const std::string path = session_.PathOf(k);
        if (!session_.MayLeave())
            return false;
        session_.Open(path);
        return session_.IsOpen() && Profile().Path == path;
    }

    const profiles::OpenProfile& Profile() const { return session_.Profile(); }

    // Opens profile k and changes one box.
    void OpenAndEdit(int k) {
        EXPECT_TRUE(Pick(k));
        session_.Editor().RowRenamed(1, "edited");
        transcript_.Clear();
    }

    // The lines of the profile log but for those about loading.
    std::vector<std::string> Logged() const {
        std::vector<std::string> lines = LogLines(ProfileLog());
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("Loaded Profile"); });
        return lines;
    }

    std::string PathOf(const std::string& name) const { return folders_.Profiles + name + ".Tvp"; }
    std::string StripFile() const { return folders_.Profiles + "Tavrene_Profiles.tif"; }

    std::vector<imaging::TiffPage> StripPages() const {
        return imaging::DecodeTiffPages(files_.Read(StripFile()));
    }

    TestForm form_ = TestForm::Grid(3, 2);
    FakeStrip strip_;
    FakeFileDialogs dialogs_;
    std::string resultsIn_;  ///< The folder whose results know every profile.
    profiles::ProfileContext context_{
        files_,
        person_,
        dialogs_,
        log_,
        clock_,
        folders_,
        [](const profiles::OpenProfile&) { return std::vector<app::Notice>(); },
        {},
        [this](const auto& folder, const auto&) { return folder == resultsIn_; }};
    profiles::ProfileSession session_{context_, profiles_, {screen_, screen_, strip_}};
};

}  // namespace tavrene::test
