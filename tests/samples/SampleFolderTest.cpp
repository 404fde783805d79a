#include <algorithm>
#include <filesystem>

#include "Truth.h"
#include "boxes/ProfileImagePipeline.h"
#include "recognition/ResultDocument.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using samples::TruthRecord;
using Names = std::vector<std::string>;

const std::string kSamples = TAVRENE_SOURCE_DIR "/samples/";

/// The committed samples: what the tour shows and what a newcomer tries first.
class SampleFolderTest : public test::RunWorld {
  protected:
    const std::vector<TruthRecord> truth_ = samples::ReadTruth(kSamples + "truth.tsv");

    /// What the program made of a scan: the profile's name and the checked boxes, or no name.
    TruthRecord Outcome(const std::string& image) const {
        TruthRecord outcome;
        outcome.Expected = TruthRecord::Outcome::Unreadable;
        for (const std::string& line : ProcessLog())
            if (line.starts_with("Image [" + image + "] unclassified"))
                outcome.Expected = TruthRecord::Outcome::Unclassified;
        const std::string document = recognition::ResultPath(folders_.ProcessOut, image);
        if (!files_.FileExists(document))
            return outcome;
        outcome.Expected = TruthRecord::Outcome::Matched;
        for (const profiles::ProfileRecord& profile : profiles_)
            if (test::ReadText(document).find("Profile=\"" + profile.Name + "\"") != std::string::npos)
                outcome.Profile = profile.Name;
        for (const recognition::ResultMark& mark : recognition::ReadResultMarks(files_, document))
            if (mark.Checked)
                outcome.CheckedBoxes.push_back(mark.Name);
        return outcome;
    }
};

TEST_F(SampleFolderTest, EveryScanReadsAsTheTruthSays) {
    std::filesystem::copy(kSamples + "profiles", app::ToPath(folders_.Profiles));
    std::filesystem::copy(kSamples + "scans", app::ToPath(folders_.ProcessIn));
    Names listed;
    for (const TruthRecord& record : truth_)
        listed.push_back(record.Image);
    std::sort(listed.begin(), listed.end());
    ASSERT_EQ(In(folders_.ProcessIn), listed);
    Process();

    int beyond = 0;
    for (const TruthRecord& record : truth_) {
        if (!record.BeyondRules.empty()) {
            ++beyond;
            continue;
        }
        const TruthRecord outcome = Outcome(record.Image);
        EXPECT_EQ(outcome.Expected, record.Expected) << record.Image;
        EXPECT_EQ(outcome.Profile, record.Profile) << record.Image;
        EXPECT_EQ(outcome.CheckedBoxes, record.CheckedBoxes) << record.Image;
    }
    EXPECT_EQ(beyond, 2) << "an excuse more than the samples need";
}

TEST_F(SampleFolderTest, BoxFindingOnTheBlanksGivesTheProfiles) {
    std::filesystem::copy(kSamples + "profiles", app::ToPath(folders_.Profiles));
    profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
    const boxes::BoxSizes sizes{16, 38, 16, 34};
    ASSERT_EQ(profiles_.size(), 2U);
    for (const profiles::ProfileRecord& profile : profiles_) {
        const auto found =
            boxes::FindBoxesOnImage(kSamples + "blanks/" + profile.Name + ".tif", profile.Name, sizes,
                                    boxes::ReachFor(sizes), {files_, person_, log_, clock_});
        ASSERT_TRUE(found.has_value());
        ASSERT_EQ(found->Boxes.size(), profile.Boxes.size());
        for (std::size_t i = 0; i < profile.Boxes.size(); ++i) {
            const boxes::BoxRect& box = found->Boxes[i];
            const profiles::OmrBox& expected = profile.Boxes[i];
            EXPECT_EQ(box.L, expected.L) << expected.Name;
            EXPECT_EQ(box.R, expected.R) << expected.Name;
            EXPECT_EQ(found->Height - box.T, expected.T) << expected.Name;
            EXPECT_EQ(found->Height - box.B, expected.B) << expected.Name;
        }
    }
}

TEST(TruthTest, RefusesLinesOfAnotherShape) {
    const auto records =
        samples::ParseTruth("# head\n\na.tif\tForm\tQ1,Q2 often\t\nb.tif\tunreadable\t\tworn\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].CheckedBoxes, (Names{"Q1", "Q2 often"}));
    EXPECT_EQ(records[1].Profile, "");
    EXPECT_EQ(records[1].BeyondRules, "worn");
    for (const char* const text : {"a.tif\tForm\tQ1", "\tForm\t\t", "a.tif\t\t\t", "a.tif\tForm\t\t\t"})
        EXPECT_THROW(samples::ParseTruth(text), std::runtime_error) << text;
}

}  // namespace
}  // namespace tavrene
