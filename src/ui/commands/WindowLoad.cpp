#include "ui/commands/WindowLoad.h"

#include <exception>

namespace tavrene::commands {
namespace {

bool CanCallImageLibrary(const std::function<std::string()>& version) {
    try {
        return !version().empty();
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

AppState InitialState(const app::Settings& settings) {
    AppState state;
    state.settings = settings;
    state.folders = app::PathsUnder(settings.WorkDir);
    return state;
}

void LoadWindow(AppState& state, const LoadContext& context, CommandGate& gate) {
    if (!CanCallImageLibrary(context.imageLibraryVersion)) {
        constexpr std::string_view kText = "FreeImage is not available";
        gate.Guard([&] {
            context.log.LogProfileEvent(kText);
            context.person.ShowMessage("", kText);
        });
    }
    gate.Guard(context.loadProfiles);
    state.reach = boxes::ReachFor(boxes::SizesOf(state.settings));
}

}  // namespace tavrene::commands
