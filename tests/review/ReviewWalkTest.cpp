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

class ReviewWalkTest : public test::ReviewWorld {
  protected:
    void SetUp() override {
        AddScan("a.tif", {.checked = {1}});
        AddScan("b.tif", {.checked = {2, 3}, .dx = 2, .dy = -1});
        AddScan("c.tif");
    }
};

TEST_F(ReviewWalkTest, CorrectsAndDecidesFormByForm) {
    ProcessAndReview();
    EXPECT_EQ(list_.lines, (Names{"a 100", "b 100", "c 100"}));
    EXPECT_EQ(list_.offered, Names{"Form"});
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 3");
    EXPECT_FALSE(review_.HasForm());

    Open(1);
    EXPECT_EQ(transcript_.Joined(),
              "select: b 100 | rects: clear | rows: clear | panel Message:  | panel ElapsedTime:  | "
              "view: picture 600x500 | rects: clear | rows: clear Val Ink | row: 1 Q1|0 | ink: 1 0.0% | "
              "rect: 1 62,71 24x24 unchecked | row: 2 Q2|1 | ink: 2 54.6% | rect: 2 116,71 24x24 checked | "
              "row: 3 Q3|1 | ink: 3 54.6% | rect: 3 62,125 24x24 checked | row: 4 Q4|0 | ink: 4 0.0% | "
              "rect: 4 116,125 24x24 unchecked | choice: Form | "
              "panel Message: Image [b.tif], Profile [Form] | panel ElapsedTime: OMRs:4");

    Flip(2);
    Flip(4);
    EXPECT_EQ(transcript_.Lines(),
              (Names{"look at: 4", "row: 4 Q4|1", "ink: 4 0.0%", "rect: 4 116,125 24x24 checked",
                     "panel ElapsedTime: Checked:2 of 4"}));
    Okay();
    EXPECT_EQ(transcript_.Lines(), Names{"panel File: Reviewed: 1 of 3"});
    EXPECT_EQ(list_.lines, (Names{"a 100", "+ b 100", "c 100"}));
    const std::string saved =
        "<?xml version=\"1.0\"?>\n"
        "<Tavrene Profile=\"Form\" Image=\"b.tif\" Reviewed=\"1\" Confidence=\"100\">\n"
        "\t<OMRs Count=\"4\">\n"
        "\t\t<OMR Name=\"Q1\" Shift=\"2,-1\" Checked=\"0\" />\n"
        "\t\t<OMR Name=\"Q2\" Shift=\"2,-1\" Checked=\"0\" />\n"
        "\t\t<OMR Name=\"Q3\" Shift=\"2,-1\" Checked=\"1\" />\n"
        "\t\t<OMR Name=\"Q4\" Shift=\"2,-1\" Checked=\"1\" />\n"
        "\t</OMRs>\n"
        "</Tavrene>\n";
    EXPECT_EQ(Result("b.xml"), saved);
    Okay();  // the second save does not count the form again
    EXPECT_EQ(transcript_.Lines(), Names{"panel File: Reviewed: 1 of 3"});

    Accept();
    EXPECT_EQ(transcript_.Lines(),
              (Names{"view: clear", "rows: clear", "choice: ", "panel Message: ", "panel ElapsedTime: ",
                     "select: c 100", "panel File: Reviewed: 0 of 2"}));
    EXPECT_EQ(ReadText(folders_.ProcessFinal + "b.xml"), saved);
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"b.tif", "b.xml"}));
    EXPECT_FALSE(review_.HasForm());

    OpenNeighbour(1, 1);
    EXPECT_EQ(review_.OpenLine(), 1U) << "the selected form is the next one";
    Reject();  // never saved: no counter falls
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 1");
    EXPECT_EQ(transcript_.LinesOf("select: "), Names{"a 100"});
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"c.tif", "c.xml"}));
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml"}));
    Accept();  // no form is open
    Reject();
    Okay();
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml"}));
    Names log = ProcessLog();
    log.erase(log.begin(), log.end() - 4);
    EXPECT_EQ(log, (Names{"Reviewed & Saved [b]", "Reviewed & Saved [b]", "Form [b] accepted.",
                          "Form [c] rejected."}));

    Toggle();
    EXPECT_EQ(transcript_.Joined(),
              "panel File: Profiles:1, Active:1 | panel Message:  | panel ElapsedTime:  | view: clear | "
              "rows: clear | choice: ");
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

TEST_F(ReviewWalkTest, AFormOfADeletedProfileCanGoBack) {
    Process();
    files_.Delete(folders_.Profiles + "Form.Tvp");
    AddProfile("Other", TestForm::Grid(1, 2));
    EnterReview();
    person_.answers = {Answer::No, Answer::Yes};
    const std::string question =
        "The profile Form no longer exists. Re-evaluate?\nSelecting Yes will move the image to ProcessIn "
        "Dir...";
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("ask: "), Names{question});
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "a.xml"));
    EXPECT_FALSE(review_.HasForm());
    WriteText(folders_.ProcessIn + "a.tif", "a waiting file of that name");
    Open(0);
    EXPECT_FALSE(review_.HasForm());
    EXPECT_EQ(In(folders_.ProcessIn), Names{"a.tif"});
    EXPECT_NE(ReadText(folders_.ProcessIn + "a.tif"), "a waiting file of that name");
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"b.tif", "b.xml", "c.tif", "c.xml"}));
    EXPECT_EQ(LastLogLine(), "Image [a.tif] replaces the waiting file " + folders_.ProcessIn + "a.tif");
    EXPECT_EQ(list_.lines, (Names{"b 100", "c 100"}));
}

TEST_F(ReviewWalkTest, AChangedProfileAsksWhatToDo) {
    ProcessAndReview();
    Open(1);
    Okay();
    form_.boxes[1].Name = "Renamed";
    form_.boxes.push_back({"Q5", 168, 70, 192, 94});
    AddProfile("Form", form_);
    LoadProfiles();
    const std::string before = Result("b.xml");

    person_.answers = {Answer::Cancel, Answer::No};
    Open(1);
    EXPECT_EQ(
        transcript_.LinesOf("ask: "),
        (Names{"The profile has changed. Re-evaluate using the new profile?\nSelecting No would keep the "
               "same profile but skip the modified fields."}));
    EXPECT_FALSE(review_.HasForm());
    EXPECT_EQ(transcript_.Lines().back(), "choice: ");
    EXPECT_EQ(Result("b.xml"), before);

    Open(1);
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Q1|0", "2 Q2|1", "3 Q3|1", "4 Q4|0"}));
    EXPECT_EQ(transcript_.LinesOf("rect: "),
              (Names{"1 62,71 24x24 unchecked", "3 62,125 24x24 checked", "4 116,125 24x24 unchecked",
                     "5 116,71 24x24 skipped", "6 170,71 24x24 skipped"}));
    EXPECT_EQ(transcript_.LinesOf("ink: "), (Names{"1 0.0%", "2 ", "3 54.6%", "4 0.0%"}));
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "Checked:2 of 5 Skip:2");
    Flip(5);  // a skipped box has no mark
    Flip(1);
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "Checked:3 of 4");
    EXPECT_EQ(person_.answers.size(), 0U);

    // Re-evaluated with the shifts of the document; what was reviewed before counts no longer.
    person_.answers = {Answer::No, Answer::Yes};
    Open(1);
    EXPECT_TRUE(ResultHas("b.xml", "Reviewed=\"0\" Confidence=\"100\">\n\t<OMRs Count=\"5\">"));
    EXPECT_TRUE(ResultHas("b.xml", "Name=\"Renamed\" Shift=\"2,-1\" Checked=\"1\" />"));
    EXPECT_TRUE(ResultHas("b.xml", "Name=\"Q5\" Shift=\"2,-1\" Checked=\"0\" />"));
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:5");
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 3");
    EXPECT_EQ(list_.lines[1], "b 100");
    Okay();
    EXPECT_TRUE(ResultHas("b.xml", "Shift=\"2,-1\""));
}

TEST_F(ReviewWalkTest, AFormCanBeReadAgainstAnotherProfile) {
    TestForm other = form_;
    other.boxes.erase(other.boxes.begin());
    other.boxes[0].Name = "Only here";
    WriteText(folders_.Profiles + "Other.Tvp", other.ProfileText("Other", false));
    ProcessAndReview();
    TestForm strange = form_;
    for (profiles::OmrBox& box : strange.boxes)
        box.Name = "Strange " + box.Name;
    AddProfile("Strange", strange);
    LoadProfiles();
    Open(1);
    const std::string opened = Result("b.xml");
    Choose("Strange");
    EXPECT_TRUE(ResultHas("b.xml", "Strange Q1\" Shift=\"0,0\""));
    Choose("Form");
    EXPECT_EQ(Result("b.xml"), opened) << "the way back finds the shifts again";
    Flip(1);
    Choose("Form");
    Choose("Nobody");
    EXPECT_EQ(transcript_.Lines(), Names{"choice: Form"});
    Choose("Other");
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Only here|1", "2 Q3|1", "3 Q4|0"}));
    EXPECT_EQ(person_.PanelText(Panel::Message), "b.tif [Other]");
    EXPECT_TRUE(ResultHas("b.xml", "Profile=\"Other\" Image=\"b.tif\" Reviewed=\"0\""));
    EXPECT_TRUE(ResultHas("b.xml", "Name=\"Only here\" Shift=\"2,-1\" Checked=\"1\""));
    Flip(3);
    Okay();
    const std::string withoutShifts =
        "<?xml version=\"1.0\"?>\n"
        "<Tavrene Profile=\"Other\" Image=\"b.tif\" Reviewed=\"1\" Confidence=\"100\">\n"
        "\t<OMRs Count=\"3\">\n"
        "\t\t<OMR Name=\"Only here\" Checked=\"1\" />\n"
        "\t\t<OMR Name=\"Q3\" Checked=\"1\" />\n"
        "\t\t<OMR Name=\"Q4\" Checked=\"1\" />\n"
        "\t</OMRs>\n"
        "</Tavrene>\n";
    EXPECT_EQ(Result("b.xml"), withoutShifts);
    Okay();  // now the profile is the saved one
    EXPECT_EQ(Result("b.xml"), withoutShifts);
    Open(1);
    EXPECT_EQ(transcript_.LinesOf("rect: ")[0], "1 114,70 24x24 checked");
    EXPECT_EQ(person_.PanelText(Panel::Message), "Image [b.tif], Profile [Other]");
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 1 of 3");

    // What cannot be read leaves the form as it is.
    other.boxes[0].R = static_cast<std::int16_t>(other.boxes[0].L + 1);
    AddProfile("Other", other);
    LoadProfiles();
    Choose("Form");
    Choose("Other");
    EXPECT_EQ(Messages(), Names{"the box Only here has no area that could be read"});
    EXPECT_EQ(transcript_.LinesOf("choice: "), Names{"Form"});
    EXPECT_TRUE(ResultHas("b.xml", "Profile=\"Form\""));
}

TEST_F(ReviewWalkTest, DoubtfulBoxesStandOut) {
    TestForm::Filling filling{.checked = {1}};
    samples::Canvas page = form_.Paint(filling);
    page.FillRect(form_.boxes[1].L + 6, form_.boxes[1].T + 6, 8, 6);  // 48 of 529 cells: 9.1 %
    page.FillRect(form_.boxes[3].L + 6, form_.boxes[3].T + 6, 8, 4);  // 32 of 529 cells: 6.0 %
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Png, folders_.ProcessIn + "d.png");
    ProcessAndReview();
    Open(3);
    EXPECT_TRUE(files_.FileExists(folders_.Temp + "temp.tif"));
    Refuse("write", "temp.tif");
    Open(3);
    EXPECT_EQ(transcript_.LinesOf("view: "), Names{"picture 600x500"});
    EXPECT_EQ(transcript_.LinesOf("ink: "), (Names{"1 54.6%", "2 9.1% ?", "3 0.0%", "4 6.0% ?"}));
    for (const auto& [from, next] : {std::pair{0, "2"}, {2, "4"}, {4, "2"}}) {
        Do([this, from = from] { review_.NextDoubtful(from); });
        EXPECT_EQ(transcript_.Lines(),
                  (Names{std::string("select row: ") + next, std::string("look at: ") + next}));
    }
    Open(2);
    Do([this] { review_.NextDoubtful(0); });
    EXPECT_EQ(transcript_.Lines(), Names{"panel Message: No box of this form is in doubt."});
}

}  // namespace
}  // namespace tavrene
