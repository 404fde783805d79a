#include "app/Startup.h"

#include "app/WorkingFolders.h"

namespace tavrene::app {
namespace {

void ReadSettings(Settings& settings, SettingsStore& store) {
    settings.BoxMinWidth = ReadOrDefault(store, "BoxMinWidth", kDefaultBoxMinWidth);
    settings.BoxMaxWidth = ReadOrDefault(store, "BoxMaxWidth", kDefaultBoxMaxWidth);
    settings.BoxMinHeight = ReadOrDefault(store, "BoxMinHeight", kDefaultBoxMinHeight);
    settings.BoxMaxHeight = ReadOrDefault(store, "BoxMaxHeight", kDefaultBoxMaxHeight);
    settings.FillThreshold = ReadCommonNumber(store, "FillThreshold");
    const bool isFirstRun = settings.FillThreshold == 0;
    if (isFirstRun) {
        // No threshold is the mark of a first run, and a first run shows what it does.
        settings.FillThreshold = kDefaultFillThreshold;
        WriteCommonNumber(store, "FillThreshold", kDefaultFillThreshold);
        WriteCommonFlag(store, "DisplayDuringProcess", true);
    }
    settings.ProcessSingle = ReadCommonFlag(store, "ProcessSingle");
    // A store that cannot be written would not tell of it.
    settings.DisplayDuringProcess = isFirstRun || ReadCommonFlag(store, "DisplayDuringProcess");
    settings.WorkDir = ReadCommonText(store, "WorkDir");
}

}  // namespace

bool RunStartup(Settings& settings, const StartupContext& context) {
    if (!context.becomeOnlyInstance())
        return false;
    ReadSettings(settings, context.store);
    if (settings.WorkDir.empty())
        context.showSettingsDialog(settings);
    // One more chance only: an operator without a usable folder still gets the window.
    if (!CreateWorkingFolders(context.files, settings.WorkDir))
        context.showSettingsDialog(settings);
    RemoveLeftovers(context.files, settings.WorkDir);
    context.showMainWindow();
    return true;
}

}  // namespace tavrene::app
