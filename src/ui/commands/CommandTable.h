#pragma once

#include <span>
#include <string_view>

namespace tavrene::commands {

enum class Command {
    New,
    Save,
    DeleteProfile,
    ZoomToOrig,
    ZoomIn,
    ZoomOut,
    FitPage,
    FitWidth,
    Process,
    Stop,
    Review,
    Okay,
    AcceptForm,
    RejectForm,
    SelectBox,
    AddBox,
    DeleteBox,
    RenameBox,
    Undo,
    Redo,
    OpenForm,
    NextForm,
    PreviousForm,
    FlipBox,
    NextDoubtful,
    OpenWorkingFolder,
    OpenLog,
    ToolbarLabels,
    PreciseAlignment,
    SecondOpinion,
    ReadAgain,
    Settings,
    Exit,
    About
};

/// Where a command's button stands; the commands without one are reached through the menu bar alone.
enum class Toolbar { Main, Cfg, None };

enum class Menu { File, Boxes, View, Process, Review, Help };

/// Buttons that are offered or not as one.
enum class ButtonGroup { None, BoxTools, ProfileFile, View, Processing };

enum class StartState { Shown, Toggle, Hidden };

/// One command as the window presents it.
struct CommandInfo {
    Command command;
    Toolbar toolbar;
    std::string_view key;  ///< Object name of the button; unique within its toolbar.
    std::string_view toolTip;
    Menu menu;
    std::string_view menuText;  ///< Behind a tab the key that does it where its list has the focus.
    std::string_view shortcut;  ///< Portable text ("Ctrl+N"); empty for none.
    std::string_view icon;      ///< Name of the picture; empty for none.
    ButtonGroup group;
    StartState start;
    bool separatorBefore;
};

/// All commands; those of one toolbar or menu stand in its order.
std::span<const CommandInfo> CommandTable();

const CommandInfo& InfoOf(Command command);

/// The word or two under a command's button, where buttons carry labels; empty for a command without a
/// button.
std::string_view LabelOf(Command command);

}  // namespace tavrene::commands
