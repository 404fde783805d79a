#include <algorithm>
#include <filesystem>

#include "GroundTruth.h"
#include "recognition/ResultDocument.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using samples::GroundTruthRecord;
using Names = std::vector<std::string>;

const std::string kSamples = TAVRENE_SOURCE_DIR "/samples/";

/// The committed samples: what the tour shows and what a newcomer tries first.
class SampleFolderTest : public test::RunWorld {
  protected:
    const std::vector<GroundTruthRecord> truth_ = samples::ReadGroundTruth(kSamples + "truth.tsv");

    /// What the program made of a scan: the profile's name and the checked boxes, or no name.
    GroundTruthRecord Outcome(const std::string& image) const {
        GroundTruthRecord outcome;
        outcome.Expected = GroundTruthRecord::Outcome::Unreadable;
        for (const std::string& line : ProcessLog())
            if (line.starts_with("Image [" + image + "] unclassified"))
                outcome.Expected = GroundTruthRecord::Outcome::Unclassified;
        const std::string document = recognition::ResultPath(folders_.ProcessOut, image);
        if (!files_.FileExists(document))
            return outcome;
        outcome.Expected = GroundTruthRecord::Outcome::Matched;
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
    for (const GroundTruthRecord& record : truth_)
        listed.push_back(record.Image);
    std::sort(listed.begin(), listed.end());
    ASSERT_EQ(In(folders_.ProcessIn), listed);
    Process();

    int beyond = 0;
    for (const GroundTruthRecord& record : truth_) {
        if (!record.BeyondRules.empty()) {
            ++beyond;
            continue;
        }
        const GroundTruthRecord outcome = Outcome(record.Image);
        EXPECT_EQ(outcome.Expected, record.Expected) << record.Image;
        EXPECT_EQ(outcome.Profile, record.Profile) << record.Image;
        EXPECT_EQ(outcome.CheckedBoxes, record.CheckedBoxes) << record.Image;
    }
    EXPECT_EQ(beyond, 2) << "an excuse more than the samples need";
}

}  // namespace
}  // namespace tavrene
