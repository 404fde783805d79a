#include "ReviewWorld.h"

namespace tavrene {
namespace {

using app::Answer;
using app::Panel;
using test::Names;
using test::WriteText;

class BadFormsTest : public test::ReviewWorld {
  protected:
    void Document(const std::string& name, const std::string& text) {
        WriteText(folders_.ProcessOut + name, text);
    }

    // Log lines since `first`.
    Names LogFrom(std::size_t first) const {
        const Names lines = ProcessLog();
        return {lines.begin() + static_cast<std::ptrdiff_t>(std::min(first, lines.size())), lines.end()};
    }
};

TEST_F(BadFormsTest, DamagedDocumentsAreLoggedAndLeftOut) {
    AddScan("good.tif");
    AddScan("unclassified.gif");
    Process();
    const std::string good = Result("good.xml");
    Document("1-empty.xml", "");
    Document("2-cut.xml", good.substr(0, good.size() / 2));
    Document("3-text.XML", "Dear Sir or Madam");
    Document("4-no-boxes.xml", "<Tavrene Profile=\"Form\" Image=\"good.tif\"/>");
    Document("5-other.xml", "<html/>");
    Document("6-path.xml", "<Tavrene Image=\"../ProcessIn/good.tif\"><OMRs/></Tavrene>");
    Document("6-self.xml", "<Tavrene Image=\"6-self.xml\"><OMRs/></Tavrene>");
    Document("7-gone.xml", "<Tavrene Image=\"gone.tif\" Reviewed=\"1\"><OMRs/></Tavrene>");
    Document("8-none.xml", "<Tavrene><OMRs/></Tavrene>");
    Document("9-marked.xml", "<Tavrene Image=\"good.tif\" Reviewed=\"2\"><OMRs/></Tavrene>");
    const std::size_t before = ProcessLog().size();
    EnterReview();
    EXPECT_EQ(list_.lines, (Names{"9-marked ", "good 100"}));
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 0 of 2");
    EXPECT_EQ(person_.PanelText(Panel::Message),
              "Warning: Images referred in <2> Forms were missing and hence not loaded. Please refer process "
              "log.");
    const Names log = LogFrom(before);
    ASSERT_EQ(log.size(), 9U);
    const Names expected = {"Form left out: 1-empty.xml: the file is empty",
                            "Form left out: 2-cut.xml: it is not XML",
                            "Form left out: 3-text.XML: ",
                            "Form left out: 4-no-boxes.xml: the element OMRs is missing",
                            "Form left out: 5-other.xml: the root element is not Tavrene",
                            "Form left out: 6-path.xml: the attribute Image is \"../ProcessIn/good.tif\"",
                            "Form left out: 6-self.xml: the attribute Image is \"6-self.xml\"",
                            "Image <" + folders_.ProcessOut + "gone.tif> does not exist.",
                            "Image <" + folders_.ProcessOut + "> does not exist."};
    for (std::size_t k = 0; k < log.size(); ++k)
        EXPECT_TRUE(log[k].starts_with("Review: " + expected[k])) << log[k];

    // A folder and a log that are gone cost the list, not the program.
    Refuse("append", "");
    Do([this] { review_.RunEnds(); });
    EXPECT_EQ(list_.lines.size(), 2U);
    Refuse("list", "");
    Do([this] { review_.RunEnds(); });
    EXPECT_TRUE(list_.lines.empty());
    EXPECT_EQ(Messages().size(), 1U);
}

TEST_F(BadFormsTest, BoxesAndShiftsThatMakeNoSense) {
    AddScan("a.tif", {.checked = {3}, .dx = 3, .dy = -2});
    Process();
    Document("a.xml",
             "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Tavrene Profile=\"Form\" Image=\"a.tif\" "
             "Reviewed=\"2\" Confidence=\"much\"><OMRs Count=\"99\">"
             "<OMR Name=\"Q1\" Shift=\"abc\" Checked=\"1\"/><OMR Name=\"Q2\" Shift=\"1\" Checked=\"yes\"/>"
             "<OMR Name=\"Q4\" Shift=\"1,2,3\"/><OMR Name=\"Q3\" Shift=\"3,-2\" Checked=\"1\"/>"
             "<OMR Name=\"Q3\" Checked=\"1\"/><OMR Checked=\"0\"/></OMRs><Note>kept, f\xFCr "
             "sp\xE4ter</Note></Tavrene>");
    EnterReview();
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("row: "),
              (Names{"1 Q1|1", "2 Q2|0", "3 Q4|0", "4 Q3|1", "5 Q3|1", "6 |0"}));
    EXPECT_EQ(transcript_.LinesOf("rect: "), (Names{"1 63,72 24x24 checked", "2 117,72 24x24 unchecked",
                                                    "3 117,126 24x24 unchecked", "4 63,126 24x24 checked"}));
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:4");
    Flip(5);
    Flip(7);
    Flip(0);
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "Checked:2 of 6");
    Okay();
    EXPECT_EQ(person_.PanelText(Panel::File), "Reviewed: 1 of 1");
    EXPECT_TRUE(ResultHas("a.xml", "Reviewed=\"1\" Confidence=\"much\""));
    EXPECT_TRUE(ResultHas("a.xml",
                          "<OMR Name=\"Q3\" Shift=\"3,-2\" Checked=\"1\" />\n\t\t<OMR Name=\"Q3\" "
                          "Checked=\"0\" />"));
    EXPECT_TRUE(ResultHas("a.xml", "<Note>kept, für später</Note>"));
    EXPECT_TRUE(Result("a.xml").starts_with("<?xml version=\"1.0\"?>\n<Tavrene"));
}

TEST_F(BadFormsTest, ImagesThatVanishOrAreNone) {
    AddScan("a.tif");
    AddScan("b.tif", {.checked = {1}});
    ProcessAndReview();
    files_.Delete(folders_.ProcessOut + "a.tif");
    WriteText(folders_.ProcessOut + "b.tif", "no image");
    const std::size_t before = ProcessLog().size();
    Open(0);
    EXPECT_EQ(LogFrom(before), Names{"File a.tif referred by a.xml was not found."});
    EXPECT_FALSE(review_.HasForm());
    EXPECT_TRUE(transcript_.LinesOf("ask: ").empty());

    OpenNeighbour(0, 1);
    EXPECT_EQ(review_.OpenLine(), 1U) << "the marks can be seen and corrected all the same";
    EXPECT_EQ(transcript_.LinesOf("report: "), Names{"[b.tif] Image not in bitmap format"});
    EXPECT_EQ(transcript_.LinesOf("view: "), Names{"clear"});
    EXPECT_EQ(transcript_.LinesOf("ink: "), (Names{"1 ", "2 ", "3 ", "4 "}));
    EXPECT_TRUE(transcript_.LinesOf("rect: ").empty());
    Flip(1);
    Okay();
    EXPECT_TRUE(ResultHas("b.xml", "Q1\" Shift=\"0,0\" Checked=\"0\""));

    // It cannot be read anew.
    const std::string saved = Result("b.xml");
    form_.boxes[0].Name = "New";
    AddProfile("Form", form_);
    AddProfile("Other", form_);
    LoadProfiles();
    person_.answers = {Answer::Yes, Answer::No};
    Open(1);
    EXPECT_FALSE(review_.HasForm());
    Open(1);
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "Checked:0 of 4 Skip:1");
    Choose("Other");
    EXPECT_EQ(transcript_.LinesOf("choice: "), Names{"Form"});
    files_.Delete(folders_.ProcessOut + "b.tif");
    Choose("Other");
    EXPECT_EQ(Messages(), Names{"The image " + folders_.ProcessOut + "b.tif was not found."});
    EXPECT_EQ(LastLogLine(), "File b.tif referred by b.xml was not found.");
    EXPECT_EQ(Result("b.xml"), saved);
}

TEST_F(BadFormsTest, AProfileThatGoesWhileItsFormIsOpenCanStillBeSavedTo) {
    AddScan("a.tif", {.checked = {1}});
    ProcessAndReview();
    Open(0);
    files_.Delete(folders_.Profiles + "Form.Tvp");
    LoadProfiles();
    Flip(2);
    Okay();
    EXPECT_TRUE(ResultHas("a.xml", "Profile=\"Form\" Image=\"a.tif\" Reviewed=\"1\""));
}

TEST_F(BadFormsTest, DocumentsThatGoOrBreakWhileTheyAreListed) {
    AddScan("a.tif");
    AddScan("b.tif");
    AddProfile("Other", form_);
    ProcessAndReview();
    Open(0);
    files_.Delete(folders_.ProcessOut + "a.xml");
    Choose("Other");
    EXPECT_EQ(Messages(), Names{"Cannot save " + folders_.ProcessOut + "a.xml: the file is gone"});
    Document("b.xml", "<Tavrene");
    Open(0);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_NE(Messages()[0].find("ProcessOut/a.xml"), std::string::npos);
    Open(1);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_TRUE(Messages()[0].starts_with("b.xml: it is not XML"));
    EXPECT_FALSE(review_.HasForm());
    EXPECT_EQ(Result("b.xml"), "<Tavrene");
}

}  // namespace
}  // namespace tavrene
