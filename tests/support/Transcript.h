#pragma once

#include <string>
#include <vector>

namespace tavrene::test {

/// The ordered record that all fakes write into, so that a test can demand the exact sequence of what the
/// outside saw.
class Transcript {
  public:
    void Add(std::string line) { lines_.push_back(std::move(line)); }
    void Clear() { lines_.clear(); }
    const std::vector<std::string>& Lines() const { return lines_; }

    /// All lines on one, parted by " | ".
    std::string Joined() const {
        std::string text;
        for (const std::string& line : lines_)
            text += (text.empty() ? "" : " | ") + line;
        return text;
    }

    /// The lines that begin with `prefix`, in order, without it.
    std::vector<std::string> LinesOf(const std::string& prefix) const {
        std::vector<std::string> found;
        for (const std::string& line : lines_) {
            if (line.starts_with(prefix))
                found.push_back(line.substr(prefix.size()));
        }
        return found;
    }

  private:
    std::vector<std::string> lines_;
};

}  // namespace tavrene::test
