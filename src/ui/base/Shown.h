#pragma once

#include <QString>
#include <string_view>

namespace tavrene::ui {

/// A text of the rooms below the window as the window shows it. They speak English, in which logs and
/// documents are written whatever the language of the window; this is the one border at which such a text is
/// translated. One that no known text fits stays as it is. Of several sentences or lines each is looked up.
QString Shown(std::string_view english);

}  // namespace tavrene::ui
