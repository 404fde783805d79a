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
    Process();
    test::WriteText(folders_.ProcessOut + "by-hand.tif", "x");
    test::WriteText(folders_.Log + "TavreneBoxes-Process-20240304.Log",
                    "02:05:09 PM by-hand.tif: Image has too many colors\r\n"
                    "02:05:10 PM by-hand.tif: Processing complete\r\n02:05:10 PM torn.png: older news\r\n");
    files_.Delete(folders_.ProcessOut + "lost: b] .xml");
    test::WriteText(folders_.ProcessOut + "older.xml", "damaged");
    const std::string gone = ": Its result document has gone or cannot be read.";
    const Names all = {"by-hand.tif: Image has too many colors", "lost: b] .tif" + gone,
                       "notes.txt: Unrecognized File type",      "older.tif" + gone,
                       "torn.png: Image not in bitmap format",   "\u00fcber.tif: unclassified"};
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

}  // namespace
}  // namespace tavrene
