#include <filesystem>

#include "Truth.h"
#include "recognition/ResultDocument.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using samples::TruthRecord;
using Names = std::vector<std::string>;

const std::string kSamples = std::string(TAVRENE_SOURCE_DIR) + "/samples/";

// What the clerk has on the desk: the sample profiles, and a folder of filled scans whose truth is known.
class SamplesTest : public test::RunWorld {
  protected:
    void CopyAll(const std::string& from, const std::string& to) {
        for (const std::string& name : files_.List(kSamples + from, "*"))
            std::filesystem::copy_file(kSamples + from + name, to + name);
    }

    Names CheckedBoxes(const std::string& resultPath) const {
        Names names;
        for (const recognition::ResultMark& mark : recognition::ReadResultMarks(files_, resultPath)) {
            if (mark.Checked)
                names.push_back(mark.Name);
        }
        return names;
    }

    // How the program read one scan, in the words of the truth.
    TruthRecord Read(const TruthRecord& truth) const {
        TruthRecord read = truth;
        read.CheckedBoxes.clear();
        read.Profile.clear();
        const std::string result = recognition::ResultPath(folders_.ProcessOut, truth.Image);
        if (files_.FileExists(result)) {
            read.Expected = TruthRecord::Outcome::Matched;
            read.CheckedBoxes = CheckedBoxes(result);
            const std::string text = test::ReadText(result);
            const std::size_t start = text.find("Profile=\"") + 9;
            read.Profile = text.substr(start, text.find('"', start) - start);
        } else {
            const Names log = ProcessLog();
            const bool looked = std::any_of(log.begin(), log.end(), [&truth](const std::string& line) {
                return line.starts_with("Image [" + truth.Image + "] unclassified");
            });
            read.Expected = looked ? TruthRecord::Outcome::Unclassified : TruthRecord::Outcome::Unreadable;
        }
        return read;
    }
};

TEST_F(SamplesTest, AreReadAsAPersonReadsThem) {
    CopyAll("profiles/", folders_.Profiles);
    CopyAll("scans/", folders_.ProcessIn);
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), Names());
    const std::vector<TruthRecord> truth = samples::ReadTruth(kSamples + "truth.tsv");
    EXPECT_EQ(truth.size(), files_.List(kSamples + "scans", "*").size());
    int beyond = 0;
    for (const TruthRecord& record : truth) {
        beyond += record.BeyondRules.empty() ? 0 : 1;
        if (!record.BeyondRules.empty())
            continue;
        const TruthRecord read = Read(record);
        EXPECT_EQ(read.Expected, record.Expected) << record.Image;
        EXPECT_EQ(read.Profile, record.Profile) << record.Image;
        EXPECT_EQ(read.CheckedBoxes, record.CheckedBoxes) << record.Image;
    }
    EXPECT_LE(beyond, 3);
}

}  // namespace
}  // namespace tavrene
