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

// Every command there is: PickMark is the last.
Commands ThatAct(Mode mode) {
    Commands acting;
    for (int k = 0; k <= static_cast<int>(C::PickMark); ++k)
        if (ActsIn(static_cast<Command>(k), mode))
            acting.insert(static_cast<Command>(k));
    return acting;
}

Commands Without(Commands some, const Commands& others) {
    std::erase_if(some, [&](Command command) { return others.contains(command); });
    return some;
}

TEST(ModesTest, ARunLeavesOnlyStopAndTheWayOut) {
    EXPECT_EQ(ThatAct(Mode::Run), (Commands{C::Stop, C::Exit}));
}

// What an open profile or form gives, and what it takes away.
TEST(ModesTest, ModesDifferByWhatThereIsToActOn) {
    EXPECT_EQ(ThatAct(Mode::Start), ThatAct(Mode::Desk));
    EXPECT_EQ(Without(ThatAct(Mode::Unreadable), ThatAct(Mode::Desk)), (Commands{C::Save, C::DeleteProfile}));
    EXPECT_EQ(Without(ThatAct(Mode::Form), ThatAct(Mode::Review)),
              (Commands{C::Okay, C::AcceptForm, C::RejectForm, C::FlipBox, C::PickProfile, C::PickMark}));
    const Commands ofBoxes = Without(ThatAct(Mode::Profile), ThatAct(Mode::Unreadable));
    for (const Command command : {C::SelectBox, C::AddBox, C::DeleteBox, C::Undo, C::EditBoxes, C::SetActive})
        EXPECT_TRUE(ofBoxes.contains(command)) << static_cast<int>(command);
    EXPECT_EQ(Without(ofBoxes, ThatAct(Mode::Form)), ofBoxes) << "no box is edited in review";
    EXPECT_FALSE(ThatAct(Mode::Review).contains(C::New));
}

TEST(ModesTest, OnlyTheStartAndARunOfferWhatHasNoEffect) {
    for (const Mode mode : kModes) {
        Commands offered;
        for (int k = 0; k <= static_cast<int>(C::PickMark); ++k) {
            const auto command = static_cast<Command>(k);
            if (IsOfferedIn(command, mode) && !ActsIn(command, mode))
                offered.insert(command);
            const bool isDecision =
                command == C::Okay || command == C::AcceptForm || command == C::RejectForm;
            EXPECT_EQ(IsShownIn(command, mode), !isDecision || mode == Mode::Review || mode == Mode::Form)
                << k;
        }
        const Commands expected = mode == Mode::Start ? Commands{C::Save, C::DeleteProfile}
                                  : mode == Mode::Run ? Commands{C::Process}
                                                      : Commands{};
        EXPECT_EQ(offered, expected);
    }
}

TEST(ModesTest, WhatLeavesUnsavedWorkBehindAsksAboutItFirst) {
    std::map<Prompts, Commands> asking;
    for (int k = 0; k <= static_cast<int>(C::PickMark); ++k)
        asking[PromptsBefore(static_cast<Command>(k))].insert(static_cast<Command>(k));
    EXPECT_EQ(asking[Prompts::Profile],
              (Commands{C::New, C::DuplicateProfile, C::RenameProfile, C::PickThumbnail}));
    EXPECT_EQ(asking[Prompts::Form],
              (Commands{C::AcceptForm, C::OpenForm, C::NextForm, C::PreviousForm, C::PickForm, C::DoubtSheet,
                        C::AcceptAllClear, C::UndoDecision, C::ReadAgain}));
    EXPECT_EQ(asking[Prompts::ProfileThenForm],
              (Commands{C::Process, C::Review, C::ProcessUnread, C::PickFile}));
    EXPECT_EQ(asking[Prompts::FormThenProfile], Commands{C::Exit});
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
