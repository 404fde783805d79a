// The part of the profile session that gives profiles names.

#include "app/Counted.h"
#include "profiles/ProfileSession.h"

namespace tavrene::profiles {

std::optional<std::string> ProfileSession::AskNewName(const std::string& title, const std::string& proposed) {
    std::optional<std::string> path =
        context_.dialogs.AskSaveFile({title, context_.folders.Profiles, proposed + ".Tvp", kProfileFilter});
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

void ProfileSession::Rename() {
    const std::optional<std::string> path = AskNewName("Rename Profile", profile_.Name);
    if (!path)
        return;
    const int results = context_.resultsOf ? context_.resultsOf(profile_.Name) : 0;
    const std::string question =
        app::Counted(results, "result was", "results were") + " read with the profile " + profile_.Name +
        " and will not know it by another name: review will say that it no longer exists. "
        "Rename it all the same?";
    if (results > 0 && context_.person.AskYesNo(question, app::Answer::No) != app::Answer::Yes)
        return;
    profiles_.Rename(profile_, *path);
    OpenUnderName(*path);
    context_.person.SetPanel(app::Panel::Message, "Renamed Profile: " + profile_.Name);
}

}  // namespace tavrene::profiles
