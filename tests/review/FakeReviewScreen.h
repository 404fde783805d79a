#pragma once

#include <string>
#include <vector>

#include "review/ReviewScreen.h"
#include "support/Transcript.h"

namespace tavrene::test {

/// What review adds to the screen: the list of forms and the choice of profiles. All but the lines themselves
/// go into the transcript ("select: ", "choice: ").
class FakeReviewScreen final : public review::ReviewLines, public review::ProfileChoice {
  public:
    explicit FakeReviewScreen(Transcript& transcript) : transcript_(transcript) {}

    /// The lines as they stand: "form 100", with a leading "+ " where the tick is set.
    std::vector<std::string> lines;
    std::vector<std::string> offered;  ///< Names in the profile choice.

    void ShowLines(std::span<const review::ReviewLine> all) override {
        lines.clear();
        for (const review::ReviewLine& line : all)
            lines.push_back(TextOf(line));
    }
    void InsertLine(std::size_t index, const review::ReviewLine& line) override {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(index), TextOf(line));
    }
    void ChangeLine(std::size_t index, const review::ReviewLine& line) override {
        lines.at(index) = TextOf(line);
    }
    void RemoveLine(std::size_t index) override {
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(index));
    }
    void SelectLine(std::size_t index) override { transcript_.Add("select: " + lines.at(index)); }

    std::optional<std::size_t> Beside(std::optional<std::size_t> index, int step) const override {
        const auto line = index ? static_cast<std::ptrdiff_t>(*index) + step : 0;
        return line < 0 || line >= std::ssize(lines) ? std::nullopt
                                                     : std::optional(static_cast<std::size_t>(line));
    }

    void ShowProfiles(std::span<const std::string> names) override { offered = {names.begin(), names.end()}; }
    void SetChoice(std::string_view name) override { transcript_.Add("choice: " + std::string(name)); }
    void TakeAway() override { transcript_.Add("choice: none"); }

  private:
    static std::string TextOf(const review::ReviewLine& line) {
        return (line.Reviewed ? "+ " : "") + line.Name + " " + line.Confidence;
    }

    Transcript& transcript_;
};

}  // namespace tavrene::test
