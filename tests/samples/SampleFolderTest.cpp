#include <algorithm>
#include <filesystem>

#include "GroundTruth.h"
#include "outcome/Comparison.h"
#include "support/RunWorld.h"
#include "support/SourceFolder.h"

namespace tavrene {
namespace {

using Names = std::vector<std::string>;

const std::string kSamples = test::SourceFolder() + "/samples/";

/// The committed samples: what the tour shows and what a newcomer tries first.
using SampleFolderTest = test::RunWorld;

TEST_F(SampleFolderTest, EveryScanReadsAsTheTruthSays) {
    std::filesystem::copy(kSamples + "profiles", app::ToPath(folders_.Profiles));
    std::filesystem::copy(kSamples + "scans", app::ToPath(folders_.ProcessIn));
    const std::vector<samples::GroundTruthRecord> truth = samples::ReadGroundTruth(kSamples + "truth.tsv");
    Names listed;
    for (const samples::GroundTruthRecord& record : truth)
        listed.push_back(record.Image);
    std::sort(listed.begin(), listed.end());
    ASSERT_EQ(In(folders_.ProcessIn), listed);
    Process();

    int beyond = 0;
    for (const samples::Comparison& comparison : samples::CompareWithTruth(files_, folders_, truth)) {
        EXPECT_NE(comparison.verdict, samples::Verdict::Wrong)
            << comparison.Image << ' ' << comparison.Difference;
        beyond += comparison.verdict == samples::Verdict::BeyondRules ? 1 : 0;
    }
    EXPECT_EQ(beyond, 2) << "an excuse more than the samples need";
}

}  // namespace
}  // namespace tavrene
