#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "app/SettingsStore.h"
#include "recognition/precise/PreciseReader.h"
#include "recognition/precise/ReadAgain.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::commands {

/// How many forms a run reads side by side.
int JobsOf(const recognition::ReadingOptions& reading);

/// The commands `PreciseAlignment`, `SecondOpinion`, `UseAllCores` and `ReadAgain`, and the notice by which a
/// run tells where precise alignment would read otherwise.
class ReadingCommands {
  public:
    struct Context {
        app::SettingsStore& store;
        app::Files& files;
        app::ActivityLog& log;
        app::Operator& person;
        recognition::PreciseReader& reader;
        CommandGate& gate;
        std::function<void()> closeForm;  ///< Takes the open form from the screen.
        /// Is told of forms of the last run that have another result now.
        std::function<void(std::span<const recognition::FileReport> forms)> wereRead;
        /// Calls long work while the person can do nothing but stop it; it is handed what tells whether to
        /// go on.
        std::function<void(const std::function<void(const std::function<bool()>& goesOn)>& work)> undisturbed;
    };

    /// Takes the three toggles from the store. The references must outlive the object.
    ReadingCommands(AppState& state, const Context& context);

    /// What was told of the run before is over.
    void RunBegins();

    /// Tells what the second opinion on a run has come to; forms that it alone recognises, and those of which
    /// it reads boxes otherwise, are offered to `ReadAgain` as long as nobody has touched their results,
    /// until the next run begins.
    void RunEnded(const recognition::OpinionTally& opinions);

  private:
    void Switch(bool& option, std::string_view name);
    void ReadAgain();
    void Tell(app::Notice notice);

    AppState& state_;
    Context context_;
    std::vector<recognition::FormToRead> forms_;  ///< Those that are offered.
};

}  // namespace tavrene::commands
