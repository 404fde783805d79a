#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "profiles/ProfileLoader.h"
#include "recognition/ProcessRun.h"
#include "support/FakeClock.h"
#include "support/FakeOperator.h"
#include "support/FakeScreen.h"
#include "support/FaultyFiles.h"
#include "support/TempFolder.h"
#include "support/TestForm.h"

namespace tavrene::test {

/// A working folder and everything that a run needs, with fakes for the screen, the operator and the clock.
class RunWorld : public ::testing::Test {
  protected:
    RunWorld() {
        settings_.FillThreshold = 8;
        settings_.WorkDir = work_.Path();
        EXPECT_TRUE(app::CreateWorkingFolders(files_, work_.Path()));
    }

    /// Loads the profiles and runs to the end; what went before is cleared from the transcript.
    void Process() {
        profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
        transcript_.Clear();
        if (run_.MayStart(profiles_))
            run_.Run(profiles_);
    }

    void AddProfile(const std::string& name, const TestForm& form) {
        WriteText(folders_.Profiles + name + ".Tvp", form.ProfileText(name));
    }

    /// A profile of `form` whose specimen image, painted blank, lies in the `ProfileImages` folder.
    std::string AddSpecimenProfile(const std::string& name, const TestForm& form, bool active = true) {
        const std::string image = folders_.ProfileImages + name + ".tif";
        form.SaveScan(image, {});
        std::string path = folders_.Profiles + name + ".Tvp";
        WriteText(path, form.ProfileText(folders_.ProfileImages + name, active));
        return path;
    }

    std::vector<std::string> In(const std::string& folder) const { return files_.List(folder, "*"); }

    /// The lines of the day's process log without their time stamps.
    std::vector<std::string> ProcessLog() const {
        return LogLines(ReadText(folders_.Log + "TavreneBoxes-Process-20240305.Log"));
    }

    /// The day's profile log as it is.
    std::string ProfileLog() const { return ReadText(folders_.Log + "TavreneBoxes-Profile-20240305.Log"); }

    static std::vector<std::string> LogLines(const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find("\r\n", start);
            lines.push_back(text.substr(start + 12, end - start - 12));
            start = end + 2;
        }
        return lines;
    }

    TempFolder work_;
    Transcript transcript_;
    FakeOperator person_{transcript_};
    FakeScreen screen_{transcript_};
    FaultyFiles files_;
    FakeClock clock_;
    app::Settings settings_;
    app::WorkingFolders folders_ = app::PathsUnder(work_.Path());
    app::ActivityLog log_{files_, clock_, person_, folders_.Log};
    recognition::ReadingOptions reading_;  // all off
    recognition::PreciseReader reader_{files_, reading_};
    recognition::ProcessRun run_{
        {files_, log_, person_, clock_, screen_, screen_, &reader_}, settings_, folders_};
    std::vector<profiles::ProfileRecord> profiles_;
};

}  // namespace tavrene::test
