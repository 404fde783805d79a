#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "app/FileDialogs.h"

namespace tavrene::test {

/// File dialogs that answer from a script; nothing stands for Cancel. A dialog without a scripted answer
/// fails the test at once and is cancelled.
class FakeFileDialogs final : public app::FileDialogs {
  public:
    std::deque<std::optional<std::string>> answers;
    std::vector<std::string> asked;  ///< Titles.

    std::optional<std::string> AskSaveFile(const app::FileQuestion& question) override {
        return Ask(question.title);
    }
    std::optional<std::string> AskOpenFile(const app::FileQuestion& question) override {
        return Ask(question.title);
    }
    std::optional<std::string> AskFolder(const std::string& title, const std::string&) override {
        return Ask(title);
    }

  private:
    std::optional<std::string> Ask(const std::string& title) {
        asked.push_back(title);
        if (answers.empty()) {
            ADD_FAILURE() << "no answer is scripted for: " << title;
            return std::nullopt;
        }
        std::optional<std::string> answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

}  // namespace tavrene::test
