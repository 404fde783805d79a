#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "ui/commands/Modes.h"

namespace tavrene::commands {
namespace {

using C = Command;
using Commands = std::set<Command>;

constexpr Mode kModes[] = {Mode::Start,  Mode::Desk, Mode::Unreadable, Mode::Profile,
                           Mode::Review, Mode::Form, Mode::Run};

Commands operator+(Commands some, const Commands& others) {
    some.insert(others.begin(), others.end());
    return some;
}

// Every command there is: PickMark is the last.
Commands All() {
    Commands all;
    for (int k = 0; k <= static_cast<int>(C::PickMark); ++k)
        all.insert(static_cast<Command>(k));
    return all;
}

Commands AllBut(const Commands& some) {
    Commands others = All();
    for (const Command command : some)
        others.erase(command);
    return others;
}

const Commands kNew = {C::New, C::PickThumbnail};
const Commands kFile = {C::Save, C::DeleteProfile};
const Commands kBoxes = {
    C::SelectBox,      C::AddBox,         C::PutBox,           C::DeleteBox,      C::RenameBox,
    C::Undo,           C::Redo,           C::FindMoreBoxes,    C::EditBoxes,      C::SetActive,
    C::SelectAllBoxes, C::SelectSameSize, C::EqualSize,        C::AlignLeft,      C::AlignRight,
    C::AlignTop,       C::AlignBottom,    C::DistributeAcross, C::DistributeDown, C::NameBoxes,
    C::BoxNames,       C::SortByPlace,    C::MoveRowsUp,       C::MoveRowsDown,   C::DrawGrid,
    C::CopyBoxes,      C::PasteBoxes,     C::DuplicateBoxes,   C::SnapToPrint,    C::GroupBoxes,
    C::UngroupBoxes,   C::GroupByRows,    C::GroupByNames,     C::GroupFrames,    C::DuplicateProfile,
    C::RenameProfile,  C::TestProfile};
const Commands kForms = {C::OpenForm,        C::NextForm,           C::PreviousForm,  C::PickForm,
                         C::BackToProcessIn, C::AllBackToProcessIn, C::UndoDecision,  C::NextDoubt,
                         C::FilterForms,     C::DoubtSheet,         C::AcceptAllClear};
const Commands kDecisions = {C::Okay, C::AcceptForm, C::RejectForm};
const Commands kForm = {C::FlipBox, C::PickProfile, C::PickMark};
const Commands kReview = AllBut(kNew + kFile + kBoxes + kDecisions + kForm);
const Commands kProfiling = AllBut(kFile + kBoxes + kForms + kDecisions + kForm);

TEST(ModesTest, EveryCommandInEveryMode) {
    const std::map<Mode, Commands> acts = {
        {Mode::Start, kProfiling},
        {Mode::Desk, kProfiling},
        {Mode::Unreadable, kProfiling + kFile},
        {Mode::Profile, kProfiling + kFile + kBoxes},
        {Mode::Review, kReview},
        {Mode::Form, kReview + kDecisions + kForm},
        {Mode::Run, {C::Stop, C::Exit}},
    };
    const std::map<Mode, Commands> enabledWithoutEffect = {{Mode::Start, kFile}, {Mode::Run, {C::Process}}};
    const std::map<Mode, Commands> hidden = {{Mode::Start, kDecisions},
                                             {Mode::Desk, kDecisions},
                                             {Mode::Unreadable, kDecisions},
                                             {Mode::Profile, kDecisions},
                                             {Mode::Run, kDecisions}};
    const std::map<Command, Prompts> prompts = {{C::New, Prompts::Profile},
                                                {C::Process, Prompts::ProfileThenForm},
                                                {C::Review, Prompts::ProfileThenForm},
                                                {C::AcceptForm, Prompts::Form},
                                                {C::UndoDecision, Prompts::Form},
                                                {C::DoubtSheet, Prompts::Form},
                                                {C::AcceptAllClear, Prompts::Form},
                                                {C::OpenForm, Prompts::Form},
                                                {C::NextForm, Prompts::Form},
                                                {C::PreviousForm, Prompts::Form},
                                                {C::PickForm, Prompts::Form},
                                                {C::PickFile, Prompts::ProfileThenForm},
                                                {C::ProcessUnread, Prompts::ProfileThenForm},
                                                {C::PickThumbnail, Prompts::Profile},
                                                {C::DuplicateProfile, Prompts::Profile},
                                                {C::RenameProfile, Prompts::Profile},
                                                {C::Exit, Prompts::FormThenProfile}};
    const auto has = [](const std::map<Mode, Commands>& table, Mode mode, Command command) {
        const auto found = table.find(mode);
        return found != table.end() && found->second.contains(command);
    };
    for (const Command command : All()) {
        for (const Mode mode : kModes) {
            SCOPED_TRACE("command " + std::to_string(static_cast<int>(command)) + " in mode " +
                         std::to_string(static_cast<int>(mode)));
            EXPECT_EQ(ActsIn(command, mode), has(acts, mode, command));
            EXPECT_EQ(IsOfferedIn(command, mode),
                      has(acts, mode, command) || has(enabledWithoutEffect, mode, command));
            EXPECT_EQ(IsShownIn(command, mode), !has(hidden, mode, command));
        }
        const auto prompt = prompts.find(command);
        EXPECT_EQ(PromptsBefore(command), prompt == prompts.end() ? Prompts::None : prompt->second);
    }
}

TEST(ModesTest, ARunOutdoesReviewAndReviewOutdoesTheDesk) {
    Situation now;
    EXPECT_EQ(ModeOf(now), Mode::Start);
    now.hasProfile = true;
    EXPECT_EQ(ModeOf(now), Mode::Unreadable);
    now.canEdit = true;
    EXPECT_EQ(ModeOf(now), Mode::Profile);
    now.isInReview = now.wasInReview = true;
    EXPECT_EQ(ModeOf(now), Mode::Review);
    now.hasForm = true;
    EXPECT_EQ(ModeOf(now), Mode::Form);
    now.isRunning = true;
    EXPECT_EQ(ModeOf(now), Mode::Run);
    EXPECT_EQ(ModeOf({.wasInReview = true}), Mode::Desk);
}

}  // namespace
}  // namespace tavrene::commands
