#include "ui/commands/SettingsCommand.h"

#include "boxes/BoxAnalysis.h"

namespace tavrene::commands {

void ShowSettings(app::Settings& settings, app::Operator& person,
                  const std::function<void(app::Settings&)>& showDialog) {
    const app::Settings before = settings;
    showDialog(settings);
    const bool otherSizes = boxes::SizesOf(before) != boxes::SizesOf(settings);
    const bool otherFolder = before.WorkDir != settings.WorkDir;
    if (otherSizes && otherFolder)
        person.SetPanel(app::Panel::Message,
                        "The box sizes take full effect, and the working folder is used, at the next start.");
    else if (otherSizes)
        person.SetPanel(app::Panel::Message, "The new box sizes take full effect at the next start.");
    else if (otherFolder)
        person.SetPanel(app::Panel::Message, "The new working folder is used at the next start.");
}

}  // namespace tavrene::commands
