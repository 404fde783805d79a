#include "app/Startup.h"

#include "app/WorkingFolders.h"

namespace tavrene::app {
namespace {

// A default is written back at once, so that after the first run the store holds every number explicitly.
std::int16_t ReadOrDefault(SettingsStore& store, std::string_view name, std::int16_t fallback) {
    const std::int16_t stored = ReadCommonNumber(store, name);
    if (stored != 0)
        return stored;
    WriteCommonNumber(store, name, fallback);
    return fallback;
}

void ReadSettings(Settings& settings, SettingsStore& store) {
    settings.BoxMinWidth = ReadOrDefault(store, "BoxMinWidth", kDefaultBoxMinWidth);
    settings.BoxMaxWidth = ReadOrDefault(store, "BoxMaxWidth", kDefaultBoxMaxWidth);
    settings.BoxMinHeight = ReadOrDefault(store, "BoxMinHeight", kDefaultBoxMinHeight);
    settings.BoxMaxHeight = ReadOrDefault(store, "BoxMaxHeight", kDefaultBoxMaxHeight);
    settings.FillThreshold = ReadCommonNumber(store, "FillThreshold");
    if (settings.FillThreshold == 0) {
        // No threshold is the mark of a first run, and a first run shows what it does.
        settings.FillThreshold = kDefaultFillThreshold;
        WriteCommonNumber(store, "FillThreshold", kDefaultFillThreshold);
        WriteCommonFlag(store, "DisplayDuringProcess", true);
    }
    settings.ProcessSingle = ReadCommonFlag(store, "ProcessSingle");
    settings.DisplayDuringProcess = ReadCommonFlag(store, "DisplayDuringProcess");
    settings.WorkDir = ReadCommonText(store, "WorkDir");
}

}  // namespace

bool RunStartup(Settings& settings, const StartupDoors& doors) {
    if (!doors.becomeOnlyInstance())
        return false;
    ReadSettings(settings, doors.store);
    if (settings.WorkDir.empty())
        doors.showSettingsDialog(settings);
    // One more chance only: an operator without a usable folder still gets the window.
    if (!CreateWorkingFolders(doors.files, settings.WorkDir))
        doors.showSettingsDialog(settings);
    doors.showMainWindow();
    return true;
}

}  // namespace tavrene::app
