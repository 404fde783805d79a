#include "profiles/ProfileDocument.h"
#include "profiles/ProfileLoader.h"
#include "profiles/XmlFile.h"
#include "support/Faults.h"
#include "support/RunWorld.h"

namespace tavrene::profiles {
namespace {

class ProfileDocumentTest : public test::RunWorld {
  protected:
    void WriteProfile(const std::string& fileName, const std::string& text) {
        test::WriteText(folders_.Profiles + fileName, text);
    }

    std::vector<ProfileRecord> Load() { return LoadActiveProfiles(files_, log_, person_, folders_.Profiles); }
};

TEST_F(ProfileDocumentTest, CreatesAndRewritesTheDocumentOnOneLine) {
    const std::string path = work_.File("Form.Tvp");
    std::vector<OmrBox> boxes = {{"größer ja/nein", 100, 340, 132, 371}, {"Q2", 200, 340, 232, 371}};
    pugi::xml_document document =
        CreateProfileDocument({"Form", "/scans/a & b.tif", 200, 196, true}, ComposeOmrs(boxes, 2));
    boxes[1].Checked = false;
    for (const bool active : {true, false}) {
        SaveProfileDocument(files_, path, document);
        EXPECT_EQ(test::ReadText(path),
                  std::string("<Tavrene Profile=\"Form\" Image=\"/scans/a &amp; b.tif\" DPI_X=\"200\" ") +
                      "DPI_Y=\"196\" Active=\"" + (active ? "1" : "0") + "\"><OMRs Count=\"" +
                      (active ? "2" : "1") +
                      "\"><OMR ID=\"1\" L=\"100\" T=\"340\" R=\"132\" B=\"371\" Name=\"größer ja/nein\"/>" +
                      (active ? "<OMR ID=\"2\" L=\"200\" T=\"340\" R=\"232\" B=\"371\" Name=\"Q2\"/>" : "") +
                      "</OMRs></Tavrene>");
        document = LoadProfileDocument(files_, path);
        UpdateProfileDocument(document, false, ComposeOmrs(boxes, 1));
    }
}

TEST_F(ProfileDocumentTest, NamesTheBoxWhoseNameCannotBeWritten) {
    for (const std::string bad : {"say \"yes\"", "a<b", "R&D"}) {
        const std::vector<OmrBox> boxes = {{"fine", 100, 340, 132, 371}, {bad, 200, 340, 232, 371}};
        const std::string fault = test::FaultOf([&boxes] { ComposeOmrs(boxes, 2); });
        EXPECT_PRED2(test::Has, fault, "box 2 (" + bad + ")");
    }
}

TEST_F(ProfileDocumentTest, LeavesOutWhatCannotBeReadAndSaysWhy) {
    const std::string good = test::TestForm::Grid(2, 2).ProfileText("Good");
    const auto with = [&good](const std::string& from, const std::string& to) {
        std::string text = good;
        return text.replace(text.find(from), from.size(), to);
    };
    const std::vector<std::pair<std::string, std::string>> faults = {
        {"", "empty"},
        {"not xml at all", "before the root"},
        {good.substr(0, good.size() - 12), "not XML"},
        {"<?xml version=\"1.0\"?>" + good, "before the root"},
        {"<!-- note -->" + good, "before the root"},
        {"note " + good, "before the root"},
        {good + "<Tavrene/>", "behind the root"},
        {"<Other/>", "not Tavrene"},
        {"<Tavrene DPI_X=\"1\" DPI_Y=\"1\"/>", "element OMRs is missing"},
        {with(" DPI_Y=\"200\"", ""), "DPI_Y of Tavrene is missing"},
        {with(" Count=\"4\"", ""), "Count of OMRs is missing"},
        {with(" L=\"60\"", ""), "L of OMR is missing"},
        {with("T=\"70\"", "T=\"12px\""), "T of OMR is \"12px\""},
        {with("T=\"70\"", "T=\"nan\""), "T of OMR is \"nan\""},
        {with("</OMRs>", "</OMRs><OMRs Count=\"0\"/>"), "OMRs stands twice"},
        {with("R=\"84\"", "R=\"40000\""), "R of OMR is \"40000\""},
        {with("B=\"94\"", "B=\"94\" B=\"95\""), "B stands twice"}};
    for (std::size_t k = 0; k < faults.size(); ++k)
        WriteProfile("fault" + std::to_string(100 + k) + ".tvp", faults[k].first);
    WriteProfile("good.tvp", good);
    const std::vector<ProfileRecord> loaded = Load();
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].Name, "good");
    const std::string log = ProfileLog();
    for (std::size_t k = 0; k < faults.size(); ++k) {
        const std::size_t line = log.find("fault" + std::to_string(100 + k) + ".tvp is left out: ");
        ASSERT_NE(line, std::string::npos) << faults[k].second;
        const std::string reason = log.substr(line, log.find("\r\n", line) - line);
        EXPECT_PRED2(test::Has, reason, faults[k].second);
    }
}

TEST_F(ProfileDocumentTest, LoadsProfilesInListingOrderForRecognition) {
    const test::TestForm form = test::TestForm::Grid(2, 2);
    WriteProfile("beta.TVP", form.ProfileText("x"));
    WriteProfile("Alpha.Tvp", form.ProfileText("x", false));
    WriteProfile(".hidden.tvp", form.ProfileText("x"));
    WriteProfile("notes.txt", "no profile");
    std::string odd = form.ProfileText("x");
    odd.replace(odd.find("T=\"70\" R=\"84\" B=\"94\""), 20,
                "T=\"94\" R=\"84\" B=\"70\"");  // the other way up
    odd.replace(odd.find("Count=\"4\""), 9, "Count=\" +2.5e0 \"");
    odd.replace(odd.find("DPI_X=\"200\""), 11, "DPI_X=\"199.5\"");
    odd.replace(odd.find("Active=\"1\""), 10, "Active=\"true\"");
    odd.replace(odd.find(" Name=\"Q2\""), 10, "");
    WriteProfile("gamma.tvp", odd);

    const std::vector<ProfileRecord> loaded = Load();
    ASSERT_EQ(loaded.size(), 3U);
    EXPECT_EQ(loaded[0].Name, "Alpha");
    EXPECT_EQ(loaded[1].FileName, "beta.TVP");
    EXPECT_TRUE(loaded[1].Active);
    EXPECT_FALSE(loaded[0].Active || loaded[2].Active);
    EXPECT_EQ(loaded[2].Boxes.size(), 2U);
    EXPECT_EQ(loaded[2].DPI_X, 200);
    EXPECT_EQ(loaded[2].Boxes[1].Name, "");
    for (const ProfileRecord& profile : loaded) {
        EXPECT_EQ(profile.Boxes[0].lower, 94);
        EXPECT_EQ(profile.Boxes[0].upper, 70);
        EXPECT_EQ(profile.Boxes[0].expectedOutline, 2 * (24 + 24) - 4);
    }
    const auto& extent = loaded[0].Extent;
    EXPECT_EQ(std::tie(extent.L, extent.lower, extent.R, extent.upper), std::tuple(60, 94, 138, 124));
    EXPECT_EQ(person_.PanelText(app::Panel::File), "Profiles:3, Active:1");
    EXPECT_EQ(transcript_.LinesOf("panel Message: "),
              (std::vector<std::string>{"Loading profile " + folders_.Profiles + "Alpha.Tvp",
                                        "Loading profile " + folders_.Profiles + "beta.TVP",
                                        "Loading profile " + folders_.Profiles + "gamma.tvp", "Ready"}));
    EXPECT_EQ(ProfileLog(),
              "02:05:09 PM Loaded Profile: Alpha.Tvp\r\n02:05:09 PM Loaded Profile: beta.TVP\r\n"
              "02:05:09 PM Loaded Profile: gamma.tvp\r\n");
}

}  // namespace
}  // namespace tavrene::profiles
