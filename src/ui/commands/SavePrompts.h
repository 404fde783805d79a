#pragma once

#include <functional>

namespace tavrene::commands {

/// The questions about unsaved work that guard a command, in the order in which they are asked. Each gives
/// true when the command may go on: nothing was unsaved, it was saved, or its loss was accepted.
class SavePrompts {
  public:
    using Prompt = std::function<bool()>;

    /// Either may be empty where there is nothing of its kind to lose.
    SavePrompts(Prompt profile, Prompt form);

    /// Before a run and before the change between profiling and review.
    bool ProfileThenForm() const;

    /// Before the window closes.
    bool FormThenProfile() const;

  private:
    Prompt profile_;
    Prompt form_;
};

}  // namespace tavrene::commands
