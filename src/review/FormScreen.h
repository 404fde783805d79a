#pragma once

#include "review/OpenForm.h"
#include "review/ReviewScreen.h"

namespace tavrene::review {

/// Puts the open form on the screen: its boxes on the page and in the list, and what the panels say of it.
class FormScreen {
  public:
    explicit FormScreen(const ReviewContext& context) : context_(context) {}

    /// Page, boxes, panels and choice of profile as they are without a form.
    void Clear();
    void ClearPanels();

    /// Replaces the boxes by those of the form, and shows its page the right way up.
    void ShowBoxes(const OpenForm& form);

    /// Draws the places of the boxes that its document lacks.
    void ShowSkipped(const OpenForm& form);

    /// Shows the mark of a row (from 1) as it is now.
    void ShowMark(const OpenForm& form, int number);
    void ShowState(const OpenForm& form);

    void ClearBoxes();

  private:
    void PutBox(const OpenForm& form, int number);

    ReviewContext context_;
};

}  // namespace tavrene::review
