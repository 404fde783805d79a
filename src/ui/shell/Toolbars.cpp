#include "ui/shell/Toolbars.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "ui/base/QtText.h"
#include "ui/look/Icons.h"

namespace tavrene::ui {
namespace {

constexpr int kIconSize = 24;

QString OfCommand(std::string_view text) {
    return text.empty() ? QString() : Tr("Commands", text.data());
}

QToolBar* MakeToolbar(QMainWindow& window, const char* name, const QString& title) {
    QToolBar* const toolbar = window.addToolBar(title);
    toolbar->setObjectName(name);
    toolbar->setAccessibleName(title);
    toolbar->setMovable(false);
    toolbar->setFloatable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->setIconSize({kIconSize, kIconSize});
    return toolbar;
}

// With the buttons that are hidden now, so that labels do not come and go with them.
int FullWidthOf(const QToolBar& toolbar) {
    int width = toolbar.sizeHint().width();
    for (QAction* const action : toolbar.actions())
        if (!action->isVisible())
            width += toolbar.widgetForAction(action)->sizeHint().width();
    return width;
}

}  // namespace

Toolbars::Toolbars(QMainWindow& window, std::function<void(commands::Command)> run) : run_(std::move(run)) {
    using commands::Menu;
    toolbars_[commands::Toolbar::Main] = MakeToolbar(window, "MainToolbar", Tr("Toolbars", "Main toolbar"));
    toolbars_[commands::Toolbar::Cfg] = MakeToolbar(window, "CfgToolbar", Tr("Toolbars", "Box tools"));
    const std::pair<Menu, QString> titles[] = {
        {Menu::File, Tr("Toolbars", "&File")},     {Menu::Boxes, Tr("Toolbars", "&Boxes")},
        {Menu::View, Tr("Toolbars", "&View")},     {Menu::Process, Tr("Toolbars", "&Process")},
        {Menu::Review, Tr("Toolbars", "&Review")}, {Menu::Help, Tr("Toolbars", "&Help")}};
    for (const auto& [menu, title] : titles)
        menus_[menu] = window.menuBar()->addMenu(title);
    for (const commands::CommandInfo& info : commands::CommandTable())
        AddCommand(window, info);
}

void Toolbars::AddCommand(QMainWindow& window, const commands::CommandInfo& info) {
    auto* const action = new QAction(OfCommand(info.menuText), &window);
    action->setObjectName(ToQt(info.key));
    action->setToolTip(OfCommand(info.toolTip));
    action->setIcon(IconOf(info.icon));
    action->setIconVisibleInMenu(true);
    action->setShortcuts(QKeySequence::listFromString(ToQt(info.shortcut), QKeySequence::PortableText));
    action->setCheckable(info.isToggle);
    QObject::connect(action, &QAction::triggered, &window, [this, command = info.command] { run_(command); });
    actions_[info.command] = action;
    AddToToolbar(info, action);
    AddToMenu(info, action);
}

void Toolbars::AddToToolbar(const commands::CommandInfo& info, QAction* action) {
    const auto found = toolbars_.find(info.toolbar);
    if (found == toolbars_.end())
        return;
    QToolBar* const toolbar = found->second;
    if (info.separatorBefore)
        toolbar->addSeparator();
    action->setParent(toolbar);
    action->setIconText(OfCommand(commands::LabelOf(info.command)));
    toolbar->addAction(action);
    QWidget* const button = toolbar->widgetForAction(action);
    button->setAccessibleName(action->toolTip());
    button->setFocusPolicy(Qt::TabFocus);
}

// A menu within another one stands where its first command is.
QMenu* Toolbars::MenuOf(commands::Menu menu) {
    using commands::Menu;
    if (!menus_.contains(menu))
        menus_[menu] =
            menus_.at(Menu::Boxes)
                ->addMenu(menu == Menu::Arrange ? Tr("Toolbars", "Arran&ge") : Tr("Toolbars", "Gr&oups"));
    return menus_.at(menu);
}

void Toolbars::AddToMenu(const commands::CommandInfo& info, QAction* action) {
    QMenu* const menu = MenuOf(info.menu);
    if (info.separatorBefore && !menu->isEmpty())
        menu->addSeparator();
    menu->addAction(action);
}

void Toolbars::Update(const std::function<ButtonState(commands::Command)>& stateOf) {
    for (const auto& [command, action] : actions_) {
        const ButtonState state = stateOf(command);
        action->setEnabled(state.isEnabled);
        action->setVisible(state.isShown);
    }
}

void Toolbars::ShowLabels(bool shown) {
    hasLabels_ = shown;
    if (shown) {
        SetStyle(Qt::ToolButtonTextUnderIcon);
        labelledWidth_ = 0;
        for (const auto& [name, toolbar] : toolbars_)
            labelledWidth_ += FullWidthOf(*toolbar);
    }
    FitLabels();
}

void Toolbars::FitLabels() {
    const int room = toolbars_.at(commands::Toolbar::Main)->window()->width();
    SetStyle(hasLabels_ && labelledWidth_ <= room ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
}

void Toolbars::SetStyle(Qt::ToolButtonStyle style) {
    for (const auto& [name, toolbar] : toolbars_)
        toolbar->setToolButtonStyle(style);
}

}  // namespace tavrene::ui
