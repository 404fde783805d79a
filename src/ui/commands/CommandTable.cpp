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

// The window shows these in its language; the tool of the translators finds them by this and files them under
// the place.
constexpr std::string_view Words(const char* /*place*/, std::string_view english) {
    return english;
}

// Commands of one of these rules are never in different states.
constexpr Rule kIdle = {"SDUPRF"};  // everywhere but in a run
constexpr Rule kLeavesProfile = {"SDUP", P::Profile};
constexpr Rule kLeavesAll = {"SDUPRF", P::ProfileThenForm};
constexpr Rule kOfProfile = {"UP", P::None, "S"};
constexpr Rule kOfSavedProfile = {"P", P::Profile};
constexpr Rule kOfBoxes = {"P"};
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
    CommandInfo{C::New, T::Main, "New", Words("Commands", "Create New Profile"),
                M::File, Words("Commands", "&New Profile..."), "Ctrl+N", "New", false, false, kLeavesProfile},
    CommandInfo{C::Save, T::Main, "Save", Words("Commands", "Save Current Profile"),
                M::File, Words("Commands", "&Save Profile"), "Ctrl+S", "Save", false, false, kOfProfile},
    CommandInfo{C::DeleteProfile, T::Main, "Delete", Words("Commands", "Delete Current Profile"),
                M::File, Words("Commands", "&Delete Profile..."), "Ctrl+Shift+Del", "Delete", false, false, kOfProfile},
    CommandInfo{C::DuplicateProfile, T::None, "DuplicateProfile", Words("Commands", "Make another profile of the same boxes, groups and image"),
                M::File, Words("Commands", "D&uplicate Profile..."), "Ctrl+Shift+S", "", false, false, kOfSavedProfile},
    CommandInfo{C::RenameProfile, T::None, "RenameProfile", Words("Commands", "Give the profile and its groups another name"),
                M::File, Words("Commands", "Rena&me Profile..."), "Shift+F2", "", false, false, kOfSavedProfile},
    CommandInfo{C::TestProfile, T::None, "TestProfile", Words("Commands", "See how scans are read with this profile as it stands; nothing is written"),
                M::File, Words("Commands", "Test P&rofile..."), "F9", "", false, false, kOfBoxes},
    CommandInfo{C::ZoomToOrig, T::Main, "ZoomToOrig", Words("Commands", "Zoom To Original"),
                M::View, Words("Commands", "Zoom To &Original"), "Ctrl+1", "ZoomToOrig", false, true, kIdle},
    CommandInfo{C::ZoomIn, T::Main, "ZoomIn", Words("Commands", "Zoom In"),
                M::View, Words("Commands", "Zoom &In"), "Ctrl++", "ZoomIn", false, false, kIdle},
    CommandInfo{C::ZoomOut, T::Main, "ZoomOut", Words("Commands", "Zoom Out"),
                M::View, Words("Commands", "Zoom O&ut"), "Ctrl+-", "ZoomOut", false, false, kIdle},
    CommandInfo{C::FitPage, T::Main, "FitPage", Words("Commands", "Fit Page"),
                M::View, Words("Commands", "Fit &Page"), "Ctrl+2", "FitPage", false, false, kIdle},
    CommandInfo{C::FitWidth, T::Main, "FitWidth", Words("Commands", "Fit Width"),
                M::View, Words("Commands", "Fit &Width"), "Ctrl+3", "FitWidth", false, false, kIdle},
    CommandInfo{C::ToolbarLabels, T::None, "ToolbarLabels", Words("Commands", "Words under the buttons of the toolbars"),
                M::View, Words("Commands", "Toolbar &Labels"), "Ctrl+L", "", true, true, kIdle},
    CommandInfo{C::BoxNames, T::None, "BoxNames", Words("Commands", "Show the names of the boxes on the page"),
                M::View, Words("Commands", "Box &Names"), "Ctrl+Shift+N", "", true, false, kOfBoxes},
    CommandInfo{C::Process, T::Main, "Process",
                Words("Commands", "Start OMR recognition process of images from configured directory"),
                M::Process, Words("Commands", "&Process"), "F5", "Process", false, true, {"SDUPRF", P::ProfileThenForm, "X"}},
    CommandInfo{C::Stop, T::Main, "Stop", Words("Commands", "Stop Process"),
                M::Process, Words("Commands", "&Stop"), "Shift+F5", "Stop", false, false, {kModeLetters}},
    CommandInfo{C::Review, T::Main, "Review", Words("Commands", "Review Processed Forms"),
                M::Review, Words("Commands", "&Review Forms"), "F6", "Review", true, true, kLeavesAll},
    CommandInfo{C::Okay, T::Main, "Okay", Words("Commands", "Reviewed OK"),
                M::Review, Words("Commands", "Reviewed &OK"), "Ctrl+Return; Ctrl+Enter", "Okay", false, false, kDecides},
    CommandInfo{C::AcceptForm, T::Main, "AcceptForm", Words("Commands", "Accept Form (Move to Final Folder)"),
                M::Review, Words("Commands", "&Accept Form"), "Ctrl+Shift+A", "AcceptForm", false, false, kAccepts},
    CommandInfo{C::RejectForm, T::Main, "RejectForm", Words("Commands", "Reject Form (Move to Reject Folder)"),
                M::Review, Words("Commands", "Re&ject Form"), "Ctrl+Shift+R", "RejectForm", false, false, kDecides},
    CommandInfo{C::SelectBox, T::Cfg, "Select", Words("Commands", "Select/Move/Modify OMR CheckBox"),
                M::Boxes, Words("Commands", "&Select Box"), "F7", "Select", true, false, kOfBoxes},
    CommandInfo{C::AddBox, T::Cfg, "Add", Words("Commands", "Create New OMR CheckBox"),
                M::Boxes, Words("Commands", "&Add Box"), "F8", "Add", true, false, kOfBoxes},
    CommandInfo{C::PutBox, T::None, "PutBox",
                Words("Commands", "Put a box in the middle of the view; the arrow keys move it, with Ctrl they resize it"),
                M::Boxes, Words("Commands", "&Put Box"), "Ins", "", false, false, kOfBoxes},
    CommandInfo{C::DeleteBox, T::Cfg, "Delete", Words("Commands", "Delete OMR CheckBox"),
                M::Boxes, Words("Commands", "&Delete Box\tDel"), "", "DeleteBox", false, false, kOfBoxes},
    CommandInfo{C::RenameBox, T::None, "Rename", Words("Commands", "Give the selected box another name"),
                M::Boxes, Words("Commands", "&Rename Box"), "F2", "", false, false, kOfBoxes},
    CommandInfo{C::NameBoxes, T::None, "NameBoxes", Words("Commands", "Name the selected boxes, or all of them, by a pattern or from a list"),
                M::Boxes, Words("Commands", "Name &Boxes..."), "Ctrl+F2", "", false, false, kOfBoxes},
    CommandInfo{C::Undo, T::None, "Undo", Words("Commands", "Take back the last change of a box"),
                M::Boxes, Words("Commands", "&Undo"), "Ctrl+Z", "", false, true, kOfBoxes},
    CommandInfo{C::Redo, T::None, "Redo", Words("Commands", "Make the change again that was taken back"),
                M::Boxes, Words("Commands", "R&edo"), "Ctrl+Shift+Z; Ctrl+Y", "", false, false, kOfBoxes},
    CommandInfo{C::FindMoreBoxes, T::None, "FindMoreBoxes", Words("Commands", "Look for boxes of the page that are not in the list"),
                M::Boxes, Words("Commands", "&Find More Boxes"), "Ctrl+M", "", false, true, kOfBoxes},
    CommandInfo{C::SelectAllBoxes, T::None, "SelectAllBoxes", Words("Commands", "Select all boxes of the page"),
                M::Boxes, Words("Commands", "Select A&ll Boxes"), "Ctrl+A", "", false, true, kOfBoxes},
    CommandInfo{C::SelectSameSize, T::None, "SelectSameSize", Words("Commands", "Select all boxes that are as large as the selected one"),
                M::Boxes, Words("Commands", "Select Boxes of This Si&ze"), "Ctrl+Alt+A", "", false, false, kOfBoxes},
    CommandInfo{C::DrawGrid, T::None, "DrawGrid", Words("Commands", "Draw the first and the last box of a grid, which is filled between them"),
                M::Boxes, Words("Commands", "Draw Gr&id..."), "Shift+F8", "", false, false, kOfBoxes},
    CommandInfo{C::CopyBoxes, T::None, "CopyBoxes", Words("Commands", "Keep copies of the selected boxes, also for another profile"),
                M::Boxes, Words("Commands", "&Copy Boxes"), "Ctrl+C", "", false, true, kOfBoxes},
    CommandInfo{C::PasteBoxes, T::None, "PasteBoxes", Words("Commands", "Add the boxes that were copied, with the names that follow"),
                M::Boxes, Words("Commands", "Paste Bo&xes"), "Ctrl+Shift+V", "", false, false, kOfBoxes},
    CommandInfo{C::DuplicateBoxes, T::None, "DuplicateBoxes", Words("Commands", "Add the selected boxes once more below, with the names that follow"),
                M::Boxes, Words("Commands", "Duplica&te Boxes"), "Ctrl+D", "", false, false, kOfBoxes},
    CommandInfo{C::SnapToPrint, T::None, "SnapToPrint", Words("Commands", "Boxes that are drawn or moved keep to the printed outline under them; Alt leaves them free"),
                M::Boxes, Words("Commands", "S&nap to Print"), "Ctrl+Shift+G", "", true, false, kOfBoxes},
    CommandInfo{C::EqualSize, T::None, "EqualSize", Words("Commands", "Make the selected boxes as large as the one with the thick frame"),
                M::Arrange, Words("Commands", "&Equal Size"), "Ctrl+Alt+S", "", false, false, kOfBoxes},
    CommandInfo{C::AlignLeft, T::None, "AlignLeft", Words("Commands", "Put the left sides of the selected boxes in one line"),
                M::Arrange, Words("Commands", "Align &Left Sides"), "Alt+Shift+Left", "", false, true, kOfBoxes},
    CommandInfo{C::AlignRight, T::None, "AlignRight", Words("Commands", "Put the right sides of the selected boxes in one line"),
                M::Arrange, Words("Commands", "Align &Right Sides"), "Alt+Shift+Right", "", false, false, kOfBoxes},
    CommandInfo{C::AlignTop, T::None, "AlignTop", Words("Commands", "Put the upper sides of the selected boxes in one line"),
                M::Arrange, Words("Commands", "Align &Upper Sides"), "Alt+Shift+Up", "", false, false, kOfBoxes},
    CommandInfo{C::AlignBottom, T::None, "AlignBottom", Words("Commands", "Put the lower sides of the selected boxes in one line"),
                M::Arrange, Words("Commands", "Align Lo&wer Sides"), "Alt+Shift+Down", "", false, false, kOfBoxes},
    CommandInfo{C::DistributeAcross, T::None, "DistributeAcross", Words("Commands", "Put the selected boxes at equal distances across the page"),
                M::Arrange, Words("Commands", "Distribute &Across"), "Ctrl+Alt+H", "", false, true, kOfBoxes},
    CommandInfo{C::DistributeDown, T::None, "DistributeDown", Words("Commands", "Put the selected boxes at equal distances down the page"),
                M::Arrange, Words("Commands", "Distribute &Down"), "Ctrl+Alt+V", "", false, false, kOfBoxes},
    CommandInfo{C::SortByPlace, T::None, "SortByPlace", Words("Commands", "Sort the boxes row by row from the top of the page down"),
                M::Arrange, Words("Commands", "&Sort by Place"), "Ctrl+T", "", false, true, kOfBoxes},
    CommandInfo{C::MoveRowsUp, T::None, "MoveRowsUp", Words("Commands", "Move the selected boxes up in the list, and so in the results"),
                M::Arrange, Words("Commands", "&Move Up in the List"), "Alt+Up", "", false, false, kOfBoxes},
    CommandInfo{C::MoveRowsDown, T::None, "MoveRowsDown", Words("Commands", "Move the selected boxes down in the list, and so in the results"),
                M::Arrange, Words("Commands", "Move D&own in the List"), "Alt+Down", "", false, false, kOfBoxes},
    CommandInfo{C::GroupBoxes, T::None, "GroupBoxes", Words("Commands", "Let the selected boxes answer one question together"),
                M::Groups, Words("Commands", "&Group Boxes..."), "Ctrl+Alt+G", "", false, false, kOfBoxes},
    CommandInfo{C::UngroupBoxes, T::None, "UngroupBoxes", Words("Commands", "Take the selected boxes out of their group"),
                M::Groups, Words("Commands", "&Ungroup Boxes"), "Ctrl+Alt+U", "", false, false, kOfBoxes},
    CommandInfo{C::GroupByRows, T::None, "GroupByRows", Words("Commands", "Make a group of each row of the selected boxes, or of all"),
                M::Groups, Words("Commands", "Groups by &Rows"), "Ctrl+Alt+R", "", false, true, kOfBoxes},
    CommandInfo{C::GroupByNames, T::None, "GroupByNames", Words("Commands", "Let the first words of the names tell the groups"),
                M::Groups, Words("Commands", "Groups by &Names"), "Ctrl+Alt+N", "", false, false, kOfBoxes},
    CommandInfo{C::GroupFrames, T::None, "GroupFrames", Words("Commands", "Show the groups of boxes as frames on the page"),
                M::View, Words("Commands", "&Group Frames"), "Ctrl+Alt+F", "", true, false, kOfBoxes},
    CommandInfo{C::OpenForm, T::None, "OpenForm", Words("Commands", "Open the form of the selected line"),
                M::Review, Words("Commands", "Open &Form\tEnter"), "", "", false, true, kToAnotherForm},
    CommandInfo{C::NextForm, T::None, "NextForm", Words("Commands", "Open the form below"),
                M::Review, Words("Commands", "&Next Form"), "PgDown", "", false, false, kToAnotherForm},
    CommandInfo{C::PreviousForm, T::None, "PreviousForm", Words("Commands", "Open the form above"),
                M::Review, Words("Commands", "&Previous Form"), "PgUp", "", false, false, kToAnotherForm},
    CommandInfo{C::FlipBox, T::None, "FlipBox", Words("Commands", "Turn the mark of the selected box round"),
                M::Review, Words("Commands", "&Turn Mark\tSpace"), "", "", false, true, kOfForm},
    CommandInfo{C::NextDoubt, T::None, "NextDoubt", Words("Commands", "Go to the next box in doubt, also of the forms below"),
                M::Review, Words("Commands", "Next &Doubtful Box"), "Ctrl+D", "", false, false, kOfReview},
    CommandInfo{C::DoubtSheet, T::None, "DoubtSheet", Words("Commands", "All boxes in doubt of all forms as pictures, judged a screen at a time"),
                M::Review, Words("Commands", "S&heet of Doubts..."), "F9", "", false, false, kToAnotherForm},
    CommandInfo{C::AcceptAllClear, T::None, "AcceptAllClear", Words("Commands", "Accept all forms of the list that have no box in doubt, after one question"),
                M::Review, Words("Commands", "Accept All &Without Doubt..."), "Shift+F9", "", false, false, kToAnotherForm},
    CommandInfo{C::FilterForms, T::None, "FilterForms", Words("Commands", "Choose which forms the list shows"),
                M::Review, Words("Commands", "&Show Only..."), "Ctrl+F", "", false, false, kOfReview},
    CommandInfo{C::GoOn, T::None, "GoOn",
                Words("Commands", "Open the next form after one was accepted or rejected, or saved while the list shows it no longer"),
                M::Review, Words("Commands", "&Go On to the Next Form"), "Ctrl+G", "", true, true, kIdle},
    CommandInfo{C::UndoDecision, T::None, "UndoDecision", Words("Commands", "Bring the form back that was accepted or rejected last"),
                M::Review, Words("Commands", "&Undo Decision"), "Ctrl+U", "", false, false, kToAnotherForm},
    CommandInfo{C::ExportResults, T::None, "ExportResults", Words("Commands", "Write the results of all forms into tables"),
                M::File, Words("Commands", "&Export Results..."), "Ctrl+E", "", false, true, kIdle},
    CommandInfo{C::OpenWorkingFolder, T::None, "OpenWorkingFolder", Words("Commands", "Show the working folder on the desktop"),
                M::File, Words("Commands", "Open &Working Folder"), "Ctrl+Shift+O", "", false, true, kIdle},
    CommandInfo{C::OpenLog, T::None, "OpenLog", Words("Commands", "Read the newest log"),
                M::File, Words("Commands", "Open &Log"), "Ctrl+Shift+L", "", false, false, kIdle},
    CommandInfo{C::PreciseAlignment, T::None, "PreciseAlignment",
                Words("Commands", "Read forms by one map of all their boxes: also turned, stretched, bent and thin ones"),
                M::Process, Words("Commands", "Precise &Alignment"), "Ctrl+Shift+P", "", true, true, kIdle},
    CommandInfo{C::SecondOpinion, T::None, "SecondOpinion",
                Words("Commands", "While Precise Alignment is off, say where it would read otherwise"),
                M::Process, Words("Commands", "Second &Opinion"), "Ctrl+Shift+D", "", true, false, kIdle},
    CommandInfo{C::ReadAgain, T::None, "ReadAgain",
                Words("Commands", "Read the forms of the last run again that Precise Alignment reads otherwise"),
                M::Process, Words("Commands", "Read Turned Forms A&gain"), "Ctrl+F5", "", false, false, {"SDUPRF", P::Form}},
    CommandInfo{C::UseAllCores, T::None, "UseAllCores",
                Words("Commands", "Read several pages at a time in a run; what comes of it is the same, sooner"),
                M::Process, Words("Commands", "Use All &Cores"), "Ctrl+Shift+M", "", true, false, kIdle},
    CommandInfo{C::RunSummary, T::None, "RunSummary", Words("Commands", "What became of the files of the last run"),
                M::Process, Words("Commands", "Summary of the &Last Run"), "Ctrl+R", "", false, true, kIdle},
    CommandInfo{C::ProcessUnread, T::None, "ProcessUnread",
                Words("Commands", "Take the pages of ProcessOut that were not read once more, with the profiles as they are now"),
                M::Process, Words("Commands", "Process &Unread Pages Again"), "Shift+F6", "", false, false, kLeavesAll},
    CommandInfo{C::BackToProcessIn, T::None, "BackToProcessIn",
                Words("Commands", "Move the selected pages that were not read back to ProcessIn"),
                M::Review, Words("Commands", "&Back to ProcessIn"), "Ctrl+B", "", false, true, kOfReview},
    CommandInfo{C::AllBackToProcessIn, T::None, "AllBackToProcessIn",
                Words("Commands", "Move all pages that were not read back to ProcessIn"),
                M::Review, Words("Commands", "A&ll Back to ProcessIn"), "Ctrl+Shift+B", "", false, false, kOfReview},
    CommandInfo{C::BringIn, T::None, "BringIn",
                Words("Commands", "Make an image in ProcessIn of each page of PDFs and TIFFs; scans of one page are copied"),
                M::File, Words("Commands", "&Bring In Scans..."), "Ctrl+I", "", false, true, kIdle},
    CommandInfo{C::BringInFolder, T::None, "BringInFolder",
                Words("Commands", "The same with all scans of a folder and of the folders in it"),
                M::File, Words("Commands", "Bring In a &Folder..."), "Ctrl+Alt+I", "", false, false, kIdle},
    CommandInfo{C::Scan, T::None, "Scan", Words("Commands", "Take pages from a scanner to ProcessIn"),
                M::File, Words("Commands", "S&can..."), "Ctrl+Shift+I", "", false, false, kIdle},
    CommandInfo{C::PasteScans, T::None, "PasteScans",
                Words("Commands", "The same with the files and folders of the clipboard, or dropped on the window; boxes that were copied last are added to the profile"),
                M::File, Words("Commands", "&Paste Scans"), "Ctrl+V", "", false, false, kIdle},
    CommandInfo{C::Settings, T::None, "Settings", Words("Commands", "Folder, box sizes and processing options"),
                M::File, Words("Commands", "Se&ttings..."), "Ctrl+,", "", false, true, kIdle},
    CommandInfo{C::Exit, T::None, "Exit", Words("Commands", "Close the program"),
                M::File, Words("Commands", "E&xit"), "Ctrl+Q", "", false, true, {kModeLetters, P::FormThenProfile}},
    CommandInfo{C::Manual, T::None, "Manual", Words("Commands", "The manual, at the page of what is being done"),
                M::Help, Words("Commands", "&Manual"), "F1", "", false, false, kIdle},
    CommandInfo{C::About, T::None, "About", Words("Commands", "Name and version of the program"),
                M::Help, Words("Commands", "&About..."), "Shift+F1", "", false, true, kIdle},
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
    {C::New, Words("Commands", "New")},
    {C::Save, Words("Commands", "Save")},
    {C::DeleteProfile, Words("Commands", "Delete")},
    {C::ZoomToOrig, Words("Commands", "100 %")},
    {C::ZoomIn, Words("Commands", "Larger")},
    {C::ZoomOut, Words("Commands", "Smaller")},
    {C::FitPage, Words("Commands", "Page")},
    {C::FitWidth, Words("Commands", "Width")},
    {C::Process, Words("Commands", "Process")},
    {C::Stop, Words("Commands", "Stop")},
    {C::Review, Words("Commands", "Review")},
    {C::Okay, Words("Commands", "Reviewed")},
    {C::AcceptForm, Words("Commands", "Accept")},
    {C::RejectForm, Words("Commands", "Reject")},
    {C::SelectBox, Words("Commands", "Select")},
    {C::AddBox, Words("Commands", "Add")},
    {C::DeleteBox, Words("Commands", "Delete")},
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
