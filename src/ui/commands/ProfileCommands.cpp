#include "ui/commands/ProfileCommands.h"

#include <optional>

#include "boxes/BoxAnalysis.h"
#include "recognition/ProfileAdvice.h"

namespace tavrene::commands {
namespace {

constexpr const char* kProfileFilter = "Tavrene Profiles (*.Tvp)|*.Tvp";
constexpr const char* kImageFilter = "Image Files (*.Tif;*.Jpg;*.Png)|*.Tif;*.Jpg;*.Png";

}  // namespace

void ProfileCommands::New() {
    ForgetNotes();
    if (!MayLeave())
        return;
    const std::optional<std::string> path =
        doors_.dialogs.AskSaveFile({state_.folders.Profiles, "New.Tvp", kProfileFilter});
    if (!path)
        return;
    const std::optional<std::string> image =
        doors_.dialogs.AskOpenFile({state_.folders.ProfileImages, "", kImageFilter});
    if (!image) {
        doors_.view.Clear();
        return;
    }
    if (doors_.store.Create(*path, *image, boxes::SizesOf(state_.settings), state_.reach))
        TellMore();
}

void ProfileCommands::Save() {
    ForgetNotes();
    if (doors_.store.Save())
        TellMore();
}

void ProfileCommands::Delete() {
    ForgetNotes();
    if (doors_.store.Delete())
        TellMore();
}

void ProfileCommands::LoadStrip() {
    doors_.store.RebuildThumbnails();
    TellMore();
}

void ProfileCommands::ThumbnailSelected(int k) {
    ForgetNotes();
    if (doors_.store.ThumbnailSelected(k))
        TellMore(profiles::HeadingOf(doors_.profile) + ".");
}

bool ProfileCommands::MayLeave() {
    return doors_.store.MayLeave();
}

void ProfileCommands::SetActive(bool active) {
    if (CanEdit())
        doors_.profile.Active = active;
}

// A command that failed has left its notes behind.
void ProfileCommands::ForgetNotes() {
    doors_.store.TakeNotes();
}

void ProfileCommands::TellMore(const std::string& heading) {
    std::string text = heading;
    const auto add = [&text](const std::string& sentence) { text += (text.empty() ? "" : " ") + sentence; };
    for (const std::string& note : doors_.store.TakeNotes())
        add(note);
    for (const std::string& advice : recognition::AdviseOn(doors_.profile))
        add(advice);
    if (text != heading)
        doors_.person.SetPanel(app::Panel::Message, text);
}

}  // namespace tavrene::commands
