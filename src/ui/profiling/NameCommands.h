#pragma once

#include <set>
#include <vector>

#include "app/SettingsStore.h"
#include "profiles/BoxEditor.h"
#include "profiles/BoxNaming.h"
#include "profiles/OpenProfile.h"
#include "ui/commands/CommandGate.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {

/// Names and order of the boxes: `NameBoxes` with its dialog, the names on the page, and what sorts the list.
class NameCommands {
  public:
    /// The references must outlive it.
    NameCommands(commands::CommandGate& gate, app::SettingsStore& store, const profiles::OpenProfile& profile,
                 profiles::BoxEditor& editor, ImageView& view);

    /// Shows the names on the page as they are now, or none.
    void Update();

    bool ShowsNames() const { return showsNames_; }

    /// Selects the next or the previous box of the list, from which the page follows; false at its ends.
    bool Step(bool isForward);

  private:
    void NameBoxes();
    void Preview(const std::vector<profiles::NewName>& names, const std::set<int>& bad);
    void ConnectOrder(commands::CommandGate& gate);
    void Reorder(const std::function<std::vector<int>(std::vector<profiles::OmrBox>&)>& reorder);

    const profiles::OpenProfile& profile_;
    profiles::BoxEditor& editor_;
    ImageView& view_;
    bool showsNames_;
};

}  // namespace tavrene::ui
