#include "ReviewWorld.h"
#include "painter/ImageFiles.h"

namespace tavrene {
namespace {

using app::Answer;
using app::Panel;
using test::Names;
using test::ReadText;
using test::TestForm;
using test::WriteText;

using ReviewWalkTest = test::ThreeForms;

TEST_F(ReviewWalkTest, CorrectsAndDecidesFormByForm) {
    ProcessAndReview();
    EXPECT_EQ(list_.lines, (Names{"a 100", "b 100", "c 100"}));
    EXPECT_EQ(list_.offered, Names{"Form"});
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 3");
    EXPECT_FALSE(review_.HasForm());

    Open(1);
    EXPECT_EQ(transcript_.LinesOf("view: "), Names{"picture 600x500"});
    EXPECT_EQ(transcript_.LinesOf("rows: ").back(), "clear Val Ink");
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Q1|0", "2 Q2|1", "3 Q3|1", "4 Q4|0"}));
    EXPECT_EQ(transcript_.LinesOf("ink: "), (Names{"1 0.0%", "2 54.6%", "3 54.6%", "4 0.0%"}));
    EXPECT_EQ(transcript_.LinesOf("rect: "), (Names{"1 62,71 24x24 unchecked", "2 116,71 24x24 checked",
                                                    "3 62,125 24x24 checked", "4 116,125 24x24 unchecked"}));
    EXPECT_EQ(transcript_.LinesOf("choice: "), Names{"Form"});
    EXPECT_EQ(person_.PanelText(Panel::Message), "Image [b.tif], Profile [Form]");
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:4");

    const std::string before = Result("b.xml");
    Flip(2);
    Flip(4);
    EXPECT_EQ(transcript_.Lines(),
              (Names{"look at: 4", "row: 4 Q4|1", "ink: 4 0.0%", "rect: 4 116,125 24x24 checked",
                     "panel ElapsedTime: Checked:2 of 4"}));
    for (int saves = 0; saves < 2; ++saves) {
        Okay();
        EXPECT_EQ(transcript_.Lines(),
                  (Names{"panel Message: Saved Form: b", "panel File: Reviewed: 1 of 3"}))
            << "a form counts once";
    }
    EXPECT_EQ(list_.lines, (Names{"a 100", "+ b 100", "c 100"}));
    std::string saved = before;
    for (const auto& [was, is] : {std::pair("Reviewed=\"0\"", "Reviewed=\"1\""),
                                  {"Q2\" Shift=\"2,-1\" Checked=\"1\"", "Q2\" Shift=\"2,-1\" Checked=\"0\""},
                                  {"Q4\" Shift=\"2,-1\" Checked=\"0\"", "Q4\" Shift=\"2,-1\" Checked=\"1\""}})
        saved.replace(saved.find(was), std::string(was).size(), is);
    EXPECT_EQ(Result("b.xml"), saved);

    Accept();
    EXPECT_EQ(transcript_.Lines(), (Names{"view: clear", "rows: clear", "choice: none",
                                          "panel Message: ", "panel ElapsedTime: ", "select: c 100",
                                          "panel File: Reviewed: 0 of 2"}));
    EXPECT_EQ(ReadText(folders_.ProcessFinal + "b.xml"), saved);
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"b.tif", "b.xml"}));
    EXPECT_FALSE(review_.HasForm());

    OpenNeighbour(1, 1);
    EXPECT_EQ(review_.OpenLine(), 1U) << "the selected form is the next one";
    Reject();  // never saved: no counter falls
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 1");
    EXPECT_EQ(transcript_.LinesOf("select: "), Names{"a 100"});
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"c.tif", "c.xml"}));
    Accept();  // no form is open
    Reject();
    Okay();
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml"}));
    const Names log = ProcessLog();
    EXPECT_EQ(Names(log.end() - 6, log.end()),
              (Names{"Form [b] box [Q2] from 1 to 0", "Form [b] box [Q4] from 0 to 1", "Reviewed & Saved [b]",
                     "Reviewed & Saved [b]", "Form [b] accepted.", "Form [c] rejected."}));

    Toggle();
    EXPECT_EQ(transcript_.Lines(), (Names{"panel File: Profiles:1, Active:1",
                                          "panel Message: ", "panel ElapsedTime: ", "view: clear",
                                          "rows: clear", "choice: none"}));
    EXPECT_FALSE(review_.IsOn());
}

TEST_F(ReviewWalkTest, UnsavedMarksAreAskedFor) {
    ProcessAndReview();
    Open(0);
    Flip(1);
    const std::string before = Result("a.xml");

    // Cancel: the form stays, whatever the command was.
    person_.answers = {Answer::Cancel, Answer::Cancel, Answer::Cancel};
    Open(1);
    EXPECT_EQ(transcript_.Lines(), (Names{"ask: Save changes to Form <a>?", "select: a 100"}));
    Accept();
    Toggle();
    EXPECT_TRUE(review_.IsOn());
    EXPECT_EQ(review_.OpenLine(), 0U);
    EXPECT_EQ(Result("a.xml"), before);

    // No: the marks are dropped.
    person_.answers = {Answer::No};
    OpenNeighbour({}, 1);
    EXPECT_EQ(review_.OpenLine(), 1U);
    EXPECT_EQ(Result("a.xml"), before);
    OpenNeighbour({}, -1);
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Q1|1", "2 Q2|0", "3 Q3|0", "4 Q4|0"}));

    // Yes: they are saved, and then the command goes on.
    Flip(1);
    person_.answers = {Answer::Yes};
    Accept();
    EXPECT_EQ(transcript_.LinesOf("panel File: "), (Names{"Reviewed: 1 of 3", "Reviewed: 0 of 2"}));
    EXPECT_PRED2(test::Has, ReadText(folders_.ProcessFinal + "a.xml"), "Q1\" Shift=\"0,0\" Checked=\"0\"");

    // Reject asks nothing.
    Open(0);
    Flip(1);
    Reject();
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"b.tif", "b.xml"}));
    EXPECT_PRED2(test::Has, ReadText(folders_.ProcessReject + "b.xml"), "Q1\" Shift=\"2,-1\" Checked=\"0\"");
}

TEST_F(ReviewWalkTest, WhatSomebodyElseWroteIsOverwrittenOnlyAfterAQuestion) {
    AddProfile("Other", TestForm::Grid(1, 2));
    ProcessAndReview();
    Open(0);
    Flip(1);
    const std::string theirs = Result("a.xml") + "<!-- theirs -->";
    WriteText(folders_.ProcessOut + "a.xml", theirs);
    person_.answers = {Answer::No, Answer::No, Answer::Yes, Answer::No};
    Okay();
    EXPECT_EQ(transcript_.LinesOf("ask: "),
              Names{"The document " + folders_.ProcessOut +
                    "a.xml was changed by somebody else after it was opened here. Write over it?"});
    EXPECT_EQ(person_.lastPreset, Answer::No);
    Choose("Other");
    Open(1);
    EXPECT_EQ(review_.OpenLine(), 0U) << "Yes at the prompt, No at the question: it is not left";
    EXPECT_EQ(Result("a.xml"), theirs);
    person_.answers = {Answer::Yes};
    Okay();
    EXPECT_TRUE(ResultHas("a.xml", "Reviewed=\"1\""));
    Okay();
    EXPECT_TRUE(transcript_.LinesOf("ask: ").empty());
}

TEST_F(ReviewWalkTest, TheListFollowsTheFolder) {
    ProcessAndReview();
    Open(1);
    const std::string document = Result("a.xml");
    const auto follow = [this] { Do([this] { review_.FollowFolder(); }); };
    follow();
    EXPECT_TRUE(transcript_.Lines().empty());
    files_.Delete(folders_.ProcessOut + "a.xml");
    files_.Delete(folders_.ProcessOut + "c.tif");
    for (const char* name : {"aa", "d"}) {
        std::string text = document;
        text.replace(text.find("a.tif"), 5, std::string(name) + ".tif");
        WriteText(folders_.ProcessOut + name + ".xml", text);
    }
    files_.Move(folders_.ProcessOut + "a.tif", folders_.ProcessOut + "aa.tif");
    follow();
    EXPECT_EQ(list_.lines, (Names{"aa 100", "b 100"}));
    EXPECT_EQ(review_.OpenLine(), 1U);
    EXPECT_TRUE(transcript_.LinesOf("select: ").empty());
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 2");
    const std::size_t logged = ProcessLog().size();
    WriteText(folders_.ProcessOut + "c.tif", "there again");
    WriteText(folders_.ProcessOut + "d.tif", "late");
    follow();
    EXPECT_EQ(list_.lines, (Names{"aa 100", "b 100", "c 100", "d 100"}));
    EXPECT_EQ(ProcessLog().size(), logged);
    files_.Delete(folders_.ProcessOut + "b.xml");
    follow();
    EXPECT_EQ(list_.lines, (Names{"aa 100", "c 100", "d 100"}));
    Okay();
    EXPECT_EQ(Messages(), Names{"Cannot save " + folders_.ProcessOut + "b.xml: the file is gone"});
}

TEST_F(ReviewWalkTest, DoubtfulBoxesStandOut) {
    TestForm::Filling filling{.checked = {1}};
    samples::Canvas page = form_.Paint(filling);
    page.FillRect(form_.boxes[1].L + 6, form_.boxes[1].T + 6, 8, 7);   // 56 of 529 cells: 10.6 %
    page.FillRect(form_.boxes[2].L + 6, form_.boxes[2].T + 6, 8, 4);   // 32 of 529 cells: 6.0 %
    page.FillRect(form_.boxes[3].L + 6, form_.boxes[3].T + 6, 10, 6);  // 11.3 %: a third off is no doubt
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Png, folders_.ProcessIn + "d.png");
    ProcessAndReview();
    Open(3);
    EXPECT_TRUE(files_.FileExists(folders_.Temp + "temp.tif"));
    Refuse("write", "temp.tif");
    Open(3);
    EXPECT_EQ(transcript_.LinesOf("view: "), Names{"picture 600x500"});
    EXPECT_EQ(transcript_.LinesOf("ink: "), (Names{"1 54.6%", "2 10.6% ?", "3 6.0% ?", "4 11.3%"}));
    for (const auto& [from, next] : {std::pair{0, "2"}, {1, "2"}, {2, "3"}, {3, "2"}, {4, "2"}}) {
        Do([this, from = from] { review_.NextDoubt(from); });
        EXPECT_EQ(transcript_.Lines(),
                  (Names{std::string("select row: ") + next, std::string("look at: ") + next}));
    }
    Open(2);
    Do([this] { review_.NextDoubt(0); });
    EXPECT_EQ(review_.Form()->Document, "d.xml") << "the next form that has any";
    EXPECT_EQ(transcript_.LinesOf("look at: "), Names{"2"});
    Okay();
    Open(2);
    Do([this] { review_.NextDoubt(0); });
    EXPECT_EQ(transcript_.Lines(), Names{"panel Message: No form of the list has a box in doubt."});
}

}  // namespace
}  // namespace tavrene
