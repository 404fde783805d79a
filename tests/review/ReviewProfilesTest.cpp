#include "ReviewWorld.h"
#include "review/BoxMatching.h"

namespace tavrene {
namespace {

using app::Answer;
using app::Panel;
using test::Names;
using test::ReadText;
using test::TestForm;
using test::WriteText;

// The profile of a form has changed, has gone, or is another one.
using ReviewProfilesTest = test::ThreeForms;

TEST_F(ReviewProfilesTest, AFormOfADeletedProfileCanBeDecidedAbout) {
    Process();
    files_.Delete(folders_.Profiles + "Form.Tvp");
    AddProfile("Other", TestForm::Grid(1, 2));
    EnterReview();
    person_.answers = {Answer::No};
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("ask: "),
              Names{"The profile Form no longer exists. Re-evaluate?\nSelecting Yes will move the image to "
                    "ProcessIn Dir..."});
    EXPECT_EQ(transcript_.LinesOf("view: ").size(), 1U);
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Q1|1", "2 Q2|0", "3 Q3|0", "4 Q4|0"}));
    EXPECT_TRUE(screen_.rects.empty()) << "where the boxes lie nobody knows";
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:4");
    EXPECT_EQ(transcript_.LinesOf("choice: "), Names{"Form"});
    Flip(2);
    Okay();
    EXPECT_TRUE(ResultHas("a.xml", "Profile=\"Form\" Image=\"a.tif\" Reviewed=\"1\""));
    EXPECT_TRUE(ResultHas("a.xml", "Q2\" Shift=\"0,0\" Checked=\"1\""));
    Choose("Other");
    EXPECT_TRUE(ResultHas("a.xml", "Profile=\"Other\" Image=\"a.tif\" Reviewed=\"0\""));
    EXPECT_EQ(screen_.rects.size(), 2U);
    Reject();
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"a.tif", "a.xml"}));
}

TEST_F(ReviewProfilesTest, AFormWithoutAProfileNameCanBeGivenOne) {
    Process();
    WriteText(folders_.ProcessOut + "a.xml",
              app::ReplaceFirst(ReadText(folders_.ProcessOut + "a.xml"), "\"Form\"", "\"\""));
    EnterReview();
    person_.answers = {Answer::No};
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("choice: "), Names{""}) << "it is offered";
    Choose("Form");
    EXPECT_TRUE(ResultHas("a.xml", "Profile=\"Form\" Image=\"a.tif\""));
}

TEST_F(ReviewProfilesTest, AFormOfADeletedProfileCanGoBack) {
    Process();
    files_.Delete(folders_.Profiles + "Form.Tvp");
    EnterReview();
    person_.answers = {Answer::Yes, Answer::Yes};
    Open(1);
    EXPECT_EQ(person_.lastPreset, Answer::No);
    EXPECT_EQ(LastLogLine(), "Image [b.tif] sent back to " + folders_.ProcessIn);
    EXPECT_EQ(review_.Neighbour(1, 1), 1U) << "the next form is the one that moved up";
    WriteText(folders_.ProcessIn + "a.tif", "a waiting file of that name");
    Open(0);
    EXPECT_FALSE(review_.HasForm());
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"a.tif", "b.tif"}));
    EXPECT_NE(ReadText(folders_.ProcessIn + "a.tif"), "a waiting file of that name");
    EXPECT_EQ(LastLogLine(), "Image [a.tif] sent back to " + folders_.ProcessIn +
                                 " in place of the waiting file of that name");
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"c.tif", "c.xml"}));
    EXPECT_EQ(list_.lines, Names{"c 100"});
}

TEST_F(ReviewProfilesTest, GoingOnOnlySelectsAFormThatWouldAskOrIsDamaged) {
    ProcessAndReview();
    Open(0);
    const std::string document = Result("b.xml");
    for (const std::string& other :
         {ReadText(folders_.ProcessOut + "b.xml").replace(document.find("Form"), 4, "Gone"),
          std::string("no document")}) {
        WriteText(folders_.ProcessOut + "b.xml", other);
        Do([this] { EXPECT_FALSE(review_.GoOn()); });
        EXPECT_EQ(transcript_.Lines(), Names{"select: b 100"});
        EXPECT_EQ(review_.OpenLine(), 0U);
    }
}

TEST_F(ReviewProfilesTest, NoPutsTheDocumentBackThatAnotherProfileReplaced) {
    AddProfile("Other", TestForm::Grid(1, 2));
    AddProfile("Third", TestForm::Grid(2, 1));
    ProcessAndReview();
    Open(1);
    Okay();
    WriteText(folders_.ProcessOut + "b.xml", Result("b.xml") + "<!-- by hand -->");
    const std::string before = Result("b.xml");
    Open(1);
    Choose("Other");
    Choose("Third");
    EXPECT_TRUE(ResultHas("b.xml", "Profile=\"Third\" Image=\"b.tif\" Reviewed=\"0\""));
    person_.answers = {Answer::Cancel, Answer::No};
    Open(2);
    EXPECT_TRUE(ResultHas("b.xml", "Profile=\"Third\""));
    Open(2);
    EXPECT_EQ(Result("b.xml"), before);
    EXPECT_EQ(list_.lines, (Names{"a 100", "+ b 100", "c 100"}));

    // What is saved stays.
    Open(1);
    Choose("Other");
    Okay();
    Flip(1);
    const std::string saved = Result("b.xml");
    person_.answers = {Answer::No};
    Open(2);
    EXPECT_EQ(Result("b.xml"), saved);
}

// Marks 1 to 4 with shifts of their own.
std::vector<recognition::ResultMark> MarksOf(const TestForm& form) {
    std::vector<recognition::ResultMark> marks;
    for (const profiles::OmrBox& box : form.boxes)
        marks.push_back(
            {box.Name, false, recognition::BoxShift{static_cast<std::int16_t>(marks.size() + 1), 7}});
    return marks;
}

TEST_F(ReviewProfilesTest, ShiftsAreTakenByNameThenPlaceThenOrderThenFromTheNearest) {
    const profiles::ProfileRecord old = form_.Record("Form");
    std::vector<recognition::ResultMark> marks = MarksOf(form_);
    const auto shifts = [&](const profiles::ProfileRecord& profile, const profiles::ProfileRecord& known) {
        std::string text;
        for (const recognition::BoxShift& shift : review::ShiftsOfBoxes(profile, known, marks))
            text += std::to_string(shift.dx);
        return text;
    };
    EXPECT_EQ(shifts(old, {}), "1234");
    profiles::ProfileRecord twins = old;
    twins.Boxes[1].Name = marks[1].Name = marks[0].Name;
    EXPECT_EQ(shifts(twins, {}), "1234") << "of equal names each its own";
    marks = MarksOf(form_);
    profiles::ProfileRecord other = old;
    std::swap(other.Boxes[0], other.Boxes[3]);
    EXPECT_EQ(shifts(other, old), "4231") << "by name, wherever it stands";
    for (profiles::PrintedBox& box : other.Boxes)
        box.Name += " renamed";
    EXPECT_EQ(shifts(other, old), "4231") << "by place";
    EXPECT_EQ(shifts(other, {}), "1234") << "by order";
    other.DPI_X = other.DPI_Y = 400;
    profiles::ProfileRecord coarse = old;
    coarse.DPI_X = coarse.DPI_Y = 200;
    for (profiles::PrintedBox& box : other.Boxes)
        for (std::int16_t* const side : {&box.L, &box.R, &box.lower, &box.upper})
            *side = static_cast<std::int16_t>(*side * 2);
    EXPECT_EQ(shifts(other, coarse), "4231") << "at another resolution";
    marks[0].Shift.reset();
    marks[1].Shift.reset();
    EXPECT_EQ(shifts(other, {}), "3434") << "from the nearest";
    other.Boxes.resize(2);
    EXPECT_EQ(shifts(other, {}), "33") << "any rather than none";
}

TEST_F(ReviewProfilesTest, LostShiftsAreSearchedAnewOnOpening) {
    ProcessAndReview();
    std::string document = Result("b.xml");
    for (std::size_t at = 0; (at = document.find(" Shift=\"2,-1\"", at)) != std::string::npos;)
        document.erase(at, 13);
    WriteText(folders_.ProcessOut + "b.xml", document);
    Open(1);
    EXPECT_EQ(transcript_.LinesOf("rect: ")[0], "1 62,71 24x24 unchecked");
    EXPECT_EQ(Result("b.xml"), document) << "looking at a form rewrites nothing";

    files_.Move(folders_.Profiles + "Form.Tvp", folders_.Profiles + "Heir.Tvp");
    LoadProfiles();
    person_.answers = {Answer::No};
    Open(1);
    Choose("Heir");
    EXPECT_TRUE(ResultHas("b.xml", "Q2\" Shift=\"2,-1\" Checked=\"1\"")) << "for its own profile has gone";
}

TEST_F(ReviewProfilesTest, AChangedProfileAsksWhatToDo) {
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
    EXPECT_EQ(transcript_.Lines().back(), "choice: none");
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

TEST_F(ReviewProfilesTest, AFormCanBeReadAgainstAnotherProfile) {
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
    EXPECT_TRUE(ResultHas("b.xml", "Strange Q1\" Shift=\"2,-1\""));
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
    const Names log = ProcessLog();
    EXPECT_EQ(Names(log.end() - 3, log.end() - 1),
              (Names{"Form [b] profile from [Form] to [Other]", "Form [b] box [Q4] from 0 to 1"}));
    const std::string saved = Result("b.xml");
    EXPECT_PRED2(test::Has, saved,
                 "<OMR Name=\"Only here\" Checked=\"1\" />\n\t\t<OMR Name=\"Q3\" Checked=\"1\" />\n\t\t"
                 "<OMR Name=\"Q4\" Checked=\"1\" />\n\t</OMRs>")
        << "without shifts";
    Okay();  // now the profile is the saved one
    EXPECT_EQ(Result("b.xml"), saved);
    Open(1);
    EXPECT_EQ(transcript_.LinesOf("rect: ")[0], "1 116,71 24x24 checked")
        << "the saved shifts are searched anew";
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

}  // namespace
}  // namespace tavrene
