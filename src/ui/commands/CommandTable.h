#pragma once

#include <span>
#include <string_view>

namespace tavrene::commands {

enum class Command {
    New,
    Save,
    DeleteProfile,
    DuplicateProfile,
    RenameProfile,
    TestProfile,
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
    PutBox,
    DeleteBox,
    RenameBox,
    Undo,
    Redo,
    FindMoreBoxes,
    SelectAllBoxes,
    SelectSameSize,
    EqualSize,
    AlignLeft,
    AlignRight,
    AlignTop,
    AlignBottom,
    DistributeAcross,
    DistributeDown,
    NameBoxes,
    BoxNames,
    SortByPlace,
    MoveRowsUp,
    MoveRowsDown,
    DrawGrid,
    CopyBoxes,
    PasteBoxes,
    DuplicateBoxes,
    SnapToPrint,
    GroupBoxes,
    UngroupBoxes,
    GroupByRows,
    GroupByNames,
    GroupFrames,
    OpenForm,
    NextForm,
    PreviousForm,
    FlipBox,
    NextDoubt,
    DoubtSheet,
    AcceptAllClear,
    FilterForms,
    GoOn,
    UndoDecision,
    ExportResults,
    OpenWorkingFolder,
    OpenLog,
    ToolbarLabels,
    PreciseAlignment,
    SecondOpinion,
    UseAllCores,
    ReadAgain,
    RunSummary,
    BackToProcessIn,
    AllBackToProcessIn,
    ProcessUnread,
    BringIn,
    BringInFolder,
    Scan,
    PasteScans,
    Manual,
    Settings,
    Exit,
    About,

    // What the person does in lists and views, which no button or menu does.
    PickThumbnail,
    SetActive,
    EditBoxes,
    PickForm,
    PickFile,     // of a run, to see its picture
    PickProfile,  // to read the open form against
    PickMark
};

/// Where a command's button stands; the commands without one are reached through the menu bar alone.
enum class Toolbar { Main, Cfg, None };

/// `Arrange` and `Groups` open from `Boxes`, the others from the menu bar.
enum class Menu { File, Boxes, Arrange, Groups, View, Process, Review, Help };

/// The questions about unsaved work that come before a command. Cancel at one of them abandons the command.
enum class Prompts { None, Profile, Form, ProfileThenForm, FormThenProfile };

/// The modes by a letter each, in the order of `Mode`.
constexpr std::string_view kModeLetters = "SDUPRFX";

/// In which modes a command acts, by their letters, and what is asked first.
struct Rule {
    std::string_view acts;
    Prompts prompts = Prompts::None;
    std::string_view alsoOffered = {};  ///< Where its button is enabled without effect.
    std::string_view shown = kModeLetters;
};

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
    bool isToggle;              ///< Its button stays pressed.
    bool separatorBefore;
    Rule rule;
};

/// All commands with a place in the menus; those of one toolbar or menu stand in its order.
std::span<const CommandInfo> CommandTable();

/// That of any command, with a place in the menus or without.
const Rule& RuleOf(Command command);

/// The word or two under a command's button, where buttons carry labels; empty for a command without a
/// button.
std::string_view LabelOf(Command command);

}  // namespace tavrene::commands
