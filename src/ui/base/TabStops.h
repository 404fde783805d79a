#pragma once

#include <QWidget>
#include <initializer_list>

namespace tavrene::ui {

/// Lets Tab go from part to part of a window in this order. Of a part that takes no keys itself, as a frame,
/// the controls directly in it are the stops, as they were made.
void OrderTabStops(std::initializer_list<QWidget*> parts);

}  // namespace tavrene::ui
