#pragma once

#include <optional>
#include <vector>

#include "app/SettingsStore.h"
#include "profiles/BoxEditor.h"
#include "profiles/BoxGroups.h"
#include "profiles/OpenProfile.h"
#include "ui/commands/CommandGate.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {

/// The groups of boxes that answer one question together: set by hand, from rows or from names, and framed on
/// the page.
class GroupCommands {
  public:
    /// The references must outlive it.
    GroupCommands(commands::CommandGate& gate, app::SettingsStore& store,
                  const profiles::OpenProfile& profile, profiles::BoxEditor& editor, ImageView& view);

    /// Shows the frames as the groups are now, or none.
    void Update();

    bool ShowsFrames() const { return showsFrames_; }

  private:
    std::vector<profiles::BoxGroup> Groups() const;
    std::vector<std::string> SelectedNames() const;
    void GroupSelected();
    std::optional<profiles::BoxGroup> AskGroup(std::vector<std::string> names) const;
    void Set(std::vector<profiles::BoxGroup> groups);

    const profiles::OpenProfile& profile_;
    profiles::BoxEditor& editor_;
    ImageView& view_;
    bool showsFrames_;
};

}  // namespace tavrene::ui
