#include "ui/commands/CommandTable.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace tavrene::commands {
namespace {

using C = Command;
using T = Toolbar;
using M = Menu;
using P = Prompts;

// Commands of one of these rules are never in different states.
constexpr Rule kIdle = {"SDUPRF"};  // everywhere but in a run
constexpr Rule kLeavesProfile = {"SDUP", P::Profile};
constexpr Rule kLeavesAll = {"SDUPRF", P::ProfileThenForm};
constexpr Rule kOfProfile = {"UP", P::None, "S"};
constexpr Rule kOfBoxes = {"P"};
constexpr Rule kOfSavedProfile = {"P", P::Profile};
constexpr Rule kOfReview = {"RF"};
constexpr Rule kToAnotherForm = {"RF", P::Form};
constexpr Rule kOfForm = {"F"};
constexpr Rule kDecides = {"F", P::None, "", "RF"};
constexpr Rule kAccepts = {"F", P::Form, "", "RF"};

// Save and Delete are enabled when the window opens, as all of its buttons but the decisions; with review
// they go until there is a profile again. Process and Stop are one group: while a run goes on, a second
// Process is enabled and ignored, and Stop has nothing to stop before.
// clang-format off
constexpr std::array kCommands = {
    CommandInfo{C::New, T::Main, "New", "Create New Profile",
                M::File, "&New Profile...", "Ctrl+N", "New", false, false, kLeavesProfile},
    CommandInfo{C::Save, T::Main, "Save", "Save Current Profile",
                M::File, "&Save Profile", "Ctrl+S", "Save", false, false, kOfProfile},
    CommandInfo{C::DeleteProfile, T::Main, "Delete", "Delete Current Profile",
                M::File, "&Delete Profile...", "Ctrl+Shift+Del", "Delete", false, false, kOfProfile},
    CommandInfo{C::DuplicateProfile, T::None, "DuplicateProfile", "Make another profile of the same boxes, groups and image",
                M::File, "D&uplicate Profile...", "Ctrl+Shift+S", "", false, false, kOfSavedProfile},
    CommandInfo{C::RenameProfile, T::None, "RenameProfile", "Give the profile and its groups another name",
                M::File, "Rena&me Profile...", "Shift+F2", "", false, false, kOfSavedProfile},
    CommandInfo{C::TestProfile, T::None, "TestProfile", "See how scans are read with this profile as it stands; nothing is written",
                M::File, "Test P&rofile...", "F9", "", false, false, kOfBoxes},
    CommandInfo{C::ZoomToOrig, T::Main, "ZoomToOrig", "Zoom To Original",
                M::View, "Zoom To &Original", "Ctrl+1", "ZoomToOrig", false, true, kIdle},
    CommandInfo{C::ZoomIn, T::Main, "ZoomIn", "Zoom In",
                M::View, "Zoom &In", "Ctrl++", "ZoomIn", false, false, kIdle},
    CommandInfo{C::ZoomOut, T::Main, "ZoomOut", "Zoom Out",
                M::View, "Zoom O&ut", "Ctrl+-", "ZoomOut", false, false, kIdle},
    CommandInfo{C::FitPage, T::Main, "FitPage", "Fit Page",
                M::View, "Fit &Page", "Ctrl+2", "FitPage", false, false, kIdle},
    CommandInfo{C::FitWidth, T::Main, "FitWidth", "Fit Width",
                M::View, "Fit &Width", "Ctrl+3", "FitWidth", false, false, kIdle},
    CommandInfo{C::ToolbarLabels, T::None, "ToolbarLabels", "Words under the buttons of the toolbars",
                M::View, "Toolbar &Labels", "Ctrl+L", "", true, true, kIdle},
    CommandInfo{C::BoxNames, T::None, "BoxNames", "Show the names of the boxes on the page",
                M::View, "Box &Names", "Ctrl+Shift+N", "", true, false, kOfBoxes},
    CommandInfo{C::Process, T::Main, "Process",
                "Start OMR recognition process of images from configured directory",
                M::Process, "&Process", "F5", "Process", false, true, {"SDUPRF", P::ProfileThenForm, "X"}},
    CommandInfo{C::Stop, T::Main, "Stop", "Stop Process",
                M::Process, "&Stop", "Shift+F5", "Stop", false, false, {kModeLetters}},
    CommandInfo{C::Review, T::Main, "Review", "Review Processed Forms",
                M::Review, "&Review Forms", "F6", "Review", true, true, kLeavesAll},
    CommandInfo{C::Okay, T::Main, "Okay", "Reviewed OK",
                M::Review, "Reviewed &OK", "Ctrl+Return; Ctrl+Enter", "Okay", false, false, kDecides},
    CommandInfo{C::AcceptForm, T::Main, "AcceptForm", "Accept Form (Move to Final Folder)",
                M::Review, "&Accept Form", "Ctrl+Shift+A", "AcceptForm", false, false, kAccepts},
    CommandInfo{C::RejectForm, T::Main, "RejectForm", "Reject Form (Move to Reject Folder)",
                M::Review, "Re&ject Form", "Ctrl+Shift+R", "RejectForm", false, false, kDecides},
    CommandInfo{C::SelectBox, T::Cfg, "Select", "Select/Move/Modify OMR CheckBox",
                M::Boxes, "&Select Box", "F7", "Select", true, false, kOfBoxes},
    CommandInfo{C::AddBox, T::Cfg, "Add", "Create New OMR CheckBox",
                M::Boxes, "&Add Box", "F8", "Add", true, false, kOfBoxes},
    CommandInfo{C::PutBox, T::None, "PutBox",
                "Put a box in the middle of the view; the arrow keys move it, with Ctrl they resize it",
                M::Boxes, "&Put Box", "Ins", "", false, false, kOfBoxes},
    CommandInfo{C::DeleteBox, T::Cfg, "Delete", "Delete OMR CheckBox",
                M::Boxes, "&Delete Box\tDel", "", "DeleteBox", false, false, kOfBoxes},
    CommandInfo{C::RenameBox, T::None, "Rename", "Give the selected box another name",
                M::Boxes, "&Rename Box", "F2", "", false, false, kOfBoxes},
    CommandInfo{C::NameBoxes, T::None, "NameBoxes", "Name the selected boxes, or all of them, by a pattern or from a list",
                M::Boxes, "Name &Boxes...", "Ctrl+F2", "", false, false, kOfBoxes},
    CommandInfo{C::Undo, T::None, "Undo", "Take back the last change of a box",
                M::Boxes, "&Undo", "Ctrl+Z", "", false, true, kOfBoxes},
    CommandInfo{C::Redo, T::None, "Redo", "Make the change again that was taken back",
                M::Boxes, "R&edo", "Ctrl+Shift+Z; Ctrl+Y", "", false, false, kOfBoxes},
    CommandInfo{C::FindMoreBoxes, T::None, "FindMoreBoxes", "Look for boxes of the page that are not in the list",
                M::Boxes, "&Find More Boxes", "Ctrl+M", "", false, true, kOfBoxes},
    CommandInfo{C::SelectAllBoxes, T::None, "SelectAllBoxes", "Select all boxes of the page",
                M::Boxes, "Select A&ll Boxes", "Ctrl+A", "", false, true, kOfBoxes},
    CommandInfo{C::SelectSameSize, T::None, "SelectSameSize", "Select all boxes that are as large as the selected one",
                M::Boxes, "Select Boxes of This Si&ze", "Ctrl+Alt+A", "", false, false, kOfBoxes},
    CommandInfo{C::DrawGrid, T::None, "DrawGrid", "Draw the first and the last box of a grid, which is filled between them",
                M::Boxes, "Draw Gr&id...", "Shift+F8", "", false, false, kOfBoxes},
    CommandInfo{C::CopyBoxes, T::None, "CopyBoxes", "Keep copies of the selected boxes, also for another profile",
                M::Boxes, "&Copy Boxes", "Ctrl+C", "", false, true, kOfBoxes},
    CommandInfo{C::PasteBoxes, T::None, "PasteBoxes", "Add the boxes that were copied, with the names that follow",
                M::Boxes, "Paste Bo&xes", "Ctrl+Shift+V", "", false, false, kOfBoxes},
    CommandInfo{C::DuplicateBoxes, T::None, "DuplicateBoxes", "Add the selected boxes once more below, with the names that follow",
                M::Boxes, "Duplica&te Boxes", "Ctrl+D", "", false, false, kOfBoxes},
    CommandInfo{C::SnapToPrint, T::None, "SnapToPrint", "Boxes that are drawn or moved keep to the printed outline under them; Alt leaves them free",
                M::Boxes, "S&nap to Print", "Ctrl+Shift+G", "", true, false, kOfBoxes},
    CommandInfo{C::EqualSize, T::None, "EqualSize", "Make the selected boxes as large as the one with the thick frame",
                M::Arrange, "&Equal Size", "Ctrl+Alt+S", "", false, false, kOfBoxes},
    CommandInfo{C::AlignLeft, T::None, "AlignLeft", "Put the left sides of the selected boxes in one line",
                M::Arrange, "Align &Left Sides", "Alt+Shift+Left", "", false, true, kOfBoxes},
    CommandInfo{C::AlignRight, T::None, "AlignRight", "Put the right sides of the selected boxes in one line",
                M::Arrange, "Align &Right Sides", "Alt+Shift+Right", "", false, false, kOfBoxes},
    CommandInfo{C::AlignTop, T::None, "AlignTop", "Put the upper sides of the selected boxes in one line",
                M::Arrange, "Align &Upper Sides", "Alt+Shift+Up", "", false, false, kOfBoxes},
    CommandInfo{C::AlignBottom, T::None, "AlignBottom", "Put the lower sides of the selected boxes in one line",
                M::Arrange, "Align Lo&wer Sides", "Alt+Shift+Down", "", false, false, kOfBoxes},
    CommandInfo{C::DistributeAcross, T::None, "DistributeAcross", "Put the selected boxes at equal distances across the page",
                M::Arrange, "Distribute &Across", "Ctrl+Alt+H", "", false, true, kOfBoxes},
    CommandInfo{C::DistributeDown, T::None, "DistributeDown", "Put the selected boxes at equal distances down the page",
                M::Arrange, "Distribute &Down", "Ctrl+Alt+V", "", false, false, kOfBoxes},
    CommandInfo{C::SortByPlace, T::None, "SortByPlace", "Sort the boxes row by row from the top of the page down",
                M::Arrange, "&Sort by Place", "Ctrl+T", "", false, true, kOfBoxes},
    CommandInfo{C::MoveRowsUp, T::None, "MoveRowsUp", "Move the selected boxes up in the list, and so in the results",
                M::Arrange, "Move &Up in the List", "Alt+Up", "", false, false, kOfBoxes},
    CommandInfo{C::MoveRowsDown, T::None, "MoveRowsDown", "Move the selected boxes down in the list, and so in the results",
                M::Arrange, "Move D&own in the List", "Alt+Down", "", false, false, kOfBoxes},
    CommandInfo{C::GroupBoxes, T::None, "GroupBoxes", "Let the selected boxes answer one question together",
                M::Groups, "&Group Boxes...", "Ctrl+Alt+G", "", false, false, kOfBoxes},
    CommandInfo{C::UngroupBoxes, T::None, "UngroupBoxes", "Take the selected boxes out of their group",
                M::Groups, "&Ungroup Boxes", "Ctrl+Alt+U", "", false, false, kOfBoxes},
    CommandInfo{C::GroupByRows, T::None, "GroupByRows", "Make a group of each row of the selected boxes, or of all",
                M::Groups, "Groups by &Rows", "Ctrl+Alt+R", "", false, true, kOfBoxes},
    CommandInfo{C::GroupByNames, T::None, "GroupByNames", "Let the first words of the names tell the groups",
                M::Groups, "Groups by &Names", "Ctrl+Alt+N", "", false, false, kOfBoxes},
    CommandInfo{C::GroupFrames, T::None, "GroupFrames", "Show the groups of boxes as frames on the page",
                M::View, "&Group Frames", "Ctrl+Alt+F", "", true, false, kOfBoxes},
    CommandInfo{C::OpenForm, T::None, "OpenForm", "Open the form of the selected line",
                M::Review, "Open &Form\tEnter", "", "", false, true, kToAnotherForm},
    CommandInfo{C::NextForm, T::None, "NextForm", "Open the form below",
                M::Review, "&Next Form", "PgDown", "", false, false, kToAnotherForm},
    CommandInfo{C::PreviousForm, T::None, "PreviousForm", "Open the form above",
                M::Review, "&Previous Form", "PgUp", "", false, false, kToAnotherForm},
    CommandInfo{C::FlipBox, T::None, "FlipBox", "Turn the mark of the selected box round",
                M::Review, "&Turn Mark\tSpace", "", "", false, true, kOfForm},
    CommandInfo{C::NextDoubt, T::None, "NextDoubt", "Go to the next box in doubt, also of the forms below",
                M::Review, "Next &Doubtful Box", "Ctrl+D", "", false, false, kOfReview},
    CommandInfo{C::DoubtSheet, T::None, "DoubtSheet", "All boxes in doubt of all forms as pictures, judged a screen at a time",
                M::Review, "S&heet of Doubts...", "F9", "", false, false, kToAnotherForm},
    CommandInfo{C::AcceptAllClear, T::None, "AcceptAllClear", "Accept all forms of the list that have no box in doubt, after one question",
                M::Review, "Accept All &Without Doubt...", "Shift+F9", "", false, false, kToAnotherForm},
    CommandInfo{C::FilterForms, T::None, "FilterForms", "Choose which forms the list shows",
                M::Review, "&Show Only...", "Ctrl+F", "", false, false, kOfReview},
    CommandInfo{C::GoOn, T::None, "GoOn",
                "Open the next form after one was accepted or rejected, or saved while the list shows it no longer",
                M::Review, "&Go On to the Next Form", "Ctrl+G", "", true, true, kIdle},
    CommandInfo{C::UndoDecision, T::None, "UndoDecision", "Bring the form back that was accepted or rejected last",
                M::Review, "&Undo Decision", "Ctrl+U", "", false, false, kToAnotherForm},
    CommandInfo{C::ExportResults, T::None, "ExportResults", "Write the results of all forms into tables",
                M::File, "&Export Results...", "Ctrl+E", "", false, true, kIdle},
    CommandInfo{C::OpenWorkingFolder, T::None, "OpenWorkingFolder", "Show the working folder on the desktop",
                M::File, "Open &Working Folder", "Ctrl+Shift+O", "", false, true, kIdle},
    CommandInfo{C::OpenLog, T::None, "OpenLog", "Read the newest log",
                M::File, "Open &Log", "Ctrl+Shift+L", "", false, false, kIdle},
    CommandInfo{C::PreciseAlignment, T::None, "PreciseAlignment",
                "Read forms by one map of all their boxes: also turned, stretched, bent and thin ones",
                M::Process, "Precise &Alignment", "Ctrl+Shift+P", "", true, true, kIdle},
    CommandInfo{C::SecondOpinion, T::None, "SecondOpinion",
                "While Precise Alignment is off, say where it would read otherwise",
                M::Process, "Second &Opinion", "Ctrl+Shift+D", "", true, false, kIdle},
    CommandInfo{C::ReadAgain, T::None, "ReadAgain",
                "Read the forms of the last run that only Precise Alignment recognises",
                M::Process, "Read Turned Forms A&gain", "Ctrl+F5", "", false, false, kIdle},
    CommandInfo{C::UseAllCores, T::None, "UseAllCores",
                "Read several pages at a time in a run; what comes of it is the same, sooner",
                M::Process, "Use All &Cores", "Ctrl+Shift+M", "", true, false, kIdle},
    CommandInfo{C::RunSummary, T::None, "RunSummary", "What became of the files of the last run",
                M::Process, "Summary of the &Last Run", "Ctrl+R", "", false, true, kIdle},
    CommandInfo{C::ProcessUnread, T::None, "ProcessUnread",
                "Take the pages of ProcessOut that were not read once more, with the profiles as they are now",
                M::Process, "Process &Unread Pages Again", "Shift+F6", "", false, false, kLeavesAll},
    CommandInfo{C::BackToProcessIn, T::None, "BackToProcessIn",
                "Move the selected pages that were not read back to ProcessIn",
                M::Review, "&Back to ProcessIn", "Ctrl+B", "", false, true, kOfReview},
    CommandInfo{C::AllBackToProcessIn, T::None, "AllBackToProcessIn",
                "Move all pages that were not read back to ProcessIn",
                M::Review, "A&ll Back to ProcessIn", "Ctrl+Shift+B", "", false, false, kOfReview},
    CommandInfo{C::BringIn, T::None, "BringIn",
                "Make an image in ProcessIn of each page of PDFs and TIFFs; scans of one page are copied",
                M::File, "&Bring In Scans...", "Ctrl+I", "", false, true, kIdle},
    CommandInfo{C::Scan, T::None, "Scan", "Take pages from a scanner to ProcessIn",
                M::File, "S&can...", "Ctrl+Shift+I", "", false, false, kIdle},
    CommandInfo{C::PasteScans, T::None, "PasteScans",
                "The same with the files and folders of the clipboard, or dropped on the window; boxes that were copied last are added to the profile",
                M::File, "&Paste Scans", "Ctrl+V", "", false, false, kIdle},
    CommandInfo{C::Settings, T::None, "Settings", "Folder, box sizes and processing options",
                M::File, "Se&ttings...", "Ctrl+,", "", false, true, kIdle},
    CommandInfo{C::Exit, T::None, "Exit", "Close the program",
                M::File, "E&xit", "Ctrl+Q", "", false, true, {kModeLetters, P::FormThenProfile}},
    CommandInfo{C::Manual, T::None, "Manual", "The manual, at the page of what is being done",
                M::Help, "&Manual", "F1", "", false, false, kIdle},
    CommandInfo{C::About, T::None, "About", "Name and version of the program",
                M::Help, "&About...", "Shift+F1", "", false, true, kIdle},
};
// clang-format on

// What the person does in lists and views.
constexpr std::pair<Command, Rule> kEvents[] = {
    {C::PickThumbnail, kLeavesProfile},
    {C::SetActive, kOfBoxes},
    {C::EditBoxes, kOfBoxes},
    {C::PickForm, kToAnotherForm},
    {C::PickFile, kLeavesAll},
    {C::PickProfile, kOfForm},
    {C::PickMark, kOfForm},
};

// Shorter than the menu's texts, so that all buttons have room in a narrow window.
constexpr std::pair<Command, std::string_view> kLabels[] = {
    {C::New, "New"},           {C::Save, "Save"},         {C::DeleteProfile, "Delete"},
    {C::ZoomToOrig, "100 %"},  {C::ZoomIn, "Larger"},     {C::ZoomOut, "Smaller"},
    {C::FitPage, "Page"},      {C::FitWidth, "Width"},    {C::Process, "Process"},
    {C::Stop, "Stop"},         {C::Review, "Review"},     {C::Okay, "Reviewed"},
    {C::AcceptForm, "Accept"}, {C::RejectForm, "Reject"}, {C::SelectBox, "Select"},
    {C::AddBox, "Add"},        {C::DeleteBox, "Delete"},
};

}  // namespace

std::span<const CommandInfo> CommandTable() {
    return kCommands;
}

const Rule& RuleOf(Command command) {
    for (const CommandInfo& info : kCommands)
        if (info.command == command)
            return info.rule;
    for (const auto& [event, rule] : kEvents)
        if (event == command)
            return rule;
    throw std::logic_error("a command without a rule");
}

std::string_view LabelOf(Command command) {
    for (const auto& [labelled, label] : kLabels)
        if (labelled == command)
            return label;
    return {};
}

}  // namespace tavrene::commands
