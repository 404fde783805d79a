#include "ui/commands/CommandTable.h"

#include <array>
#include <cstddef>
#include <utility>

namespace tavrene::commands {
namespace {

using C = Command;
using T = Toolbar;
using M = Menu;

// clang-format off
constexpr std::array kCommands = {
    CommandInfo{C::New, T::Main, "New", "Create New Profile",
                M::File, "&New Profile...", "Ctrl+N", "New", false, false},
    CommandInfo{C::Save, T::Main, "Save", "Save Current Profile",
                M::File, "&Save Profile", "Ctrl+S", "Save", false, false},
    CommandInfo{C::DeleteProfile, T::Main, "Delete", "Delete Current Profile",
                M::File, "&Delete Profile...", "Ctrl+Shift+Del", "Delete", false, false},
    CommandInfo{C::ZoomToOrig, T::Main, "ZoomToOrig", "Zoom To Original",
                M::View, "Zoom To &Original", "Ctrl+1", "ZoomToOrig", false, true},
    CommandInfo{C::ZoomIn, T::Main, "ZoomIn", "Zoom In",
                M::View, "Zoom &In", "Ctrl++", "ZoomIn", false, false},
    CommandInfo{C::ZoomOut, T::Main, "ZoomOut", "Zoom Out",
                M::View, "Zoom O&ut", "Ctrl+-", "ZoomOut", false, false},
    CommandInfo{C::FitPage, T::Main, "FitPage", "Fit Page",
                M::View, "Fit &Page", "Ctrl+2", "FitPage", false, false},
    CommandInfo{C::FitWidth, T::Main, "FitWidth", "Fit Width",
                M::View, "Fit &Width", "Ctrl+3", "FitWidth", false, false},
    CommandInfo{C::ToolbarLabels, T::None, "ToolbarLabels", "Words under the buttons of the toolbars",
                M::View, "Toolbar &Labels", "Ctrl+L", "", true, true},
    CommandInfo{C::Process, T::Main, "Process",
                "Start OMR recognition process of images from configured directory",
                M::Process, "&Process", "F5", "Process", false, true},
    CommandInfo{C::Stop, T::Main, "Stop", "Stop Process",
                M::Process, "&Stop", "Shift+F5", "Stop", false, false},
    CommandInfo{C::Review, T::Main, "Review", "Review Processed Forms",
                M::Review, "&Review Forms", "F6", "Review", true, true},
    CommandInfo{C::Okay, T::Main, "Okay", "Reviewed OK",
                M::Review, "Reviewed &OK", "Ctrl+Return; Ctrl+Enter", "Okay", false, false},
    CommandInfo{C::AcceptForm, T::Main, "AcceptForm", "Accept Form (Move to Final Folder)",
                M::Review, "&Accept Form", "Ctrl+Shift+A", "AcceptForm", false, false},
    CommandInfo{C::RejectForm, T::Main, "RejectForm", "Reject Form (Move to Reject Folder)",
                M::Review, "Re&ject Form", "Ctrl+Shift+R", "RejectForm", false, false},
    CommandInfo{C::SelectBox, T::Cfg, "Select", "Select/Move/Modify OMR CheckBox",
                M::Boxes, "&Select Box", "F7", "Select", true, false},
    CommandInfo{C::AddBox, T::Cfg, "Add", "Create New OMR CheckBox",
                M::Boxes, "&Add Box", "F8", "Add", true, false},
    CommandInfo{C::DeleteBox, T::Cfg, "Delete", "Delete OMR CheckBox",
                M::Boxes, "&Delete Box\tDel", "", "DeleteBox", false, false},
    CommandInfo{C::RenameBox, T::None, "Rename", "Give the selected box another name",
                M::Boxes, "&Rename Box", "F2", "", false, false},
    CommandInfo{C::Undo, T::None, "Undo", "Take back the last change of a box",
                M::Boxes, "&Undo", "Ctrl+Z", "", false, true},
    CommandInfo{C::Redo, T::None, "Redo", "Make the change again that was taken back",
                M::Boxes, "R&edo", "Ctrl+Shift+Z; Ctrl+Y", "", false, false},
    CommandInfo{C::FindMoreBoxes, T::None, "FindMoreBoxes", "Look for boxes of the page that are not in the list",
                M::Boxes, "&Find More Boxes", "Ctrl+M", "", false, true},
    CommandInfo{C::SelectAllBoxes, T::None, "SelectAllBoxes", "Select all boxes of the page",
                M::Boxes, "Select A&ll Boxes", "Ctrl+A", "", false, true},
    CommandInfo{C::SelectSameSize, T::None, "SelectSameSize", "Select all boxes that are as large as the selected one",
                M::Boxes, "Select Boxes of This Si&ze", "Ctrl+Alt+A", "", false, false},
    CommandInfo{C::EqualSize, T::None, "EqualSize", "Make the selected boxes as large as the one with the thick frame",
                M::Arrange, "&Equal Size", "Ctrl+Alt+S", "", false, false},
    CommandInfo{C::AlignLeft, T::None, "AlignLeft", "Put the left sides of the selected boxes in one line",
                M::Arrange, "Align &Left Sides", "Ctrl+Shift+Left", "", false, true},
    CommandInfo{C::AlignRight, T::None, "AlignRight", "Put the right sides of the selected boxes in one line",
                M::Arrange, "Align &Right Sides", "Ctrl+Shift+Right", "", false, false},
    CommandInfo{C::AlignTop, T::None, "AlignTop", "Put the upper sides of the selected boxes in one line",
                M::Arrange, "Align &Upper Sides", "Ctrl+Shift+Up", "", false, false},
    CommandInfo{C::AlignBottom, T::None, "AlignBottom", "Put the lower sides of the selected boxes in one line",
                M::Arrange, "Align Lo&wer Sides", "Ctrl+Shift+Down", "", false, false},
    CommandInfo{C::DistributeAcross, T::None, "DistributeAcross", "Put the selected boxes at equal distances across the page",
                M::Arrange, "Distribute &Across", "Ctrl+Alt+H", "", false, true},
    CommandInfo{C::DistributeDown, T::None, "DistributeDown", "Put the selected boxes at equal distances down the page",
                M::Arrange, "Distribute &Down", "Ctrl+Alt+V", "", false, false},
    CommandInfo{C::OpenForm, T::None, "OpenForm", "Open the form of the selected line",
                M::Review, "Open &Form\tEnter", "", "", false, true},
    CommandInfo{C::NextForm, T::None, "NextForm", "Open the form below",
                M::Review, "&Next Form", "PgDown", "", false, false},
    CommandInfo{C::PreviousForm, T::None, "PreviousForm", "Open the form above",
                M::Review, "&Previous Form", "PgUp", "", false, false},
    CommandInfo{C::FlipBox, T::None, "FlipBox", "Turn the mark of the selected box round",
                M::Review, "&Turn Mark\tSpace", "", "", false, true},
    CommandInfo{C::NextDoubtful, T::None, "NextDoubtful", "Go to the next box whose ink is near the threshold",
                M::Review, "Next &Doubtful Box", "Ctrl+D", "", false, false},
    CommandInfo{C::GoOn, T::None, "GoOn", "Open the next form after a form was accepted or rejected",
                M::Review, "&Go On to the Next Form", "Ctrl+G", "", true, true},
    CommandInfo{C::UndoDecision, T::None, "UndoDecision", "Bring the form back that was accepted or rejected last",
                M::Review, "&Undo Decision", "Ctrl+U", "", false, false},
    CommandInfo{C::ExportResults, T::None, "ExportResults", "Write the results of all forms into tables",
                M::File, "&Export Results...", "Ctrl+E", "", false, true},
    CommandInfo{C::OpenWorkingFolder, T::None, "OpenWorkingFolder", "Show the working folder on the desktop",
                M::File, "Open &Working Folder", "Ctrl+Shift+O", "", false, true},
    CommandInfo{C::OpenLog, T::None, "OpenLog", "Read the newest log",
                M::File, "Open &Log", "Ctrl+Shift+L", "", false, false},
    CommandInfo{C::PreciseAlignment, T::None, "PreciseAlignment",
                "Read forms by one map of all their boxes: also turned, stretched, bent and thin ones",
                M::Process, "Precise &Alignment", "Ctrl+Shift+P", "", true, true},
    CommandInfo{C::SecondOpinion, T::None, "SecondOpinion",
                "While Precise Alignment is off, say where it would read otherwise",
                M::Process, "Second &Opinion", "Ctrl+Shift+D", "", true, false},
    CommandInfo{C::ReadAgain, T::None, "ReadAgain",
                "Read the forms of the last run that only Precise Alignment recognises",
                M::Process, "Read Turned Forms A&gain", "Ctrl+F5", "", false, false},
    CommandInfo{C::RunSummary, T::None, "RunSummary", "What became of the files of the last run",
                M::Process, "Summary of the &Last Run", "Ctrl+R", "", false, true},
    CommandInfo{C::ProcessUnread, T::None, "ProcessUnread",
                "Take the pages of ProcessOut that were not read once more, with the profiles as they are now",
                M::Process, "Process &Unread Pages Again", "Shift+F6", "", false, false},
    CommandInfo{C::BackToProcessIn, T::None, "BackToProcessIn",
                "Move the selected pages that were not read back to ProcessIn",
                M::Review, "&Back to ProcessIn", "Ctrl+B", "", false, true},
    CommandInfo{C::AllBackToProcessIn, T::None, "AllBackToProcessIn",
                "Move all pages that were not read back to ProcessIn",
                M::Review, "A&ll Back to ProcessIn", "Ctrl+Shift+B", "", false, false},
    CommandInfo{C::PasteScans, T::None, "PasteScans",
                "Copy the scans or folders of the clipboard to ProcessIn; dropping them on the window does it, too",
                M::File, "&Paste Scans", "Ctrl+V", "", false, true},
    CommandInfo{C::Settings, T::None, "Settings", "Folder, box sizes and processing options",
                M::File, "Se&ttings...", "Ctrl+,", "", false, true},
    CommandInfo{C::Exit, T::None, "Exit", "Close the program",
                M::File, "E&xit", "Ctrl+Q", "", false, true},
    CommandInfo{C::Manual, T::None, "Manual", "The manual, at the page of what is being done",
                M::Help, "&Manual", "F1", "", false, false},
    CommandInfo{C::About, T::None, "About", "Name and version of the program",
                M::Help, "&About...", "Shift+F1", "", false, true},
};
// clang-format on

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

std::string_view LabelOf(Command command) {
    for (const auto& [labelled, label] : kLabels)
        if (labelled == command)
            return label;
    return {};
}

}  // namespace tavrene::commands
