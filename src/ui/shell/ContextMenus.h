#pragma once

#include <functional>

#include "profiles/ProfileSession.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"
#include "ui/profiling/ProfilePane.h"
#include "ui/reviewing/ReviewPane.h"
#include "ui/shell/Toolbars.h"

namespace tavrene::ui {

/// The parts of the window that have menus of their own, and what these need; everything must outlive them.
struct MenuParts {
    ProfilePane& profiles;
    ReviewPane& forms;
    BoxListView& boxes;
    ImageView& page;
    Toolbars& toolbars;
    const profiles::ProfileSession& session;
    std::function<void()> offerCommands;  ///< Lets the actions follow what is selected now.
};

/// Gives profiles, forms, unread pages, boxes of the list and boxes of the page their menus.
void AddContextMenus(const MenuParts& parts);

}  // namespace tavrene::ui
