#include "ReviewWorld.h"

namespace tavrene {
namespace {

using test::Names;

class UnreadPagesTest : public test::ReviewWorld {
  protected:
    Names Unread() const {
        Names lines;
        for (const review::UnreadPage& page : review_.Unread())
            lines.push_back(page.Name + ": " + page.Reason);
        return lines;
    }
};

TEST_F(UnreadPagesTest, EveryPageWithoutAFormIsListedWithTheLastReasonOfTheLogs) {
    AddScan("good.tif");
    AddScan("lost: b] .tif");
    AddScan("older.tif");
    const auto other = test::TestForm::Grid(3, 1, 30);
    other.SaveScan(folders_.ProcessIn + "\u00fcber.tif", {});
    test::WriteText(folders_.ProcessIn + "torn.png", "no image");
    test::WriteText(folders_.ProcessIn + "notes.txt", "x");
    test::WriteText(folders_.ProcessIn + "\u4e00.tif", "no image");
    test::WriteText(folders_.ProcessIn + "\u4e8c.tif", "no image");
    Process();
    test::WriteText(folders_.ProcessOut + "by-hand.tif", "x");
    test::WriteText(
        folders_.Log + "TavreneBoxes-Process-20240304.Log",
        "02:05:09 PM by-hand.tif: Image has too many colors\r\n"
        "02:05:10 PM by-hand.tif: Processing complete\r\n"
        "02:05:11 PM by-hand.tif: Result of the image before removed, which was cut short before\r\n"
        "02:05:10 PM torn.png: older news\r\n");
    files_.Delete(folders_.ProcessOut + "lost: b] .xml");
    test::WriteText(folders_.ProcessOut + "older.xml", "damaged");
    // Letters that the logs lack.
    const Names twins = {"\u4e00.tif: Image not in bitmap format", "\u4e8c.tif: Image not in bitmap format"};
    const std::string gone = ": Its result document has gone or cannot be read.";
    const Names all = {"by-hand.tif: Image has too many colors",
                       "lost: b] .tif" + gone,
                       "notes.txt: Unrecognized File type",
                       "older.tif" + gone,
                       "torn.png: Image not in bitmap format",
                       "\u00fcber.tif: unclassified",
                       twins[0],
                       twins[1]};
    EnterReview();
    EXPECT_EQ(Unread(), all);
    EXPECT_EQ(list_.lines, Names{"good 100"});

    Open(0);
    Reject();
    Do([this] { review_.FollowFolder(); });
    EXPECT_EQ(Unread(), all) << "a decision takes the picture along";
    files_.Delete(folders_.ProcessOut + "notes.txt");
    Do([this] { review_.FollowFolder(); });
    EXPECT_EQ(Unread().size(), all.size() - 1);
}

TEST_F(UnreadPagesTest, PagesGoBackOnceTheirNameIsFreeAndAreReadThen) {
    const auto other = test::TestForm::Grid(3, 2, 30);
    for (const char* name : {"a.tif", "b.tif"})
        other.SaveScan(folders_.ProcessIn + name, {});
    ProcessAndReview();
    AddScan("a.tif");
    Do([this] { review_.SendBack(Names{"a.tif"}); });
    EXPECT_EQ(person_.PanelText(app::Panel::Message),
              "0 pages are back in ProcessIn. 1 stayed: a file of that name waits there already.");
    EXPECT_EQ(Unread().size(), 2U);
    Do([this] { review_.SendAllBack(); });
    EXPECT_EQ(Unread(), Names{"a.tif: unclassified"});
    EXPECT_EQ(In(folders_.ProcessIn), (Names{"a.tif", "b.tif"}));
    EXPECT_EQ(LastLogLine(), "Image [b.tif] sent back to " + folders_.ProcessIn);

    Toggle();
    files_.Delete(folders_.ProcessIn + "a.tif");
    Do([this] { review_.SendAllBack(); });  // outside review, too
    AddProfile("Other", other);
    ProcessAndReview();
    EXPECT_EQ(list_.lines, (Names{"a 100", "b 100"}));
    EXPECT_TRUE(review_.Unread().empty());
}

TEST_F(UnreadPagesTest, WhatHasAResultByNowStaysWithItAndAFailureTellsWhatWentBefore) {
    const auto other = test::TestForm::Grid(3, 2, 30);
    AddScan("0.tif");
    for (const char* name : {"a.tif", "b.tif", "c.tif", "d.tif"})
        other.SaveScan(folders_.ProcessIn + name, {});
    Process();
    const auto refuse = [this](const std::string& wanted, const std::string& part) {
        files_.refuse = [wanted, part](const std::string& operation, const std::string& path) {
            return operation == wanted && path.find(part) != std::string::npos;
        };
    };
    refuse("read", "0.xml");
    EnterReview();
    ASSERT_EQ(Unread().size(), 5U);
    files_.refuse = {};
    std::string document = test::ReadText(folders_.ProcessOut + "0.xml");
    document.replace(document.find("0.tif"), 5, "a.tif");
    test::WriteText(folders_.ProcessOut + "a.xml", document);
    files_.Delete(folders_.ProcessOut + "b.tif");
    refuse("move", "d.tif");
    Do([this] { review_.SendAllBack(); });
    EXPECT_EQ(person_.PanelText(app::Panel::Message),
              "1 page is back in ProcessIn. 3 needed nothing: gone, or read meanwhile.");
    EXPECT_EQ(transcript_.LinesOf("message: ").size(), 1U);
    EXPECT_EQ(In(folders_.ProcessIn), Names{"c.tif"});
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "0.tif")) << "its document was away for a moment";
    EXPECT_EQ(list_.lines, Names{"a 100"});
}

}  // namespace
}  // namespace tavrene
