#include "SessionWorld.h"
#include "painter/ImageFiles.h"
#include "painter/Random.h"
#include "support/Faults.h"

namespace tavrene::profiles {
namespace {

using app::Panel;
using test::Has;
using test::ReadText;
using test::WriteText;
using Names = std::vector<std::string>;

class ProfileSessionTest : public test::SessionWorld {};

TEST_F(ProfileSessionTest, CreatesAProfileFromABlankForm) {
    AddProfiles({"Beta"});
    const std::string image = folders_.ProfileImages + "blank & ä.tif";
    form_.SaveScan(image, {});
    clock_.tick = 7.0;
    ASSERT_TRUE(Create("Alpha.Tvp", image));

    for (std::size_t k = 0; k < 6; ++k)
        form_.boxes[k].Name = "Un-named-" + std::to_string(k + 1);
    std::string document = form_.ProfileText("Alpha");
    const std::string imageName = "Alpha.tif";
    document.replace(document.find(imageName), imageName.size(),
                     folders_.ProfileImages + "blank &amp; ä.tif");
    EXPECT_EQ(ReadText(PathOf("Alpha")), document);
    EXPECT_EQ(Logged(), (Names{"New Profile: <Alpha> 6 OMR Boxes Identified.", "Created Profile: Alpha"}));
    EXPECT_TRUE(Profile().IsOpen && Profile().Active && !Profile().ProfileChanged);
    EXPECT_EQ(strip_.captions, (Names{"Profile 1 of 2", "Profile 2 of 2"}));
    EXPECT_EQ(strip_.selected, 1);
    EXPECT_EQ(StripPages().size(), 2U);
    EXPECT_EQ(screen_.nextGroup, 7);
    EXPECT_EQ(transcript_.LinesOf("view: "), (Names{"clear", "zoom 100", "picture 600x500"}));
    EXPECT_EQ(person_.PanelText(Panel::File), "Profiles:2, Active:2");
    EXPECT_EQ(person_.PanelText(Panel::Message), "6 OMR Boxes identified");
    EXPECT_EQ(transcript_.LinesOf("panel ElapsedTime: ").at(0), "7 Sec.");
    EXPECT_FALSE(files_.FileExists(folders_.Temp + "temp.tif")) << "a bilevel TIFF is read as it is";

    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "write" && path.ends_with(".Tvp");
    };
    EXPECT_THROW(Create("Gamma.Tvp", image), app::FileError);
    EXPECT_EQ(Profile().Name, "Alpha");
    EXPECT_EQ(screen_.rows.size(), 6U);

    files_.refuse = nullptr;
    const std::vector<OmrBox> boxes = Profile().BoxList;
    const std::string png = folders_.ProfileImages + "form.PNG";
    const samples::Canvas page = form_.Paint({});
    samples::SaveImage(samples::ToColour(page, page, page), imaging::ImageFormat::Png, png);
    ASSERT_TRUE(Create("Alpha.Tvp", png));
    EXPECT_EQ(Profile().BoxList, boxes);
    EXPECT_TRUE(files_.FileExists(folders_.Temp + "temp.tif"));
}

TEST_F(ProfileSessionTest, AScratchCopyThatCannotBeWrittenCostsNoProfile) {
    AddProfiles({"Beta"});
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "write" && path.starts_with(folders_.Temp);
    };
    const std::string png = folders_.ProfileImages + "form.png";
    samples::SaveImage(samples::ToGrey(form_.Paint({})), imaging::ImageFormat::Png, png);
    for (const std::string& image : {folders_.ProfileImages + "Beta.tif", png}) {
        ASSERT_TRUE(Create("Alpha.Tvp", image)) << image;
        EXPECT_TRUE(Profile().IsOpen && Profile().CurrentProfile == 1 && screen_.rows.size() == 6);
        EXPECT_EQ(strip_.captions.size(), 2U);
        EXPECT_EQ(transcript_.LinesOf("view: ").back(), "picture 600x500");
        EXPECT_PRED2(Has, session_.Notices().at(0).text, "Cannot write " + folders_.Temp);
        EXPECT_TRUE(Pick(1)) << "nor one that is there";
    }
}

TEST_F(ProfileSessionTest, SizesThatMakeTooMuchWorkOfAPageChangeNothing) {
    AddProfiles({"Beta"});
    // Noise makes every run of two pixels a line piece near every other.
    samples::Canvas noise(900, 900, 200);
    samples::Random dice(7);
    for (int place = 0; place < 900 * 900; ++place) {
        if (dice.Chance(0.4))
            noise.Set(place % 900, place / 900, samples::kBlack);
    }
    const std::string image = folders_.ProfileImages + "noise.tif";
    samples::SaveImage(samples::ToBilevel(noise), imaging::ImageFormat::Tiff, image);
    constexpr boxes::BoxSizes sizes{1, 10000, 1, 10000};
    dialogs_.answers = {folders_.Profiles + "Gamma.Tvp", image};
    session_.New(sizes, boxes::ReachFor(sizes));
    EXPECT_PRED2(Has, transcript_.LinesOf("message: ").back(),
                 "Please set sizes nearer to those of its boxes.");
    EXPECT_FALSE(files_.FileExists(PathOf("Gamma")));
    EXPECT_FALSE(Profile().IsOpen);
}

TEST_F(ProfileSessionTest, RefusesImagesBeforeAnyStep) {
    samples::SaveImage(samples::ToGrey(form_.Paint({})), imaging::ImageFormat::Tiff,
                       folders_.ProfileImages + "grey.tif");
    WriteText(folders_.ProfileImages + "broken.tif", "no image");
    for (const char* name : {"grey.tif", "broken.tif", "missing.tif", "form.tiff"})
        EXPECT_FALSE(Create("Gamma.Tvp", folders_.ProfileImages + name)) << name;
    EXPECT_EQ(transcript_.LinesOf("message: "),
              (Names{"[] Image has more than 2 colors. cannot process.", "[] Image not in bitmap format",
                     "[] Image not in bitmap format", "[] Image not in bitmap format"}));
    EXPECT_EQ(person_.PanelText(Panel::Message), "");
    EXPECT_TRUE(Logged().empty());
    EXPECT_FALSE(files_.FileExists(PathOf("Gamma")));
}

TEST_F(ProfileSessionTest, OpensAProfileAndFitsItsImage) {
    form_.width = 2000;
    AddProfiles({"Wide"});
    form_.width = 750;
    AddProfiles({"Fits"});
    EXPECT_EQ(session_.NameOf(2), "Wide");
    EXPECT_EQ(session_.NameOf(3), "");
    ASSERT_TRUE(Pick(1));
    EXPECT_EQ(screen_.Zoom(), 100);
    transcript_.Clear();
    ASSERT_TRUE(Pick(2));
    EXPECT_EQ(person_.PanelText(Panel::Message), "Profile [Wide], Image [Wide.tif]");
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:6");
    EXPECT_PRED2(Has, ProfileLog(), "Loaded Profile: Wide\r\n");
    EXPECT_EQ(transcript_.LinesOf("view: zoom ").at(2), "92.16");
    EXPECT_LE(2000 * screen_.Zoom() / 100, 750);
    EXPECT_GT(2000 * screen_.Zoom() / 96, 750);
    EXPECT_FALSE(Pick(0));
    EXPECT_EQ(Profile().Name, "Wide");

    form_.width = 2000;
    samples::SaveImage(samples::ToGrey(form_.Paint({})), imaging::ImageFormat::Tiff,
                       folders_.ProfileImages + "Fits.tif");  // of no use for box finding, but can be shown
    ASSERT_TRUE(Pick(1));
    EXPECT_EQ(transcript_.LinesOf("view: show ").back(), "Fits.tif");
    EXPECT_LE(2000 * screen_.Zoom() / 100, 750);
}

TEST_F(ProfileSessionTest, TakesOverThePagesOfUnchangedSpecimens) {
    WriteText(StripFile(), "of another day");
    session_.FillStrip();
    EXPECT_EQ(ReadText(StripFile()), "of another day") << "there is no profile";
    AddProfiles({"A", "B", "C"});
    const std::vector<imaging::TiffPage> pages = StripPages();
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0].picture.Width(), 140);
    int reads = 0;
    int writes = 0;
    files_.refuse = [&](const std::string& operation, const std::string& path) {
        reads += operation == "read" && path.starts_with(folders_.ProfileImages) ? 1 : 0;
        writes += operation == "write" && path == StripFile() ? 1 : 0;
        return false;
    };
    session_.FillStrip();
    EXPECT_EQ(reads + writes, 0);
    form_.height = 900;
    form_.SaveScan(folders_.ProfileImages + "B.tif", {});
    session_.FillStrip();
    EXPECT_EQ(std::pair(reads, writes), std::pair(1, 1));
    EXPECT_EQ(StripPages()[1].picture.Height(), 210);

    ProfileSession next(context_, profiles_, {screen_, screen_, strip_});
    next.FillStrip();  // a new start of the program takes the pages from the file
    EXPECT_EQ(reads + writes, 2);
    files_.Delete(StripFile());
    next.FillStrip();
    EXPECT_EQ(StripPages().size(), 3U);
}

TEST_F(ProfileSessionTest, WorksWithTheCountThatTheDocumentHas) {
    AddProfiles({"A"});
    std::string text = ReadText(PathOf("A"));
    text.erase(text.find(" DPI_X=\"200\""), 12);
    WriteText(PathOf("A"), text.replace(text.find("Count=\"6\""), 9, "Count=\"3\""));
    Pick(1);
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:3");
    EXPECT_EQ(screen_.rows.size(), 6U);
    session_.Editor().SetTool(imaging::BoxTool::Add);
    session_.Editor().RectSelected({7, 300, 300, 20, 20});
    EXPECT_EQ(Profile().BoxList[3].L, 60);  // no box gave its place to the drawn one
    EXPECT_TRUE(session_.Save());
    EXPECT_PRED2(Has, ReadText(PathOf("A")), "Count=\"4\"");
    EXPECT_PRED2(Has, session_.Notices().at(0).text, "does not say the resolution") << "saved or not";
}

}  // namespace
}  // namespace tavrene::profiles
