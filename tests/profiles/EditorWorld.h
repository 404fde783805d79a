#pragma once

#include "FakeStrip.h"
#include "profiles/BoxEditor.h"
#include "support/RunWorld.h"

namespace tavrene::test {

/// The box editor over the boxes Q1 to Q6 in two rows of three, with a screen that can be asked.
class EditorWorld : public RunWorld {
  protected:
    EditorWorld() { Open(TestForm::Grid(3, 2).boxes); }

    void Open(std::vector<profiles::OmrBox> boxes) {
        profiles::ProfileContent content;
        content.Count = static_cast<std::int16_t>(boxes.size());
        content.Boxes = std::move(boxes);
        screen_.SetZoom(100);
        profile_.IsOpen = true;
        editor_.BuildBoxList(content);
    }

    void Draw(double left, double top, double width, double height) {
        editor_.RectSelected({screen_.nextGroup, left, top, width, height});
    }

    // The row holds the new label before the editor hears of it.
    void Rename(int number, const std::string& name) {
        screen_.rows[number] = name;
        editor_.RowRenamed(number, name);
    }

    void Delete(int number) {
        editor_.RowClicked(number);
        editor_.DeleteBox();
    }

    profiles::OmrBox& Box(int number) { return profile_.BoxList[static_cast<std::size_t>(number) - 1]; }

    std::vector<int> Place(int number) {
        return {Box(number).L, Box(number).T, Box(number).R, Box(number).B};
    }

    FakeStrip strip_;
    profiles::OpenProfile profile_;
    profiles::BoxEditor editor_{profile_, person_, {screen_, screen_, strip_}};
};

}  // namespace tavrene::test
