#include "ui/shell/ContextMenus.h"

#include <initializer_list>
#include <utility>

#include "ui/shell/ContextMenu.h"

namespace tavrene::ui {
namespace {

using commands::Command;

void Add(const MenuParts& parts, QAbstractScrollArea& area, ContextMenu::Target target,
         std::initializer_list<Command> offered) {
    QList<QAction*> actions;
    for (const Command command : offered)
        actions += parts.toolbars.ActionOf(command);
    new ContextMenu(area, std::move(target), actions);
}

}  // namespace

void AddContextMenus(const MenuParts& parts) {
    const auto isOpenProfile = [&session = parts.session](const QModelIndex& line) {
        return session.Profile().CurrentProfile == line.row() + 1;
    };
    Add(parts, parts.profiles.Strip(), ClickedLine(parts.profiles.Strip(), isOpenProfile),
        {Command::Save, Command::FindMoreBoxes, Command::TestProfile, Command::DuplicateProfile,
         Command::RenameProfile, Command::DeleteProfile});
    const auto isOpenForm = [&list = parts.forms.List()](const QModelIndex& line) {
        return list.IsOpen(line);
    };
    Add(parts, parts.forms.List(), ClickedLine(parts.forms.List(), isOpenForm),
        {Command::Okay, Command::AcceptForm, Command::RejectForm, Command::NextDoubt});
    const auto ofBox = {Command::RenameBox, Command::NameBoxes, Command::DuplicateBoxes, Command::GroupBoxes,
                        Command::DeleteBox, Command::FlipBox,   Command::NextDoubt};
    Add(parts, parts.boxes, SelectedLine(parts.boxes), ofBox);
    Add(parts, parts.page, BoxOnPage(parts.page, parts.boxes), ofBox);
    ReasonList& unread = parts.forms.Unread().List();
    const auto offered = [offer = parts.offerCommands,
                          line = SelectedLine(unread)](const QContextMenuEvent& asked) {
        const std::optional<QPoint> place = line(asked);
        offer();
        return place;
    };
    Add(parts, unread, offered,
        {Command::BackToProcessIn, Command::AllBackToProcessIn, Command::ProcessUnread});
}

}  // namespace tavrene::ui
