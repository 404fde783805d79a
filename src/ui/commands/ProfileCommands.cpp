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
        context_.dialogs.AskSaveFile({"New Profile", state_.folders.Profiles, "New.Tvp", kProfileFilter});
    if (!path)
        return;
    const std::optional<std::string> image = context_.dialogs.AskOpenFile(
        {"Image of the Blank Form", state_.folders.ProfileImages, "", kImageFilter});
    if (!image) {
        context_.page.Clear();
        return;
    }
    if (context_.store.Create(*path, *image, boxes::SizesOf(state_.settings), state_.reach))
        TellMore();
}

void ProfileCommands::Save() {
    ForgetNotes();
    if (context_.store.Save())
        TellMore();
}

void ProfileCommands::Delete() {
    ForgetNotes();
    if (context_.store.Delete())
        TellMore();
}

void ProfileCommands::LoadStrip() {
    context_.store.RebuildThumbnails();
    TellMore();
}

void ProfileCommands::ThumbnailSelected(int k) {
    ForgetNotes();
    if (context_.store.ThumbnailSelected(k))
        TellMore(profiles::HeadingOf(context_.profile) + ".");
}

bool ProfileCommands::MayLeave() {
    return context_.store.MayLeave();
}

void ProfileCommands::SetActive(bool active) {
    if (CanEdit())
        context_.profile.Active = active;
}

// A command that failed has left its notes behind.
void ProfileCommands::ForgetNotes() {
    context_.store.TakeNotes();
}

void ProfileCommands::TellMore(const std::string& heading) {
    std::string text = heading;
    const auto add = [&text](const std::string& sentence) { text += (text.empty() ? "" : " ") + sentence; };
    for (const std::string& note : context_.store.TakeNotes())
        add(note);
    for (const std::string& advice : recognition::AdviseOn(context_.profile))
        add(advice);
    if (text != heading)
        context_.person.SetPanel(app::Panel::Message, text);
}

}  // namespace tavrene::commands
