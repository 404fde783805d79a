#include "ReviewWorld.h"

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

    void ExpectNothingMoved() {
        EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml", "b.tif", "b.xml"}));
        EXPECT_TRUE(review_.HasForm());
        EXPECT_EQ(list_.lines.size(), 2U);
        EXPECT_FALSE(files_.FileExists(folders_.ProcessOut + ".decision.xml"));
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
    files_.Move(work_.File("aside"), folders_.ProcessOut + "a.xml");
    Accept();
    EXPECT_EQ(In(folders_.ProcessFinal), kPair);
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 1");
}

TEST_F(DecisionsTest, ASaveThatFailsChangesNothing) {
    OpenA();
    Flip(2);
    const std::string before = Result("a.xml");
    Refuse("write", "a.xml");
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

// Everything from the n-th file operation on is refused, as if the program had been killed before it; then
// the program starts anew.
TEST_F(DecisionsTest, AKillBetweenAnyTwoFileOperationsPartsNoForm) {
    OpenA();
    const std::string image = ReadText(folders_.ProcessOut + "a.tif");
    for (const bool accept : {true, false}) {
        const std::string& destination = accept ? folders_.ProcessFinal : folders_.ProcessReject;
        bool killed = true;
        int kills = 0;
        for (int allowed = 0; killed; ++allowed) {
            SCOPED_TRACE(allowed);
            Flip(1);
            killed = false;
            int left = allowed;
            files_.refuse = [&left, &killed](const std::string& operation, const std::string&) {
                killed = killed || (operation != "read" && left-- == 0);
                return killed;
            };
            if (accept)
                person_.answers = {Answer::Yes};
            Do([this, accept] { accept ? review_.Accept() : review_.Reject(); });
            kills += killed ? 1 : 0;
            files_.refuse = nullptr;

            commands::ReviewCommands next(state_, doors_, [] {});
            Do([&next] { next.Load(); });
            const bool moved = files_.FileExists(destination + "a.tif");
            EXPECT_TRUE(moved || killed);
            EXPECT_EQ(In(destination), moved ? kPair : Names());
            EXPECT_EQ(In(folders_.ProcessOut),
                      moved ? Names({"b.tif", "b.xml"}) : Names({"a.tif", "a.xml", "b.tif", "b.xml"}));
            EXPECT_EQ(ReadText((moved ? destination : folders_.ProcessOut) + "a.tif"), image);
            EXPECT_FALSE(files_.FileExists(folders_.ProcessOut + ".decision.xml"));

            for (const std::string& name : In(destination))
                files_.Move(destination + name, folders_.ProcessOut + name);
            Do([this] { review_.CloseForm(); });
            Do([this] { review_.Refill(); });
            Open(0);
        }
        // The note, both moves, the end of the note and the log line; before accepting, the save as well.
        EXPECT_EQ(kills, accept ? 7 : 5);
    }
}

TEST_F(DecisionsTest, TheNextListingEndsWhatIsHalfDone) {
    OpenA();
    const std::string note = "<Decision Kind=\"reject\" Image=\"a.tif\" Document=\"a.xml\"/>";
    // Between two file systems a copy can be complete while its source is still there.
    WriteText(folders_.ProcessReject + "a.tif", ReadText(folders_.ProcessOut + "a.tif"));
    WriteText(folders_.ProcessOut + ".decision.xml", note);
    Do([this] { review_.CloseForm(); });
    Do([this] { review_.Refill(); });
    EXPECT_EQ(In(folders_.ProcessReject), kPair);
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"b.tif", "b.xml"}));
    EXPECT_EQ(LastLogLine(), "Form [a] rejected.");
    EXPECT_EQ(list_.lines, Names{"b 100"});

    // Notes that lead elsewhere, or are none, move nothing.
    for (const char* bad :
         {"<Decision Kind=\"accept\" Image=\"../b.tif\" Document=\"b.xml\"/>", "<Deci", ""}) {
        WriteText(folders_.ProcessOut + ".decision.xml", bad);
        Do([this] { review_.Refill(); });
        EXPECT_FALSE(files_.FileExists(folders_.ProcessOut + ".decision.xml"));
        EXPECT_EQ(In(folders_.ProcessOut), (Names{"b.tif", "b.xml"}));
    }
}

TEST_F(DecisionsTest, AMoveThatCannotBeTakenBackIsEndedLater) {
    OpenA();
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "move" && (path.ends_with("a.xml") || path.ends_with("Final/a.tif"));
    };
    Accept();
    EXPECT_PRED2(test::Has, Messages().at(0), "What was moved before lies in " + folders_.ProcessFinal);
    EXPECT_EQ(list_.lines.size(), 2U);
    files_.refuse = nullptr;
    Open(1);
    Accept();
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"a.tif", "a.xml", "b.tif", "b.xml"}));
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 0");
}

}  // namespace
}  // namespace tavrene
