#include <algorithm>
#include <filesystem>

#include "GroundTruth.h"
#include "outcome/Comparison.h"
#include "recognition/precise/PreciseReading.h"
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
    EXPECT_EQ(beyond, 5) << "an excuse more than the samples need";
}

TEST_F(SampleFolderTest, PreciseAlignmentReadsWhatLiesAskew) {
    std::filesystem::copy(kSamples + "profiles", app::ToPath(folders_.Profiles));
    // The profiles name their specimens without a folder.
    const auto profiles = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
    std::vector<recognition::SpecimenPrint> prints;
    for (const profiles::ProfileRecord& profile : profiles) {
        const auto blank = imaging::ReadSpecimen(files_, kSamples + "blanks/" + profile.Name + ".tif");
        prints.push_back(recognition::TakePrint(std::get<imaging::Page>(blank), profile));
    }
    int read = 0;
    for (const samples::GroundTruthRecord& record : samples::ReadGroundTruth(kSamples + "truth.tsv")) {
        const bool isThin = record.Image == "staff-14-thin.tif";
        if (!isThin && record.BeyondRules.find("Precise Alignment") == std::string::npos)
            continue;
        const auto page =
            imaging::ReadPage(files_, kSamples + "scans/" + record.Image, imaging::ImageFormat::Tiff);
        const recognition::PreciseReading reading = recognition::ReadPrecisely(
            std::get<imaging::Page>(page), profiles, [&prints](std::size_t k) { return &prints[k]; }, 8);
        ASSERT_GE(reading.winner, 0) << record.Image;
        EXPECT_EQ(profiles[static_cast<std::size_t>(reading.winner)].Name, record.Profile) << record.Image;
        Names checked;
        for (const recognition::MarkReading& mark : reading.marks)
            if (mark.Checked)
                checked.push_back(mark.Name);
        EXPECT_EQ(checked, record.CheckedBoxes) << record.Image;
        ++read;
    }
    EXPECT_EQ(read, 4);
}

}  // namespace
}  // namespace tavrene
