#pragma once

#include <functional>
#include <string>

#include "FakeReviewScreen.h"
#include "review/ReviewSession.h"
#include "support/Faults.h"
#include "support/RunWorld.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::test {

using commands::Command;
using Names = std::vector<std::string>;

/// A working folder with the profile "Form" (boxes Q1 to Q4) and review on it. Commands go through the gate,
/// as the window's do.
class ReviewWorld : public RunWorld {
  protected:
    using Session = review::ReviewSession;

    ReviewWorld() { AddProfile("Form", form_); }

    void AddScan(const std::string& name, const TestForm::Filling& filling = {}) {
        form_.SaveScan(folders_.ProcessIn + name, filling);
    }

    void LoadProfiles() {
        profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
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
        Take(Command::Review, [this] { review_.IsOn() ? review_.End() : review_.Begin(); });
    }

    /// One command of the person: the transcript holds what came of it and nothing else.
    void Take(commands::Command command, const std::function<void()>& event) {
        transcript_.Clear();
        gate_.Take(command, event);
    }

    /// The same for what is no command.
    void Do(const std::function<void()>& command) {
        transcript_.Clear();
        gate_.Guard(command);
    }
    /// A command that is one call of the session.
    template <typename Act, typename... Values>
    void Call(Command command, Act act, const Values&... values) {
        Take(command, [&] { std::invoke(act, review_, values...); });
    }
    void Open(std::size_t line) { Call(Command::PickForm, &Session::Open, line); }
    void Flip(int row) { Call(Command::PickMark, &Session::FlipBox, row); }
    void Okay() { Call(Command::Okay, &Session::Save); }
    void Accept() { Call(Command::AcceptForm, &Session::Accept); }
    void Reject() { Call(Command::RejectForm, &Session::Reject); }
    void Choose(const std::string& profile) { Call(Command::PickProfile, &Session::ReadAgainst, profile); }

    /// The form below (1) or above (-1), while that line is selected.
    void OpenNeighbour(std::optional<std::size_t> selected, int step) {
        Take(Command::NextForm, [this, selected, step] {
            if (const auto line = review_.Neighbour(selected, step))
                review_.Open(*line);
        });
    }
    std::string Result(const std::string& name) const { return ReadText(folders_.ProcessOut + name); }

    bool ResultHas(const std::string& name, const std::string& piece) const {
        return Has(Result(name), piece);
    }

    /// Refuses one file operation on paths that end so.
    void Refuse(const std::string& operation, const std::string& ending) {
        files_.refuse = [operation, ending](const std::string& asked, const std::string& path) {
            return asked == operation && path.ends_with(ending);
        };
    }

    Names Messages() const { return transcript_.LinesOf("message: [] "); }
    std::string LastLogLine() const {
        const Names lines = ProcessLog();
        return lines.empty() ? std::string() : lines.back();
    }

    TestForm form_ = TestForm::Grid(2, 2);
    FakeReviewScreen list_{transcript_};
    review::ReviewContext context_{files_, log_, person_, screen_, screen_, {list_, list_}, &reader_};
    review::ReviewSession review_{context_, settings_, folders_, profiles_};
    commands::CommandGate gate_{
        {person_, log_,
         [this] { return commands::ModeOf({.isInReview = review_.IsOn(), .hasForm = review_.HasForm()}); },
         [] { return true; }, [this] { return review_.MayLeave(); }}};
};

/// Three scans of the profile wait.
class ThreeForms : public ReviewWorld {
  protected:
    ThreeForms() {
        AddScan("a.tif", {.checked = {1}});
        AddScan("b.tif", {.checked = {2, 3}, .dx = 2, .dy = -1});
        AddScan("c.tif");
    }
};

}  // namespace tavrene::test
