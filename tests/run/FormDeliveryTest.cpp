#include <filesystem>

#include "recognition/ResultDocument.h"
#include "support/Kill.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using test::ReadText;
using test::TestForm;
using test::WriteText;
using Names = std::vector<std::string>;

// ProcessOut holds a scan with its reviewed result, and a new scan of its name waits.
class FormDeliveryTest : public test::RunWorld {
  protected:
    void SetUp() override {
        AddProfile("Form", form_);
        form_.SaveScan(work_.File("old.tif"), {.checked = {1}});
        form_.SaveScan(work_.File("new.tif"), {.checked = {2}});
        TestForm::Grid(1, 1).SaveScan(work_.File("strange.tif"), {});
        Arrange("new.tif");
    }

    void Arrange(const std::string& scan) {
        files_.refuse = nullptr;
        for (const std::string& folder : {folders_.ProcessIn, folders_.ProcessOut}) {
            for (const auto& entry : std::filesystem::directory_iterator(folder))
                std::filesystem::remove(entry);
        }
        std::filesystem::copy(work_.File("old.tif"), folders_.ProcessOut + "a.tif");
        std::filesystem::copy(work_.File(scan), folders_.ProcessIn + "a.tif");
        WriteText(folders_.ProcessOut + "a.xml", kReviewed);
    }

    // The program as it starts anew.
    void StartAgain() {
        recognition::ProcessRun({files_, log_, person_, clock_, screen_, screen_}, settings_, folders_)
            .Settle();
    }

    bool HasArrived(const std::string& scan) const {
        return ReadText(folders_.ProcessOut + "a.tif") == ReadText(work_.File(scan));
    }

    void ExpectMarksOfTheirPicture(const std::string& scan) const {
        const std::string marks = ReadText(folders_.ProcessOut + "a.xml");
        if (HasArrived("old.tif")) {
            EXPECT_EQ(marks, kReviewed);
            EXPECT_EQ(ReadText(folders_.ProcessIn + "a.tif"), ReadText(work_.File(scan)));
        } else {
            EXPECT_TRUE(HasArrived(scan));
            EXPECT_EQ(marks.find("Name=\"Q2\" Shift=\"0,0\" Checked=\"1\"") != std::string::npos,
                      scan == "new.tif");
            EXPECT_EQ(marks.empty(), scan == "strange.tif");
        }
        EXPECT_EQ(files_.List(folders_.ProcessOut, ".*"), Names());
    }

    const std::string kReviewed =
        "<Tavrene Profile=\"Form\" Image=\"a.tif\" Reviewed=\"1\" Confidence=\"100\"><OMRs Count=\"0\"/>"
        "</Tavrene>";
    TestForm form_ = TestForm::Grid(2, 2);
};

TEST_F(FormDeliveryTest, AKillBetweenAnyTwoFileOperationsKeepsMarksAndPicturesTogether) {
    for (const bool isElsewhere : {false, true}) {
        files_.isElsewhere = [&](const std::string& path) {
            return isElsewhere && path.starts_with(folders_.ProcessIn);
        };
        for (const std::string scan : {"new.tif", "strange.tif"}) {
            int arrivals = 0;
            int kills = 0;
            for (bool killed = true; killed; kills += killed ? 1 : 0) {
                SCOPED_TRACE(scan + " " + std::to_string(kills));
                Arrange(scan);
                killed = test::DiesBefore(files_, kills, [this] { Process(); });
                StartAgain();
                ExpectMarksOfTheirPicture(scan);
                arrivals += killed && !HasArrived("old.tif") ? 1 : 0;
            }
            EXPECT_GE(kills, 8);
            EXPECT_GE(arrivals, 3) << "some come behind the image's move";
        }
    }
}

TEST_F(FormDeliveryTest, WhateverIsRefusedKeepsMarksAndPicturesTogether) {
    const std::pair<std::string, std::string> refusals[] = {{"move", folders_.ProcessIn},
                                                            {"write", folders_.ProcessOut},
                                                            {"read", folders_.ProcessOut + ".delivery-new"},
                                                            {"read", folders_.ProcessOut + "a.xml"}};
    for (const auto& [kind, place] : refusals) {
        for (const std::string scan : {"new.tif", "strange.tif"}) {
            SCOPED_TRACE(kind + " " + scan);
            Arrange(scan);
            files_.refuse = [&kind = kind, &place = place](const std::string& operation,
                                                           const std::string& path) {
                return operation == kind && path.starts_with(place);
            };
            Process();
            files_.refuse = nullptr;
            EXPECT_EQ(In(folders_.ProcessIn).empty(), kind != "move");
            if (kind == "write" || place.ends_with("new")) {
                EXPECT_EQ(In(folders_.ProcessOut), Names{"a.tif"}) << "it arrives, but without a result";
            } else if (kind == "move" || scan == "new.tif") {
                ExpectMarksOfTheirPicture(scan);
            }
        }
    }
}

TEST_F(FormDeliveryTest, ASourceThatStaysHasArrivedWithItsMarks) {
    files_.isElsewhere = [this](const std::string& path) { return path.starts_with(folders_.ProcessIn); };
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "unlink"; };
    Process();
    EXPECT_TRUE(HasArrived("new.tif"));
    ExpectMarksOfTheirPicture("new.tif");
    EXPECT_EQ(transcript_.LinesOf("report: "),
              Names{"[a.tif] Cannot delete " + folders_.ProcessIn + "a.tif: refused by the test"});
}

// A note may be older than what lies there now.
TEST_F(FormDeliveryTest, TheNextStartTellsWhatItSettled) {
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "move" && path.starts_with(folders_.ProcessOut + ".");
    };
    Process();
    EXPECT_TRUE(HasArrived("new.tif"));
    files_.refuse = nullptr;
    StartAgain();
    ExpectMarksOfTheirPicture("new.tif");
    EXPECT_EQ(ProcessLog().back(), "a.tif: Result put in its place, which was cut short before");

    const std::string marks = ReadText(folders_.ProcessOut + "a.xml");
    WriteText(
        folders_.ProcessOut + ".delivery-old-1-" + files_.Fingerprint(folders_.ProcessOut + "a.tif") + ".xml",
        kReviewed);
    StartAgain();
    EXPECT_EQ(ReadText(folders_.ProcessOut + "a.xml"), marks);
    EXPECT_EQ(files_.List(folders_.ProcessOut, ".*"), Names());
    WriteText(folders_.ProcessOut + ".delivery-new-1-.xml", "damaged");
    StartAgain();
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + ".delivery-new-1-.xml"));
}

}  // namespace
}  // namespace tavrene
