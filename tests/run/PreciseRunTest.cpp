#include <algorithm>

#include "painter/ImageFiles.h"
#include "recognition/precise/ReadAgain.h"
#include "support/RunWorld.h"

namespace tavrene::recognition {
namespace {

using test::TestForm;

// Runs over a form that lies farther off its place than the plain reading looks.
class PreciseRunTest : public test::RunWorld {
  protected:
    void RunWith(const ReadingOptions& options) {
        reading_ = options;
        form_.SaveScan(folders_.ProcessIn + "far.tif", {.checked = {2, 7}, .dx = 40, .dy = -30});
        form_.SaveScan(folders_.ProcessIn + "near.tif", {.checked = {1}});
        Process();
    }

    bool HasResult(const std::string& name) const {
        return files_.FileExists(folders_.ProcessOut + name + ".xml");
    }

    std::vector<ResultMark> Marks(const std::string& name) const {
        return ResultDocument::Load(files_, folders_.ProcessOut + name + ".xml").Marks();
    }

    bool Logged(const std::string& line) const {
        const auto lines = ProcessLog();
        return std::any_of(lines.begin(), lines.end(),
                           [&line](const std::string& logged) { return logged.starts_with(line); });
    }

    std::vector<FormToRead> Offered() const {
        return FormsToRead(files_, run_.Opinions(), folders_.ProcessOut);
    }

    FormsReadAgain ReadAgain(const std::vector<FormToRead>& forms) {
        const auto goesOn = [] { return true; };
        return ReadFormsAgain({files_, log_, person_, reader_, goesOn}, forms, folders_.ProcessOut, profiles_,
                              8);
    }

    TestForm form_ = TestForm::Grid(4, 3);
    std::string profile_ = AddSpecimenProfile("Form", form_);
};

TEST_F(PreciseRunTest, ReadsByOneMapWhenItIsOn) {
    RunWith({.preciseAlignment = true});
    ASSERT_TRUE(HasResult("far"));
    const auto marks = Marks("far");
    ASSERT_EQ(marks.size(), 12U);
    for (std::size_t k = 0; k < marks.size(); ++k) {
        EXPECT_EQ(marks[k].Checked, k == 1 || k == 6) << k;
        EXPECT_NEAR(marks[k].Shift->dx, 40, 1);
        EXPECT_NEAR(marks[k].Shift->dy, -30, 1);
    }
    EXPECT_TRUE(Logged("Image [far.tif] classified as [Form] with confidence [100.00] "));
    EXPECT_TRUE(run_.Opinions().unread.empty());
}

TEST_F(PreciseRunTest, ASecondOpinionCountsAndChangesNothing) {
    RunWith({.secondOpinion = true});
    EXPECT_FALSE(HasResult("far"));
    EXPECT_TRUE(HasResult("near"));
    EXPECT_TRUE(Logged("Image [far.tif] unclassified"));
    EXPECT_EQ(run_.Opinions().unread, std::vector<std::string>{"far.tif"});
    EXPECT_EQ(run_.Opinions().boxes, 0);
    EXPECT_EQ(TextOf(run_.Opinions()), "1 form looks turned or stretched: Precise Alignment reads it.");

    const std::string before = test::ReadText(folders_.ProcessOut + "near.xml");
    const FormsReadAgain again = ReadAgain({{"far.tif", {}}, {"near.tif", {}}, {"gone.tif", {}}});
    ASSERT_EQ(again.read.size(), 1U);
    EXPECT_EQ(again.read[0].name + ": " + again.read[0].reason,
              "far.tif: classified as [Form] with confidence [100.00]");
    run_.Correct(again.read);
    EXPECT_EQ(run_.Summary().Count(FileEnd::Read), 2U);
    ASSERT_TRUE(HasResult("far"));
    EXPECT_TRUE(Marks("far")[6].Checked);
    EXPECT_EQ(test::ReadText(folders_.ProcessOut + "near.xml"), before);
}

TEST_F(PreciseRunTest, AResultThatCannotBeWrittenIsNeitherMisjudgedNorHoldsUpOthers) {
    form_.SaveScan(folders_.ProcessIn + "away.tif", {.checked = {1}, .dx = 40, .dy = -30});
    const auto refuseWriting = [this](const std::string& part) {
        files_.refuse = [part](const std::string& operation, const std::string& path) {
            return operation == "write" && path.find(part) != std::string::npos;
        };
    };
    refuseWriting(".delivery-new");  // only near.tif is recognised and has a result
    RunWith({.secondOpinion = true});
    EXPECT_FALSE(HasResult("near"));
    const std::vector<std::string> unread = {"away.tif", "far.tif"};
    EXPECT_EQ(run_.Opinions().unread, unread);
    refuseWriting("away");
    const FormsReadAgain again = ReadAgain(Offered());
    EXPECT_EQ(again.read.size(), 1U);
    ASSERT_EQ(again.left.size(), 1U);
    EXPECT_EQ(again.left[0].image, "away.tif");
    EXPECT_FALSE(HasResult("away"));
    EXPECT_TRUE(HasResult("far"));
    EXPECT_TRUE(Logged("away.tif: Cannot write "));
}

TEST_F(PreciseRunTest, FormsWithBoxesReadOtherwiseAreReadAgainUnlessSomebodyTouchedThem) {
    // 26 pixels: 5 % of the whole box and 9 % of its inner part.
    samples::Canvas page = form_.Paint({});
    page.FillRect(form_.boxes[2].L + 8, form_.boxes[2].T + 10, 13, 2);
    const auto faint = [&](const std::string& name, imaging::ImageFormat format) {
        samples::SaveImage(samples::ToBilevel(page), format, folders_.ProcessIn + name);
    };
    faint("a.tif", imaging::ImageFormat::Tiff);
    faint("b.tif", imaging::ImageFormat::Tiff);
    faint("twin.bmp", imaging::ImageFormat::Bmp);
    form_.SaveScan(folders_.ProcessIn + "twin.tif", {.checked = {5}});  // takes the place of its result
    reading_ = {.secondOpinion = true};
    Process();
    EXPECT_EQ(TextOf(run_.Opinions()),
              "3 boxes in 3 forms read otherwise by Precise Alignment; review shows them as doubtful.");
    const std::vector<FormToRead> offered = Offered();
    ASSERT_EQ(offered.size(), 2U);
    const std::string reviewed = "<!-- by hand -->" + test::ReadText(folders_.ProcessOut + "b.xml");
    test::WriteText(folders_.ProcessOut + "b.xml", reviewed);

    const FormsReadAgain again = ReadAgain(offered);
    EXPECT_EQ(again.read.size(), 1U);
    EXPECT_TRUE(again.left.empty());
    EXPECT_TRUE(Marks("a")[2].Checked);
    EXPECT_TRUE(Logged("a.tif: Result replaces the earlier a.xml"));
    EXPECT_EQ(test::ReadText(folders_.ProcessOut + "b.xml"), reviewed);
    EXPECT_TRUE(Marks("twin")[4].Checked);
}

TEST_F(PreciseRunTest, ASpecimenThatCannotHelpIsToldInEveryRun) {
    TestForm::Grid(2, 2, 40, 300, 300).SaveScan(folders_.ProfileImages + "Form.tif", {});
    RunWith({.secondOpinion = true});
    EXPECT_EQ(run_.Opinions().specimens.replaced, std::set<std::string>{"Form"});
    reading_ = {.preciseAlignment = true};
    AddSpecimenProfile("Form", form_);
    Process();
    EXPECT_EQ(TextOf(run_.Opinions()), "");
    const std::string unreadable =
        "The specimen image of profile Form is missing or cannot be read: Precise Alignment knows its forms "
        "by "
        "their boxes alone.";
    AddSpecimenProfile("Form", form_);
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "read" && path.find("Form.tif") != std::string::npos;
    };
    RunWith({.preciseAlignment = true});
    EXPECT_EQ(TextOf(run_.Opinions()), unreadable);
    files_.refuse = {};
    RunWith({.preciseAlignment = true});
    EXPECT_EQ(TextOf(run_.Opinions()), "") << "it was away for a moment";
    TestForm::Grid(2, 2, 40, 300, 300).SaveScan(folders_.ProfileImages + "Form.tif", {});
    RunWith({.preciseAlignment = true});
    EXPECT_EQ(TextOf(run_.Opinions()),
              "The boxes of profile Form do not lie on its specimen image: it was replaced.");
    files_.Delete(folders_.ProfileImages + "Form.tif");
    for (int run = 0; run < 2; ++run) {
        RunWith({.preciseAlignment = true});
        EXPECT_EQ(TextOf(run_.Opinions()), unreadable);
    }
}

TEST(OpinionTallyTest, FormsThatMayBelongElsewhereAreNamed) {
    OpinionTally tally;
    for (const char* const name : {"a.tif", "b.tif", "c.tif", "d.tif", "e.tif"})
        tally.Add(name, {false, true, {}});
    EXPECT_EQ(TextOf(tally),
              "5 forms may belong to another profile than the one found, or to none: a.tif, b.tif, c.tif and "
              "2 more.");
}

// Without its specimen a profile of few boxes is never certain; that is no reason to doubt every form of it.
TEST_F(PreciseRunTest, WhatCannotBeJudgedIsNotDoubted) {
    form_ = TestForm::Grid(2, 1);
    AddProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {1}});
    reading_ = {.secondOpinion = true};
    Process();
    EXPECT_TRUE(Logged("Image [a.tif] classified as [Form] with confidence [100.00] "));
    EXPECT_EQ(TextOf(run_.Opinions()), "");
}

// A run over forms of all sorts, the same whenever it is made: what it leaves in the folders, and what it
// shows.
TEST_F(PreciseRunTest, ASecondOpinionLeavesFoldersLogsAndScreenAsTheyAreWithoutIt) {
    settings_.DisplayDuringProcess = true;
    AddProfile("Few", TestForm::Grid(2, 1, 40, 300, 300));
    AddProfile("Column", TestForm::Grid(1, 3, 30, 500, 100));
    const auto run = [this](const ReadingOptions& options) {
        TestForm::Grid(2, 1, 40, 300, 300).SaveScan(folders_.ProcessIn + "few.tif", {.checked = {1}});
        TestForm::Grid(1, 3, 30, 500, 100).SaveScan(folders_.ProcessIn + "column.tif", {});
        for (int k = 0; k < 12; ++k)
            form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(k) + ".tif", {.checked = {k, k + 3},
                                                                                      .dx = 5 * k - 30,
                                                                                      .dy = 20 - 3 * k,
                                                                                      .missing = {k % 5 + 1},
                                                                                      .upsideDown = k == 9});
        test::WriteText(folders_.ProcessIn + "broken.tif", "no image");
        RunWith(options);
        std::vector<std::string> left = transcript_.Lines();
        for (const std::string& folder : {folders_.ProcessOut, folders_.Log}) {
            for (const std::string& name : In(folder)) {
                left.push_back(name + ": " + test::ReadText(folder + name));
                files_.Delete(folder + name);
            }
        }
        return left;
    };
    const std::vector<std::string> without = run({});
    EXPECT_EQ(TextOf(run_.Opinions()), "");
    const auto with = run({.secondOpinion = true});
    ASSERT_EQ(with.size(), without.size());
    for (std::size_t k = 0; k < with.size(); ++k)
        EXPECT_EQ(with[k], without[k]);
    EXPECT_GE(run_.Opinions().unread.size(), 2U);
    EXPECT_NE(run({.preciseAlignment = true}), without);
}

}  // namespace
}  // namespace tavrene::recognition
