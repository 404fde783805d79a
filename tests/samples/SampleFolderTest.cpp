#include <algorithm>
#include <filesystem>

#include "GroundTruth.h"
#include "outcome/Comparison.h"
#include "support/Faults.h"
#include "support/RunWorld.h"
#include "support/SourceFolder.h"

namespace tavrene {
namespace {

using Names = std::vector<std::string>;

const std::string kSamples = test::SourceFolder() + "/samples/";

/// The committed samples: what the tour shows and what a newcomer tries first.
using SampleFolderTest = test::RunWorld;

// What does not read as the truth says, of scans that the truth excuses.
Names Excused(const std::vector<samples::Comparison>& readings) {
    Names names;
    for (const samples::Comparison& reading : readings) {
        EXPECT_NE(reading.verdict, samples::Verdict::Wrong) << reading.Image << ' ' << reading.Difference;
        if (reading.verdict == samples::Verdict::BeyondRules)
            names.push_back(reading.Image);
    }
    return names;
}

TEST_F(SampleFolderTest, EveryScanReadsAsTheTruthSaysByBothReadings) {
    std::filesystem::copy(kSamples + "profiles", app::ToPath(folders_.Profiles));
    std::filesystem::copy(kSamples + "scans", app::ToPath(folders_.ProcessIn));
    const std::vector<samples::GroundTruthRecord> truth = samples::ReadGroundTruth(kSamples + "truth.tsv");
    Names listed;
    for (const samples::GroundTruthRecord& record : truth)
        listed.push_back(record.Image);
    std::sort(listed.begin(), listed.end());
    ASSERT_EQ(In(folders_.ProcessIn), listed);
    Process();
    const auto plain = samples::CompareWithTruth(files_, folders_, truth);
    EXPECT_EQ(Excused(plain),
              (Names{"patient-12-corrected.tif", "patient-14-tilted.tif", "patient-15-upside-down.tif",
                     "new-scanner-1-150dpi.tif", "staff-13-bent.tif"}));

    // The profiles name their specimens without a folder.
    for (const std::string& name : In(folders_.Profiles)) {
        std::string text = test::ReadText(folders_.Profiles + name);
        text.insert(text.find("Image=\"") + 7, kSamples + "blanks/");
        test::WriteText(folders_.Profiles + name, text);
    }
    for (const std::string& name : listed)
        files_.Move(folders_.ProcessOut + name, folders_.ProcessIn + name);
    reading_.preciseAlignment = true;
    Process();
    const auto precise = samples::CompareWithTruth(files_, folders_, truth);
    EXPECT_EQ(Excused(precise), Names{"patient-12-corrected.tif"});
    EXPECT_PRED2(test::Has, samples::TableOf(plain, precise), "\nstaff-13-bent.tif ");
}

}  // namespace
}  // namespace tavrene
