#include <filesystem>

#include "recognition/ProcessRun.h"
#include "recognition/ResultDocument.h"
#include "support/Faults.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using test::ReadText;
using test::TestForm;
using test::WriteText;
using Names = std::vector<std::string>;

class ProcessRunTest : public test::RunWorld {
  protected:
    ProcessRunTest() { AddProfile("Form", form_); }

    void AddScan(const std::string& name, const TestForm::Filling& filling = {}) {
        form_.SaveScan(folders_.ProcessIn + name, filling);
    }

    bool LogHas(const std::string& line) const {
        const Names lines = ProcessLog();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    TestForm form_ = TestForm::Grid(2, 2);
};

TEST_F(ProcessRunTest, TakesAFolderOfScansToResultsAndLog) {
    AddScan("b.tif", {.checked = {2, 3}});
    AddScan("A form & Co.TIF", {.checked = {1}, .dx = 4, .dy = -6});
    TestForm::Grid(2, 2, 24, 300, 300).SaveScan(folders_.ProcessIn + "other.tif", {});
    WriteText(folders_.ProcessIn + "form.tiff", "x");
    WriteText(folders_.ProcessIn + ".hidden", "x");
    files_.CreateFolder(folders_.ProcessIn + "sub");
    clock_.tick = 7.4;
    Process();

    EXPECT_EQ(In(folders_.ProcessIn), Names());
    EXPECT_EQ(In(folders_.ProcessOut),
              (Names{"A form & Co.TIF", "A form & Co.xml", "b.tif", "b.xml", "form.tiff", "other.tif"}));
    EXPECT_EQ(ReadText(folders_.ProcessOut + "b.xml"),
              "<?xml version=\"1.0\"?>\n"
              "<Tavrene Profile=\"Form\" Image=\"b.tif\" Reviewed=\"0\" Confidence=\"100\">\n"
              "\t<OMRs Count=\"4\">\n"
              "\t\t<OMR Name=\"Q1\" Shift=\"0,0\" Checked=\"0\" />\n"
              "\t\t<OMR Name=\"Q2\" Shift=\"0,0\" Checked=\"1\" />\n"
              "\t\t<OMR Name=\"Q3\" Shift=\"0,0\" Checked=\"1\" />\n"
              "\t\t<OMR Name=\"Q4\" Shift=\"0,0\" Checked=\"0\" />\n"
              "\t</OMRs>\n"
              "</Tavrene>\n");
    EXPECT_PRED2(test::Has, ReadText(folders_.ProcessOut + "A form & Co.xml"), "\"A form &amp; Co.TIF\"");
    EXPECT_EQ(
        ProcessLog(),
        (Names{"Processing started", "Image [A form & Co.TIF] classified as [Form] with confidence [100.00] ",
               "A form & Co.TIF: Processing complete",
               "Image [b.tif] classified as [Form] with confidence [100.00] ", "b.tif: Processing complete",
               "form.tiff: Unrecognized File type", "form.tiff: Processing complete",
               "Image [other.tif] unclassified", "other.tif: Processing complete", ": Processing complete",
               "Processed 4 Files, 7 Sec."}));
    EXPECT_EQ(transcript_.Joined(),
              "panel ElapsedTime:  | panel Message: Processing started | view: clear | "
              "rows: clear Val | range: 4 | panel File: A form & Co.TIF | progress: 1 | "
              "events | panel File: b.tif | progress: 2 | events | panel File: form.tiff | progress: 3 | "
              "events | panel File: other.tif | progress: 4 | events | panel File: Profiles:1, Active:1 | "
              "progress: 0 | panel Message: Processing complete | rows: clear | panel ElapsedTime: 4 Files, "
              "7 Sec.");
}

TEST_F(ProcessRunTest, ShowsEachPageWithItsBoxes) {
    settings_.DisplayDuringProcess = true;
    AddScan("a.tif", {.checked = {4}, .dx = 2});
    WriteText(folders_.ProcessIn + "b.tif", "no image");
    Process();
    EXPECT_EQ(transcript_.LinesOf("rect: "), (Names{"1 62,70 24x24 unchecked", "2 116,70 24x24 unchecked",
                                                    "3 62,124 24x24 unchecked", "4 116,124 24x24 checked"}));
    EXPECT_EQ(transcript_.LinesOf("row: "), (Names{"1 Q1|0", "2 Q2|0", "3 Q3|0", "4 Q4|1"}));
    EXPECT_EQ(transcript_.LinesOf("view: "),
              (Names{"clear", "zoom 100", "picture 600x500", "refresh", "zoom 100", "clear", "refresh"}));
    EXPECT_EQ(transcript_.LinesOf("report: "), (Names{"[b.tif] Image not in bitmap format"}));
    EXPECT_EQ(transcript_.LinesOf("rows: ").back(), "clear") << "no form is on the screen";
    AddScan("c.tif");
    Process();
    EXPECT_EQ(transcript_.LinesOf("rows: ").back(), "clear Val") << "the last form stays with its rows";
    EXPECT_EQ(transcript_.LinesOf("row: ").size(), 4U);
}

TEST_F(ProcessRunTest, TakesOneFileWhenToldTo) {
    settings_.ProcessSingle = true;
    for (const char* name : {"1.tif", "2.tif", "3.tif"})
        AddScan(name);
    person_.onPendingEvents = [this] { EXPECT_TRUE(run_.IsRunning()); };
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"2.tif", "3.tif"}));
    EXPECT_EQ(ProcessLog(),
              (Names{"Processing started", "Image [1.tif] classified as [Form] with confidence [100.00] ",
                     "1.tif: Processing complete", "Processed 0 Files, 0 Sec."}));
    EXPECT_EQ(transcript_.LinesOf("events").size(), 1U);
}

TEST_F(ProcessRunTest, ASingleRunPassesOverWhatCannotBeMoved) {
    settings_.ProcessSingle = true;
    for (const char* name : {"1.tif", "2.tif", "3.tif"})
        AddScan(name);
    files_.CreateFolder(folders_.ProcessOut + "1.tif");
    Process();
    EXPECT_EQ(transcript_.LinesOf("report: "), Names{"[1.tif] Cannot move " + folders_.ProcessIn +
                                                     "1.tif: " + folders_.ProcessOut + "1.tif is a folder"});
    Process();
    EXPECT_TRUE(LogHas("1.tif: Passed over, since it could not be moved before"));
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), Names{"1.tif"});
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"2.tif", "2.xml", "3.tif", "3.xml"}));
    Process();
    EXPECT_EQ(transcript_.LinesOf("report: ").size(), 1U) << "nothing else is left, and nothing is silent";
    AddScan("4.tif");
    std::filesystem::remove(folders_.ProcessOut + "1.tif");
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), Names{"4.tif"});
}

TEST_F(ProcessRunTest, WithoutAnActiveProfileNothingStarts) {
    AddScan("a.tif");
    const std::string profile = folders_.Profiles + "Form.Tvp";
    WriteText(profile, form_.ProfileText("Form", false));
    Process();
    EXPECT_PRED2(test::Has, transcript_.Joined(), "message: [] None of your Profiles are active!");
    files_.Delete(profile);
    Process();
    EXPECT_EQ(transcript_.LinesOf("message: "), Names{"[] No Profiles to match images against!"});
    EXPECT_EQ(In(folders_.ProcessIn), Names{"a.tif"});
    EXPECT_TRUE(ProcessLog().empty());
}

TEST_F(ProcessRunTest, WithoutTheImageLibraryNothingMoves) {
    AddScan("a.tif");
    recognition::ProcessRun blind({files_, log_, person_, clock_, screen_, screen_, nullptr, false},
                                  settings_, folders_);
    EXPECT_FALSE(blind.MayStart(profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles)));
    const std::string text = "Nothing is processed: FreeImage is not available, so no image can be read.";
    EXPECT_EQ(transcript_.LinesOf("message: "), Names{"[] " + text});
    EXPECT_EQ(ProcessLog(), Names{text});
    EXPECT_EQ(In(folders_.ProcessIn), Names{"a.tif"});
}

TEST_F(ProcessRunTest, NamesThatNoDocumentCanHoldLeaveItReadable) {
    const std::string name =
        "Gr\xF6\xDF"
        "e \x01\t1.tif";
    AddScan(name);
    const std::string alike = app::ReplaceFirst(name, "\xF6", "\xE4");
    AddScan(alike);
    AddProfile("Form\x02", form_);
    std::filesystem::remove(folders_.Profiles + "Form.Tvp");
    Process();
    const std::string path = recognition::ResultPath(folders_.ProcessOut, name);
    EXPECT_PRED2(test::Has, ReadText(path),
                 "Profile=\"Form\xEF\xBF\xBD\" Image=\"Gr\xEF\xBF\xBD\xEF\xBF\xBD"
                 "e \xEF\xBF\xBD&#09;1.tif\"");
    EXPECT_EQ(recognition::ResultDocument::Load(files_, path).Image(), name) << "its image is found";
    const std::string other = recognition::ResultPath(folders_.ProcessOut, alike);
    EXPECT_EQ(recognition::ResultDocument::Load(files_, other).Image(), alike);
}

TEST_F(ProcessRunTest, AnImageThatReplacesAnotherTakesItsMarksAway) {
    AddScan("a.tif", {.checked = {1}});
    AddScan("b.tif", {.checked = {1}});
    AddScan("c.tif", {.checked = {1}});
    Process();
    const std::string kept = ReadText(folders_.ProcessOut + "c.xml");
    AddScan("a.tif", {.checked = {2}});
    TestForm::Grid(1, 1).SaveScan(folders_.ProcessIn + "b.tif", {});  // no longer the form
    WriteText(folders_.ProcessIn + "c.png", "no image; the result belongs to c.tif");
    Process();
    EXPECT_PRED2(test::Has, ReadText(folders_.ProcessOut + "a.xml"), "\"Q2\" Shift=\"0,0\" Checked=\"1\"");
    EXPECT_TRUE(LogHas("a.tif: Result replaces the earlier a.xml"));
    EXPECT_TRUE(LogHas("b.tif: Replaces an earlier image, whose result b.xml is removed"));
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml", "b.tif", "c.png", "c.tif", "c.xml"}));
    EXPECT_EQ(ReadText(folders_.ProcessOut + "c.xml"), kept);
}

}  // namespace
}  // namespace tavrene
