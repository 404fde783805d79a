#pragma once

#include "ui/DeskWindow.h"

namespace tavrene::test {

/// The window with the profile "Form" of the boxes Q1 to Q6, which stand in two rows of three.
class FormWindow : public DeskWindow {
  protected:
    void OpenForm() {
        Open();
        ClickThumbnail(1);
        ASSERT_EQ(Rows().topLevelItemCount(), static_cast<int>(form_.boxes.size()));
    }
    void Trigger(const char* command) { Find<QAction>(*window_, command).trigger(); }

    TestForm form_ = TestForm::Grid(3, 2);
};

}  // namespace tavrene::test
