#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Operator.h"
#include "app/SettingsStore.h"
#include "imaging/WorkGrid.h"
#include "profiles/BoxEditor.h"
#include "profiles/BoxGrid.h"
#include "profiles/OpenProfile.h"
#include "ui/commands/CommandGate.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {

/// Many boxes out of few: `DrawGrid`, copies, and boxes that keep to what is printed under them.
class CopyCommands {
  public:
    /// The references must outlive it.
    CopyCommands(commands::CommandGate& gate, const app::Files& files, app::Operator& person,
                 app::SettingsStore& store, const profiles::OpenProfile& profile, profiles::BoxEditor& editor,
                 ImageView& view);

    bool SnapsToPrint() const { return snaps_; }

    /// Puts the selected boxes, or copies of them, that far away.
    void MoveBy(int dx, int dy);
    void CopyBy(int dx, int dy);

    /// What was copied last, in whatever program, are boxes.
    static bool AreBoxesOnClipboard();

  private:
    void ConnectCopies(commands::CommandGate& gate);
    void DrawGrid(commands::CommandGate& gate);
    void AddGrid(const imaging::PageRect& first, const imaging::PageRect& last);
    std::optional<profiles::GridShape> AskShape(const profiles::GridShape& guess) const;
    void Copy();
    void Paste();
    void Append(const std::vector<profiles::OmrBox>& copied, profiles::PixelWay wanted);
    bool KeepsFree() const;
    imaging::PageRect Placed(const imaging::PageRect& place);
    profiles::PixelWay Placed(const profiles::OmrBox& first, profiles::PixelWay way);
    std::vector<profiles::OmrBox> SelectedBoxes() const;
    const imaging::WorkGrid* Print();

    const app::Files& files_;
    app::Operator& person_;
    const profiles::OpenProfile& profile_;
    profiles::BoxEditor& editor_;
    ImageView& view_;
    bool snaps_;
    std::vector<profiles::OmrBox> copied_;
    std::string printOf_;  ///< The specimen that was read last, and what is printed on it where it could be.
    std::optional<imaging::WorkGrid> print_;
};

}  // namespace tavrene::ui
