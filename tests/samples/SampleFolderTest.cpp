#include <algorithm>
#include <filesystem>

#include "GroundTruth.h"
#include "recognition/ResultDocument.h"
#include "recognition/precise/PreciseReading.h"
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
    EXPECT_EQ(beyond, 6) << "an excuse more than the samples need";
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
    for (const GroundTruthRecord& record : truth_) {
        if (record.BeyondRules.find("Precise Alignment") == std::string::npos)
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
