// The part of the profile session that gives profiles names.

#include "profiles/ProfileSession.h"

namespace tavrene::profiles {

std::optional<std::string> ProfileSession::AskNewName(const std::string& title, const std::string& proposed) {
    std::optional<std::string> path = context_.dialogs.AskSaveFile(
        {title, context_.folders.Profiles, proposed + ".Tvp", kProfileFilter, true});
    // It may have come in that moment.
    if (path && context_.files.FileExists(*path)) {
        context_.person.ShowMessage("", "There is a profile " + *path + " already. Choose another name.");
        return std::nullopt;
    }
    return path;
}

void ProfileSession::OpenUnderName(const std::string& path) {
    RebuildStrip();
    Open(path);
    TellIfOutside();
}

void ProfileSession::Duplicate() {
    const std::optional<std::string> path = AskNewName("Duplicate Profile", profile_.Name + " copy");
    if (!path)
        return;
    const std::string original = profile_.Name;
    profiles_.Duplicate(profile_, *path);
    OpenUnderName(*path);
    Note("This copy is not active, for it would match the same forms as " + original +
         ". Change its boxes or its image before you switch it on");
}

// Of accepted forms only the tables ask for a profile, and only for groups of its own. Those forms may be the
// work of years, which is not read through without need.
bool ProfileSession::MayLoseName() {
    const auto isKnownIn = [this](const std::string& folder) {
        return context_.hasResults && context_.hasResults(folder, profile_.Name);
    };
    const auto mayLose = [this](const std::string& forms, const std::string& loss) {
        return context_.person.AskYesNo(forms + " read with the profile " + profile_.Name +
                                            " and will not know it by another name: " + loss +
                                            ". Rename it all the same?",
                                        app::Answer::No) == app::Answer::Yes;
    };
    if (isKnownIn(context_.folders.ProcessOut))
        return mayLose("Results were", "review will say that it no longer exists");
    return !profile_.SavedGroups || !isKnownIn(context_.folders.ProcessFinal) ||
           mayLose("Accepted forms were", "their tables will be without its groups");
}

void ProfileSession::Rename() {
    const std::optional<std::string> path = AskNewName("Rename Profile", profile_.Name);
    if (!path || !MayLoseName())
        return;
    profiles_.Rename(profile_, *path);
    OpenUnderName(*path);
    context_.person.SetPanel(app::Panel::Message, "Renamed Profile: " + profile_.Name);
}

}  // namespace tavrene::profiles
