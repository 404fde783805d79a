#pragma once

#include <functional>

#include "profiles/BoxEditor.h"
#include "profiles/OpenProfile.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::ui {

/// The commands that act on several boxes at once.
class BoxCommands {
  public:
    /// The references must outlive it.
    BoxCommands(commands::CommandGate& gate, const profiles::OpenProfile& profile,
                profiles::BoxEditor& editor);

  private:
    void ConnectSelecting(commands::CommandGate& gate);
    void ConnectArranging(commands::CommandGate& gate);

    const profiles::OpenProfile& profile_;
    profiles::BoxEditor& editor_;
};

}  // namespace tavrene::ui
