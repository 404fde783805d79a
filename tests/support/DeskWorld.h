#pragma once

#include "profiles/ProfileStore.h"
#include "support/FakeDesk.h"
#include "support/RunWorld.h"

namespace tavrene::test {

/// A working folder with a profile store and its editor at the desk.
class DeskWorld : public RunWorld {
  protected:
    DeskWorld() {
        settings_.BoxMinWidth = app::kDefaultBoxMinWidth;
        settings_.BoxMaxWidth = app::kDefaultBoxMaxWidth;
        settings_.BoxMinHeight = app::kDefaultBoxMinHeight;
        settings_.BoxMaxHeight = app::kDefaultBoxMaxHeight;
    }

    bool Create(const std::string& name, const std::string& image) {
        return store_.Create(folders_.Profiles + name, image, boxes::SizesOf(settings_),
                             boxes::ReachFor(boxes::SizesOf(settings_)));
    }

    /// Draws a rectangle in the page frame by hand, at the zoom and scroll of the view.
    void Draw(const imaging::PageRect& rect) {
        editor_.SetTool(profiles::BoxTool::Add);
        editor_.RectSelected(profiles::ReportOf(desk_.nextGroup, rect, screen_.Zoom(), desk_.scroll));
    }

    std::vector<std::string> ProfileLog() const {
        return LogLines(ReadText(folders_.Log + "TavreneBoxes-Profile-20240305.Log"));
    }

    FakeDesk desk_;
    profiles::OpenProfile profile_;
    profiles::EditorScreen desktop_{screen_, screen_, desk_, desk_, desk_};
    profiles::BoxEditor editor_{profile_, person_, desktop_};
    profiles::ProfileStore store_{
        {files_, person_, log_, clock_, folders_}, profile_, profiles_, editor_, desktop_};
};

}  // namespace tavrene::test
