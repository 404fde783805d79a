#include <filesystem>

#include "painter/ImageFiles.h"
#include "support/Faults.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using test::ReadText;
using test::TestForm;
using test::WriteText;
using Names = std::vector<std::string>;

class BadInputTest : public test::RunWorld {
  protected:
    BadInputTest() { AddProfile("Form", form_); }

    void AddScan(const std::string& name) { form_.SaveScan(folders_.ProcessIn + name, {.checked = {2}}); }

    // The process-log lines that begin with `name`.
    Names LogAbout(const std::string& name) const {
        Names found;
        for (const std::string& line : ProcessLog()) {
            if (line.starts_with(name + ": "))
                found.push_back(line.substr(name.size() + 2));
        }
        return found;
    }

    TestForm form_ = TestForm::Grid(2, 2);
    int writes_ = 0;  // into ProcessOut
};

TEST_F(BadInputTest, UnusableFilesAreNamedAndMovedAndTheRunGoesOn) {
    const samples::Canvas page = form_.Paint({});
    WriteText(folders_.ProcessIn + "empty.tif", "");
    WriteText(folders_.ProcessIn + "text.jpg", "Dear Sir or Madam");
    using imaging::ImageFormat;
    const auto save = [this](const imaging::Bitmap& picture, ImageFormat format, const std::string& name) {
        samples::SaveImage(picture, format, folders_.ProcessIn + name);
    };
    save(samples::ToGrey(page), ImageFormat::Png, "mislabelled.tif");
    save(samples::ToGrey(page), ImageFormat::Tiff, "grey.tif");
    save(samples::ToGrey(page), ImageFormat::Bmp, "grey.bmp");
    save(samples::ToBilevel({1, 1, 200}), ImageFormat::Tiff, "dot.tif");
    save(samples::ToGrey({40'000, 10, 200}), ImageFormat::Png, "wide.png");
    AddScan("cut.tif");
    WriteText(folders_.ProcessIn + "cut.tif", ReadText(folders_.ProcessIn + "cut.tif").substr(0, 60));
    WriteText(folders_.ProcessIn + "noextension", "x");
    AddScan(std::string(196, 'n') + ".tif");
    AddScan("Größe 'A' & \"B\".tif");
    WriteText(folders_.ProcessIn + "sparse.tif", "x");
    std::filesystem::resize_file(folders_.ProcessIn + "sparse.tif", std::uintmax_t{60} << 30U);
    Process();

    EXPECT_EQ(In(folders_.ProcessIn), Names());
    EXPECT_EQ(In(folders_.ProcessOut).size(), 14U);
    const std::string noBitmap = "Image not in bitmap format";
    const std::string colors = "Unable to process since image has more than 2 colors";
    EXPECT_EQ(transcript_.LinesOf("report: "),
              (Names{"[cut.tif] " + noBitmap, "[empty.tif] " + noBitmap, "[grey.bmp] " + colors,
                     "[grey.tif] " + colors, "[mislabelled.tif] " + noBitmap, "[sparse.tif] " + noBitmap,
                     "[text.jpg] " + noBitmap, "[wide.png] " + noBitmap}));
    EXPECT_TRUE(transcript_.LinesOf("message: ").empty()) << "bad files ask for no click";
    EXPECT_EQ(LogAbout("grey.tif"), (Names{colors, "Processing complete"}));
    EXPECT_EQ(LogAbout("text.jpg"), (Names{noBitmap, "Processing complete"}));
    EXPECT_EQ(LogAbout("noextension"), (Names{"Unrecognized File type", "Processing complete"}));
    EXPECT_EQ(LogAbout("dot.tif"), (Names{"Processing complete"}));
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + std::string(196, 'n') + ".xml"));
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "Größe 'A' & \"B\".xml"));
}

TEST_F(BadInputTest, AResultThatCannotBeWrittenLeavesNoneBehind) {
    AddScan("a.tif");
    AddScan("b.tif");
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "write" && path.starts_with(folders_.ProcessOut) && writes_++ == 0;
    };
    Process();
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "b.tif", "b.xml"}));
    EXPECT_EQ(LogAbout("a.tif"), (Names{"Cannot write " + folders_.ProcessOut + "a.xml: refused by the test",
                                        "Processing complete"}));
}

TEST_F(BadInputTest, AnImageThatCannotBeMovedKeepsEverythingAsItWas) {
    AddScan("a.tif");
    Process();
    const std::string earlier = ReadText(folders_.ProcessOut + "a.xml") + "<!-- reviewed -->";
    WriteText(folders_.ProcessOut + "a.xml", earlier);
    AddScan("a.tif");
    AddScan("b.tif");
    WriteText(folders_.ProcessIn + "c.tif", "no image");
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "move"; };
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"a.tif", "b.tif", "c.tif"}));
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml"}));
    EXPECT_EQ(ReadText(folders_.ProcessOut + "a.xml"), earlier);
    EXPECT_EQ(LogAbout("b.tif"), (Names{"Cannot move " + folders_.ProcessIn + "b.tif: refused by the test"}));
    EXPECT_EQ(transcript_.LinesOf("report: ").size(), 4U) << "three were not moved, and one is no image";
    files_.refuse = nullptr;
    WriteText(folders_.ProcessIn + "a.xml", "no result");
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), Names()) << "every file moves, whatever its name";
    EXPECT_EQ(ReadText(folders_.ProcessOut + "a.xml"), "no result");
}

TEST_F(BadInputTest, FoldersThatAreGoneStopNothing) {
    AddScan("a.tif");
    std::filesystem::remove_all(folders_.Log);
    std::filesystem::remove_all(folders_.Temp);
    settings_.DisplayDuringProcess = true;
    Process();
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"a.tif", "a.xml"}));
    const Names messages = transcript_.LinesOf("message: ");
    ASSERT_EQ(messages.size(), 1U);  // said once, at the end
    EXPECT_NE(messages[0].find("could not be written to the process log"), std::string::npos);

    files_.CreateFolder(folders_.Log);
    AddScan("b.tif");
    std::filesystem::remove_all(folders_.ProcessOut);
    Process();
    EXPECT_EQ(In(folders_.ProcessIn), Names{"b.tif"});
    EXPECT_EQ(LogAbout("b.tif").size(), 3U);  // no copy for the screen, no result, no move

    std::filesystem::remove_all(folders_.ProcessIn);
    Process();
    EXPECT_EQ(transcript_.LinesOf("message: ").size(), 1U);

    std::filesystem::remove_all(folders_.Profiles);
    Process();
    EXPECT_TRUE(profiles_.empty());
}

TEST_F(BadInputTest, AFormWhoseProfileCannotBeReadWithGetsNoResult) {
    AddProfile("Form", TestForm::Grid(1, 4));  // all boxes in one column
    TestForm::Grid(1, 4).SaveScan(folders_.ProcessIn + "a.tif", {});
    Process();
    EXPECT_EQ(In(folders_.ProcessOut), Names{"a.tif"});
    EXPECT_PRED2(test::Has, LogAbout("a.tif").at(0), "all lie in one column");
}

TEST_F(BadInputTest, AVanishedAndAnUnreadableFileAreLoggedOnce) {
    AddScan("1.tif");
    AddScan("2.tif");
    AddScan("3.tif");
    person_.onPendingEvents = [this] {
        if (files_.FileExists(folders_.ProcessIn + "2.tif"))
            files_.Delete(folders_.ProcessIn + "2.tif");
    };
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "read" && path == folders_.ProcessIn + "3.tif";
    };
    Process();
    EXPECT_EQ(transcript_.LinesOf("report: "),
              (Names{"[2.tif] Image not in bitmap format", "[3.tif] Image not in bitmap format"}));
    EXPECT_EQ(In(folders_.ProcessOut), (Names{"1.tif", "1.xml", "3.tif"}));
    EXPECT_EQ(LogAbout("2.tif").size(), 2U);  // no image, no move
}

TEST_F(BadInputTest, HugeProfilesAndWildCoordinatesAreHarmless) {
    AddProfile("Many", TestForm::Grid(100, 100, 20, 0, 0));
    TestForm wild = form_;
    wild.boxes[0].L = -32'000;
    wild.boxes[2].T = -5;
    wild.boxes[1].R = wild.boxes[3].B = 32'767;
    AddProfile("Wild", wild);
    AddScan("a.tif");
    Process();
    EXPECT_PRED2(test::Has, ReadText(folders_.ProcessOut + "a.xml"), "Profile=\"Form\"");
}

}  // namespace
}  // namespace tavrene
