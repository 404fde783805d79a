#pragma once

namespace tavrene::ui {

/// From here on screen readers and other assistive tools find the boxes of every page as its children: each
/// with its name, its mark, its place on the screen, and whether it is the selected one. Called once.
void OfferPagesToAssistiveTools();

}  // namespace tavrene::ui
