#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/commands/Modes.h"

namespace tavrene::commands {

/// One page of the manual.
struct ManualPage {
    std::string title;
    std::string anchor;  ///< By which links of other pages name it: "making-a-profile".
    std::string text;    ///< Markdown, with the title as its heading.
};

/// The pages of the manual: each begins with a heading of the second level. What stands before the first one
/// is left out.
std::vector<ManualPage> PagesOf(std::string_view markdown);

/// The title of the page about what is done in a mode.
std::string_view PageFor(Mode mode);

}  // namespace tavrene::commands
