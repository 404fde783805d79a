#pragma once

#include <functional>
#include <string>

#include "FakeReviewScreen.h"
#include "support/RunWorld.h"
#include "ui/commands/CommandGate.h"
#include "ui/commands/ReviewCommands.h"

namespace tavrene::test {

using Names = std::vector<std::string>;

/// A working folder with the profile "Form" (boxes Q1 to Q4) and review on it. Commands go through the gate,
/// as the window's do.
class ReviewWorld : public RunWorld {
  protected:
    ReviewWorld() {
        AddProfile("Form", form_);
        state_.settings = settings_;
        state_.folders = folders_;
    }

    void AddScan(const std::string& name, const TestForm::Filling& filling = {}) {
        form_.SaveScan(folders_.ProcessIn + name, filling);
    }

    void LoadProfiles() {
        state_.profiles = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
    }

    /// Reads all waiting scans and enters review.
    void ProcessAndReview() {
        Process();
        EnterReview();
    }

    void EnterReview() {
        LoadProfiles();
        Toggle();
    }

    void Toggle() {
        Do([this] { review_.Toggle({nullptr, [this] { return review_.MayLeave(); }}); });
    }

    /// One command of the person: the transcript holds what came of it and nothing else.
    void Do(const std::function<void()>& command) {
        transcript_.Clear();
        gate_.Guard(command);
    }
    void Open(std::size_t line) {
        Do([this, line] { review_.Open(line); });
    }
    void Flip(int row) {
        Do([this, row] { review_.FlipBox(row); });
    }
    void Okay() {
        Do([this] { review_.Okay(); });
    }
    void Accept() {
        Do([this] { review_.Accept(); });
    }
    void Reject() {
        Do([this] { review_.Reject(); });
    }
    void Choose(const std::string& profile) {
        Do([this, &profile] { review_.ChooseProfile(profile); });
    }

    std::string Result(const std::string& name) const { return ReadText(folders_.ProcessOut + name); }

    /// Replaces a text in a result document.
    void Edit(const std::string& name, const std::string& old, const std::string& replacement) {
        std::string text = Result(name);
        const std::size_t at = text.find(old);
        ASSERT_NE(at, std::string::npos) << old;
        WriteText(folders_.ProcessOut + name, text.replace(at, old.size(), replacement));
    }

    Names Messages() const { return transcript_.LinesOf("message: [] "); }
    std::string LastLogLine() const {
        const Names lines = ProcessLog();
        return lines.empty() ? std::string() : lines.back();
    }

    TestForm form_ = TestForm::Grid(2, 2);
    commands::AppState state_;
    FakeReviewScreen list_{transcript_};
    review::ReviewDoors doors_{files_, log_, person_, screen_, screen_, list_, screen_, list_, list_, list_};
    commands::CommandGate gate_{person_, state_.processing};
    commands::ReviewCommands review_{state_, doors_, [] {}};
};

}  // namespace tavrene::test
