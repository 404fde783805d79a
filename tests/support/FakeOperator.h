#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/Operator.h"
#include "support/Transcript.h"

namespace tavrene::test {

/// Writes every message, notice, panel text and progress change into the transcript ("message: ", "report: ",
/// "ask: ", "notice: ", "panel File: ", "range: ", "progress: ", "events") and answers questions from a
/// script. A question without a scripted answer fails the test at once and is answered Cancel.
class FakeOperator final : public app::Operator {
  public:
    explicit FakeOperator(Transcript& transcript) : transcript_(transcript) {}

    std::deque<app::Answer> answers;
    std::function<void()> onPendingEvents;
    app::Answer lastPreset = app::Answer::Yes;  ///< What Enter would have answered to the last question.

    std::string PanelText(app::Panel panel) const {
        const auto found = panels_.find(panel);
        return found == panels_.end() ? std::string() : found->second;
    }

    void ShowMessage(std::string_view title, std::string_view text) override {
        transcript_.Add("message: [" + std::string(title) + "] " + std::string(text));
    }
    void ReportFile(std::string_view fileName, std::string_view text) override {
        transcript_.Add("report: [" + std::string(fileName) + "] " + std::string(text));
    }
    app::Answer AskYesNo(std::string_view text, app::Answer preset) override { return Ask(text, preset); }
    app::Answer AskYesNoCancel(std::string_view text, app::Answer preset) override {
        return Ask(text, preset);
    }
    void ShowNotices(std::span<const app::Notice> shown) override {
        for (const app::Notice& notice : shown)
            transcript_.Add("notice: " + notice.text);
    }
    void ShowStandingNotices(std::span<const app::Notice> shown) override { ShowNotices(shown); }
    void SetPanel(app::Panel panel, std::string_view text) override {
        static const std::map<app::Panel, std::string> names = {{app::Panel::File, "File"},
                                                                {app::Panel::Message, "Message"},
                                                                {app::Panel::ElapsedTime, "ElapsedTime"},
                                                                {app::Panel::Progress, "Progress"}};
        panels_[panel] = text;
        transcript_.Add("panel " + names.at(panel) + ": " + std::string(text));
    }
    void SetProgressRange(int last) override { transcript_.Add("range: " + std::to_string(last)); }
    void SetProgress(int value) override { transcript_.Add("progress: " + std::to_string(value)); }
    void RunPendingEvents() override {
        transcript_.Add("events");
        if (onPendingEvents)
            onPendingEvents();
    }

  private:
    app::Answer Ask(std::string_view text, app::Answer preset) {
        lastPreset = preset;
        transcript_.Add("ask: " + std::string(text));
        if (answers.empty()) {
            ADD_FAILURE() << "no answer is scripted for: " << text;
            return app::Answer::Cancel;
        }
        const app::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    Transcript& transcript_;
    std::map<app::Panel, std::string> panels_;
};

}  // namespace tavrene::test
