#include <algorithm>

#include "recognition/precise/ReadAgain.h"
#include "support/RunWorld.h"

namespace tavrene::recognition {
namespace {

using test::TestForm;

// Runs over a form that lies farther off its place than the described rules look.
class PreciseRunTest : public test::RunWorld {
  protected:
    void RunWith(const ReadingOptions& options) {
        options_ = options;
        profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
        form_.SaveScan(folders_.ProcessIn + "far.tif", {.checked = {2, 7}, .dx = 40, .dy = -30});
        form_.SaveScan(folders_.ProcessIn + "near.tif", {.checked = {1}});
        preciseRun_.Run(profiles_);
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

    TestForm form_ = TestForm::Grid(4, 3);
    std::string profile_ = AddSpecimenProfile("Form", form_);
    ReadingOptions options_;
    PreciseReader reader_{files_, options_};
    ProcessRun preciseRun_{{files_, log_, person_, clock_, screen_, screen_, &reader_}, settings_, folders_};
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
    EXPECT_TRUE(preciseRun_.Opinions().unread.empty());
}

TEST_F(PreciseRunTest, ASecondOpinionCountsAndChangesNothing) {
    RunWith({.secondOpinion = true});
    EXPECT_FALSE(HasResult("far"));
    EXPECT_TRUE(HasResult("near"));
    EXPECT_TRUE(Logged("Image [far.tif] unclassified"));
    EXPECT_EQ(preciseRun_.Opinions().unread, std::vector<std::string>{"far.tif"});
    EXPECT_EQ(preciseRun_.Opinions().boxes, 0);
    EXPECT_EQ(TextOf(preciseRun_.Opinions()),
              "1 form looks turned or stretched: Precise Alignment reads it.");

    const std::string before = test::ReadText(folders_.ProcessOut + "near.xml");
    const auto names = std::vector<std::string>{"far.tif", "near.tif", "gone.tif"};
    EXPECT_EQ(ReadFormsAgain(names, folders_.ProcessOut, files_, log_, person_, reader_, profiles_, 8), 1);
    ASSERT_TRUE(HasResult("far"));
    EXPECT_TRUE(Marks("far")[6].Checked);
    EXPECT_EQ(test::ReadText(folders_.ProcessOut + "near.xml"), before);
}

TEST_F(PreciseRunTest, AReplacedSpecimenIsTold) {
    TestForm::Grid(2, 2, 40, 300, 300).SaveScan(folders_.ProfileImages + "Form.tif", {});
    RunWith({.secondOpinion = true});
    EXPECT_EQ(preciseRun_.Opinions().replaced, std::vector<std::string>{"Form"});
}

TEST_F(PreciseRunTest, OffLeavesEverythingAsItIs) {
    RunWith({});
    EXPECT_EQ(TextOf(preciseRun_.Opinions()), "");
    EXPECT_FALSE(HasResult("far"));
    const std::string near = test::ReadText(folders_.ProcessOut + "near.xml");
    RunWith({.secondOpinion = true});
    EXPECT_EQ(test::ReadText(folders_.ProcessOut + "near.xml"), near);
}

}  // namespace
}  // namespace tavrene::recognition
