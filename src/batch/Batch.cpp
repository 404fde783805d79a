#include "batch/Batch.h"

#include <ostream>

#include "app/Reason.h"
#include "app/Startup.h"
#include "batch/Console.h"
#include "batch/FolderWork.h"
#include "batch/IniStore.h"
#include "recognition/ReadingFlags.h"

namespace tavrene::batch {
namespace {

// As the window does it that shares the settings.
recognition::ReadingOptions WindowsWay(const app::SettingsStore& store) {
    return {app::ReadWindowFlag(store, recognition::kPreciseAlignment, false),
            app::ReadWindowFlag(store, recognition::kSecondOpinion, true)};
}

// A folder that is no working folder yet was named by mistake.
std::string WhyUnusable(const app::Files& files, const Options& options, const std::string& folder) {
    if (!files.FolderExists(folder + "/Profiles"))
        return folder + " is no working folder: it has no folder Profiles";
    if (!options.settings.empty() && !files.FileExists(options.settings))
        return "there is no file " + options.settings;
    return {};
}

Exit RunInFolder(const Options& options, const Surroundings& surroundings) {
    app::DiskFiles files;
    const std::string& folder = options.folder;
    if (const std::string why = WhyUnusable(files, options, folder); !why.empty()) {
        ConsoleOperator(surroundings.messages).ShowMessage("", why);
        return Exit::Failed;
    }
    IniStore store(files, options.settings.empty() ? UsualSettingsFile() : options.settings);
    store.Hold("WorkDir", folder);
    Exit exit = Exit::Failed;
    app::Settings settings;
    bool isUsable = true;
    app::RunStartup(settings,
                    {store, files, [] { return true; }, [&isUsable](app::Settings&) { isUsable = false; },
                     [&] {
                         if (!isUsable)
                             return;
                         exit = FolderWork(options, surroundings, files, settings, WindowsWay(store)).Do();
                     }});
    if (!isUsable)
        ConsoleOperator(surroundings.messages)
            .ShowMessage("", "the folders that are missing in " + folder + " cannot be made");
    return exit;
}

}  // namespace

Exit RunBatch(const Options& options, const Surroundings& surroundings) {
    try {
        return RunInFolder(options, surroundings);
    } catch (const std::exception& error) {
        ConsoleOperator(surroundings.messages).ShowMessage("", app::ReasonOf(error));
        return Exit::Failed;
    }
}

}  // namespace tavrene::batch
