#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/SettingsStore.h"
#include "recognition/precise/PreciseReader.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::commands {

/// The values of what the window remembers about itself.
inline constexpr std::string_view kPreciseAlignment = "PreciseAlignment";
inline constexpr std::string_view kSecondOpinion = "SecondOpinion";

/// The commands `PreciseAlignment`, `SecondOpinion` and `ReadAgain`, and the notice by which a run tells
/// where precise alignment would read otherwise.
class ReadingCommands {
  public:
    struct Context {
        app::SettingsStore& store;
        app::Files& files;
        app::ActivityLog& log;
        app::Operator& person;
        recognition::PreciseReader& reader;
        CommandGate& gate;
    };

    /// Takes the two toggles from the store. The references must outlive the object.
    ReadingCommands(AppState& state, const Context& context);

    /// What was told of the run before is over.
    void RunBegins();

    /// Tells what the second opinion on a run has come to; forms that it alone recognises are offered to
    /// `ReadAgain` until the next run.
    void RunEnded(const recognition::OpinionTally& opinions);

  private:
    void Switch(bool& option, std::string_view name);
    void ReadAgain();

    AppState& state_;
    Context context_;
    std::vector<std::string> unread_;  ///< Forms of the last run that only precise alignment recognises.
};

}  // namespace tavrene::commands
