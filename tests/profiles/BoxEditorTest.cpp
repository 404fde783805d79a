#include "EditorWorld.h"

namespace tavrene::profiles {
namespace {

using imaging::BoxTool;
using test::TestForm;

using BoxEditorTest = test::EditorWorld;

TEST_F(BoxEditorTest, BuildsBothViewsAndPaintsBoxesOnePixelShort) {
    std::vector<OmrBox> boxes = TestForm::Grid(10, 12).boxes;
    boxes[1].Name.clear();
    transcript_.Clear();
    Open(boxes);
    EXPECT_EQ(screen_.rows.at(1) + screen_.rows.at(2), "Q1Un-named-2");
    EXPECT_EQ(screen_.rows.size(), 120U);
    EXPECT_EQ(imaging::PaintedPart(screen_.rects.at(2)), (imaging::PageRect{114, 70, 24, 23}));
    EXPECT_EQ(profile_.NextBoxId, 121);
    EXPECT_EQ(transcript_.LinesOf("range: "), std::vector<std::string>{"120"});
    EXPECT_EQ(transcript_.LinesOf("progress: ").at(119), "120");
}

TEST_F(BoxEditorTest, TakesCoordinatesFromViewUnits) {
    screen_.SetZoom(50);
    editor_.RectMoved(2);
    editor_.RectSelected({2, 10, 20, 15, 12});
    EXPECT_EQ(Place(2), (std::vector<int>{20, 40, 50, 64}));
    screen_.scroll = {100, 7};
    screen_.SetZoom(200);
    editor_.RectSelected({3, -90, 1, 25, 20});  // 5, 4, 17.5, 14: halves go to the even neighbour
    EXPECT_EQ(Place(3), (std::vector<int>{5, 4, 18, 14}));
    EXPECT_TRUE(profile_.ProfileChanged);
    const std::vector<OmrBox> before = profile_.BoxList;
    editor_.RectSelected({4, 10, 20, 0, 0});
    editor_.RectSelected({99, 10, 20, 15, 12});
    editor_.RectSelected({0, 10, 20, 15, 12});
    Draw(10, 20, 15, 12);  // not with the selecting tool
    editor_.SetTool(BoxTool::Add);
    Draw(10, 20, 0, 0);
    profile_.IsOpen = false;  // a run has closed it
    editor_.RectSelected({2, 10, 20, 15, 12});
    editor_.Nudge(1, 1);
    EXPECT_EQ(profile_.BoxList, before);
    EXPECT_EQ(screen_.selectedRow, 2);
}

TEST_F(BoxEditorTest, DeletingTheLastBoxMakesTheFirstCurrent) {
    Delete(6);
    editor_.RowClicked(6);  // gone
    EXPECT_EQ(profile_.Selected.Current(), 1);
    EXPECT_EQ(screen_.emphasised, 1);
    for (int k = 0; k < 6; ++k)
        editor_.DeleteBox();
    EXPECT_EQ(profile_.Count + profile_.Selected.Current(), 0);
    EXPECT_TRUE(screen_.rows.empty());
    EXPECT_EQ(ComposeOmrs(profile_.BoxList, profile_.Count), "<OMRs Count=\"0\">\r\n</OMRs>\r\n");
}

// As a document written by hand may have it.
TEST_F(BoxEditorTest, ABoxWithItsEdgesInTheOtherOrderMovesAsItIsDrawn) {
    std::vector<OmrBox> boxes = TestForm::Grid(2, 1).boxes;
    std::swap(boxes[0].L, boxes[0].R);
    std::swap(boxes[0].T, boxes[0].B);
    Open(boxes);
    const imaging::PageRect drawn = screen_.rects.at(1);
    EXPECT_EQ(drawn, (imaging::PageRect{60, 70, 24, 24}));
    const auto report = [&](double dx) {
        return imaging::RectReport{1, drawn.left + dx, drawn.top, drawn.width, drawn.height};
    };
    editor_.RectSelected(report(0));
    EXPECT_FALSE(profile_.ProfileChanged) << "it was only selected";
    editor_.RectSelected(report(7));
    EXPECT_EQ(Place(1), (std::vector<int>{67, 70, 91, 94}));
}

// A saved profile is numbered anew, so an older box may have the name of another one's number.
TEST_F(BoxEditorTest, ADrawnBoxIsNamedByItsNumberAndAddedOnesByTheNextThatIsFree) {
    std::vector<OmrBox> boxes = TestForm::Grid(2, 1).boxes;
    boxes[0].Name = "Un-named-3";
    boxes[1].Name = "Un-named-4";
    Open(boxes);
    editor_.SetTool(BoxTool::Add);
    Draw(300, 300, 20, 20);
    EXPECT_EQ(screen_.rows.at(3), "Un-named-3");
    editor_.AddBoxes({{"", 400, 300, 420, 320}, {"", 500, 300, 520, 320}});
    EXPECT_EQ(screen_.rows.at(4) + " " + screen_.rows.at(5), "Un-named-5 Un-named-6");
}

TEST_F(BoxEditorTest, ArrowKeysMoveTheCurrentBoxOnThePage) {
    editor_.Nudge(1, 0);  // no current box
    EXPECT_FALSE(profile_.ProfileChanged);
    editor_.RowClicked(1);
    editor_.Nudge(-10, 1);
    EXPECT_EQ(Place(1), (std::vector<int>{50, 71, 74, 95}));
    EXPECT_EQ(screen_.rects.at(1), (imaging::PageRect{50, 71, 24, 24}));
    profile_.ImageWidth = 100;
    profile_.ImageHeight = 200;
    editor_.Nudge(50, -100);
    EXPECT_EQ(Place(1), (std::vector<int>{76, 0, 100, 24}));
    Box(1) = {"beside the page", -40, 300, -20, 320};
    editor_.Nudge(-1, 1);
    editor_.Nudge(10, -10);
    EXPECT_EQ(Place(1), (std::vector<int>{-30, 290, -10, 310}));
    profile_.ImageWidth = 0;  // not known
    Box(1) = {"at the end of the number range", 32740, 10, 32760, 20};
    editor_.Nudge(10, 0);
    EXPECT_EQ(Place(1), (std::vector<int>{32747, 10, 32767, 20}));
}

TEST_F(BoxEditorTest, CountAndWhatIsUnsavedFollowTheEditsBackAndForth) {
    editor_.SetTool(BoxTool::Add);
    Draw(300, 300, 20, 20);
    editor_.DeleteBox();
    EXPECT_FALSE(screen_.rows.contains(7)) << "what was drawn is current";
    Delete(2);
    editor_.ClearChanged();  // saved here
    EXPECT_EQ(profile_.Count, 5);
    editor_.Undo();
    EXPECT_TRUE(profile_.ProfileChanged);
    editor_.Undo();
    EXPECT_EQ(profile_.Count, 7);
    editor_.Undo();
    EXPECT_EQ(std::pair(screen_.nextGroup, profile_.NextBoxId), std::pair(7, 7));
    for (int k = 0; k < 3; ++k)
        editor_.Redo();
    EXPECT_EQ(profile_.Count, 5);
    EXPECT_FALSE(profile_.ProfileChanged);
    editor_.Undo();
    Rename(1, "other");
    EXPECT_FALSE(editor_.CanRedo());
    editor_.Undo();
    EXPECT_TRUE(profile_.ProfileChanged);  // the saved state cannot be reached any more
}

}  // namespace
}  // namespace tavrene::profiles
