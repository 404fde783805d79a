#include "ReviewWorld.h"
#include "support/Kill.h"

namespace tavrene {
namespace {

using app::Answer;
using app::Panel;
using test::Names;
using test::ReadText;
using test::WriteText;

const Names kPair = {"a.tif", "a.xml"};

class DecisionsTest : public test::ReviewWorld {
  protected:
    // Review with form a of two open.
    void OpenA() {
        AddScan("a.tif", {.checked = {1}});
        AddScan("b.tif");
        ProcessAndReview();
        Open(0);
    }

    std::string Note() const { return folders_.ProcessOut + ".decision.xml"; }

    bool DiesBefore(int operation, const std::function<void()>& command) {
        return test::DiesBefore(files_, operation, [&] { gate_.Guard(command); });
    }

    void ExpectNothingMoved() {
        EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml", "b.tif", "b.xml"}));
        EXPECT_TRUE(review_.HasForm());
        EXPECT_EQ(list_.lines.size(), 2U);
        EXPECT_FALSE(files_.FileExists(Note()));
    }
};

TEST_F(DecisionsTest, NothingMovesUnlessBothCan) {
    OpenA();
    Okay();
    for (const char* name : {"a.tif", "a.xml"}) {
        WriteText(folders_.ProcessFinal + name, "there before");
        Accept();
        EXPECT_EQ(Messages(), Names{"Cannot move " + folders_.ProcessOut + name +
                                    ": there is already a file " + folders_.ProcessFinal + name});
        ExpectNothingMoved();
        EXPECT_EQ(In(folders_.ProcessFinal), Names{name});
        EXPECT_EQ(ReadText(folders_.ProcessFinal + name), "there before");
        files_.Delete(folders_.ProcessFinal + name);
    }
    for (const char* name : {"ProcessOut/a.tif", "ProcessOut/a.xml"}) {
        Refuse("move", name);
        Reject();
        EXPECT_PRED2(test::Has, Messages().at(0), name);
        ExpectNothingMoved();
        EXPECT_EQ(In(folders_.ProcessReject), Names());
    }
    files_.refuse = nullptr;
    EXPECT_EQ(LastLogLine(), "Reviewed & Saved [a]");
    files_.Move(folders_.ProcessOut + "a.xml", work_.File("aside"));
    Accept();
    EXPECT_EQ(Messages(), Names{"Cannot move " + folders_.ProcessOut + "a.xml: the file is gone"});
    Flip(1);
    person_.answers = {Answer::Yes};
    Accept();
    EXPECT_EQ(Messages(), Names{"Cannot save " + folders_.ProcessOut + "a.xml: the file is gone"});
    files_.Move(work_.File("aside"), folders_.ProcessOut + "a.xml");
    person_.answers = {Answer::No};
    Accept();
    EXPECT_EQ(In(folders_.ProcessFinal), kPair);
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 1");
}

TEST_F(DecisionsTest, ASaveThatFailsChangesNothing) {
    OpenA();
    Flip(2);
    const std::string before = Result("a.xml");
    Refuse("write", "a.xml");
    person_.answers = {Answer::Yes};
    Open(1);
    EXPECT_EQ(transcript_.LinesOf("select: "), Names{"a 100"}) << "it is still the open one";
    Okay();
    EXPECT_PRED2(test::Has, Messages().at(0), "ProcessOut/a.xml");
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 2");
    person_.answers = {Answer::Yes};
    Open(1);  // the prompt's save fails as well, and the marks stay
    EXPECT_EQ(review_.OpenLine(), 0U);
    EXPECT_EQ(Result("a.xml"), before);
    files_.refuse = nullptr;
    Okay();
    EXPECT_EQ(list_.lines[0], "+ a 100");
    EXPECT_TRUE(ResultHas("a.xml", "Q2\" Shift=\"0,0\" Checked=\"1\""));
}

TEST_F(DecisionsTest, AKillBetweenAnyTwoFileOperationsPartsNoForm) {
    OpenA();
    Flip(1);
    const std::string image = ReadText(folders_.ProcessOut + "a.tif");
    for (const bool accept : {true, false}) {
        const std::string& destination = accept ? folders_.ProcessFinal : folders_.ProcessReject;
        int kills = 0;
        for (bool killed = true; killed; kills += killed ? 1 : 0) {
            SCOPED_TRACE(kills);
            person_.answers = {Answer::Yes, Answer::Yes};  // also to what a killed one has written
            killed = DiesBefore(kills, [this, accept] { accept ? Accept() : Reject(); });

            review::ReviewSession next(context_, settings_, folders_, profiles_);
            Do([&next] { next.SettleInterrupted(); });
            const bool moved = files_.FileExists(destination + "a.tif");
            EXPECT_TRUE(moved || killed);
            EXPECT_EQ(In(destination), moved ? kPair : Names());
            EXPECT_EQ(In(folders_.ProcessOut),
                      moved ? Names({"b.tif", "b.xml"}) : Names({"a.tif", "a.xml", "b.tif", "b.xml"}));
            EXPECT_EQ(ReadText((moved ? destination : folders_.ProcessOut) + "a.tif"), image);
            EXPECT_EQ(LastLogLine() == (accept ? "Form [a] accepted." : "Form [a] rejected."), moved);
            EXPECT_FALSE(files_.FileExists(Note()));

            for (const std::string& name : In(destination))
                files_.Move(destination + name, folders_.ProcessOut + name);
            log_.LogProcessEvent("next");
        }
        // The note, both moves, the log line and the end of the note; before accepting, the save and its
        // two lines.
        EXPECT_EQ(kills, accept ? 8 : 5);
    }
}

TEST_F(DecisionsTest, ADecisionIsTakenBackWholeOrNotAtAll) {
    OpenA();
    Okay();
    const std::string document = Result("a.xml");
    const auto undo = [this] { Take(test::Command::UndoDecision, [this] { review_.UndoDecision(); }); };
    Accept();
    undo();
    EXPECT_EQ(LastLogLine(), "Form [a] brought back, no longer accepted.");
    EXPECT_EQ(Result("a.xml"), document);
    EXPECT_EQ(list_.lines, (Names{"+ a 100", "b 100"}));
    EXPECT_EQ(review_.OpenLine(), 0U);
    EXPECT_FALSE(review_.HasDecided());

    for (bool killed = true; const int kills : {0, 1, 2, 3, 4, 5, 6}) {
        SCOPED_TRACE(kills);
        EXPECT_TRUE(killed || kills > 5);
        Reject();
        killed = DiesBefore(kills, [this] { review_.UndoDecision(); });
        review::ReviewSession next(context_, settings_, folders_, profiles_);
        Do([&next] { next.SettleInterrupted(); });
        const bool isBack = files_.FileExists(folders_.ProcessOut + "a.tif");
        EXPECT_EQ(In(folders_.ProcessReject), isBack ? Names() : kPair);
        EXPECT_EQ(files_.FileExists(folders_.ProcessOut + "a.xml"), isBack);
        EXPECT_FALSE(files_.FileExists(Note()));
        for (const std::string& name : In(folders_.ProcessReject))
            files_.Move(folders_.ProcessReject + name, folders_.ProcessOut + name);
        Do([this] { review_.RunEnds(); });
        Open(0);
    }
    Reject();
    WriteText(folders_.ProcessOut + "a.tif", "a newer scan");
    undo();
    EXPECT_PRED2(test::Has, Messages().at(0), "there is already a file " + folders_.ProcessOut + "a.tif");
    WriteText(folders_.ProcessReject + "a.xml", "changed");
    undo();
    EXPECT_EQ(Messages(),
              Names{"Form [a] stays in " + folders_.ProcessReject + ": it was changed there or is gone"});
    EXPECT_EQ(In(folders_.ProcessReject), kPair);
}

// What a cut move leaves is taken back. A note that could not be deleted tells of an older move: a scan of
// the same name that was processed since is left alone.
TEST_F(DecisionsTest, TheNextListingTakesBackWhatIsHalfDone) {
    OpenA();
    const std::string image = ReadText(folders_.ProcessOut + "a.tif");
    const std::string document = Result("a.xml");
    struct {
        const char *imageHere, *documentHere, *imageThere, *documentThere;
        Names there;
    } const rows[] = {{"A", "D", "A", "", {}},     {"", "D", "A", "", {}},
                      {"", "D", "A", "D", {}},     {"", "", "A", "D", kPair},
                      {"A", "D", "A", "D", kPair}, {"A", "D", "other", "D", kPair},
                      {"A", "", "A", "D", kPair},  {"", "D", "", "", {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.imageHere) + "," + row.documentHere + "," + row.imageThere);
        const auto put = [](const std::string& path, const std::string& content) {
            content.empty() ? static_cast<void>(std::filesystem::remove(path)) : WriteText(path, content);
        };
        put(folders_.ProcessOut + "a.tif", row.imageHere);
        put(folders_.ProcessOut + "a.xml", row.documentHere);
        put(folders_.ProcessReject + "a.tif", row.imageThere);
        put(folders_.ProcessReject + "a.xml", row.documentThere);
        WriteText(Note(), "<Decision Kind=\"reject\" Image=\"a.tif\" Document=\"a.xml\"/>");
        log_.LogProcessEvent("next");
        Do([this] { review_.SettleInterrupted(); });
        EXPECT_EQ(In(folders_.ProcessReject), row.there);
        Names here = {"b.tif", "b.xml"};
        if (row.there.empty() || *row.documentHere != 0)
            here.insert(here.begin(), "a.xml");
        const bool isAway = *row.imageHere == 0 && *row.imageThere == 0;
        if (!isAway && (row.there.empty() || *row.imageHere != 0))
            here.insert(here.begin(), "a.tif");
        EXPECT_EQ(In(folders_.ProcessOut), here);
        EXPECT_EQ(LastLogLine() == "Form [a] rejected.", here.size() == 2);
        EXPECT_EQ(files_.FileExists(Note()), isAway) << "the image may come back with its folder";
    }
    std::filesystem::rename(folders_.ProcessReject, work_.File("away"));
    Do([this] { review_.SettleInterrupted(); });
    EXPECT_PRED2(test::Has, Messages().at(0), "Form [a] lies half in " + folders_.ProcessReject);
    std::filesystem::rename(work_.File("away"), folders_.ProcessReject);

    // Notes that lead elsewhere, or are none, move nothing.
    for (const char* bad :
         {"<Decision Kind=\"accept\" Image=\"../b.tif\" Document=\"b.xml\"/>", "<Deci", ""}) {
        WriteText(Note(), bad);
        Do([this] { review_.RunEnds(); });
        EXPECT_FALSE(files_.FileExists(Note()));
        EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.xml", "b.tif", "b.xml"}));
    }
}

TEST_F(DecisionsTest, AMoveThatCannotBeTakenBackYetIsTakenBackLater) {
    OpenA();
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "move" && (path.ends_with("a.xml") || path.ends_with("Final/a.tif"));
    };
    Accept();
    EXPECT_PRED2(test::Has, Messages().at(0), "What was moved before lies in " + folders_.ProcessFinal);
    EXPECT_EQ(list_.lines.size(), 2U);
    Reject();
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_TRUE(review_.HasForm());
    files_.refuse = nullptr;
    Do([this] { review_.RunBegins(); });
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml", "b.tif", "b.xml"}));
    Open(0);
    Reject();
    EXPECT_EQ(In(folders_.ProcessFinal), Names());
    EXPECT_EQ(In(folders_.ProcessReject), kPair);
    EXPECT_EQ(LastLogLine(), "Form [a] rejected.");
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 1");
}

TEST_F(DecisionsTest, ALogThatCannotBeWrittenHoldsNoDecisionUp) {
    OpenA();
    Refuse("append", "");
    Okay();
    EXPECT_EQ(person_.PanelText(Panel::Message), "The log in the working folder could not be written.");
    Accept();
    EXPECT_EQ(Messages(), Names());
    EXPECT_EQ(In(folders_.ProcessFinal), kPair);
    EXPECT_EQ(list_.lines, Names{"b 100"});
}

}  // namespace
}  // namespace tavrene
