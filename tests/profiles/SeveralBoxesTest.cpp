#include "EditorWorld.h"
#include "profiles/BoxArrangement.h"
#include "profiles/BoxCells.h"
#include "profiles/BoxPlace.h"
#include "profiles/GroupEdits.h"

namespace tavrene::profiles {
namespace {

using imaging::PageRect;
using Numbers = std::vector<int>;

class SeveralBoxesTest : public test::EditorWorld {
  protected:
    Numbers Lefts() const {
        Numbers lefts;
        for (const OmrBox& box : profile_.BoxList)
            lefts.push_back(box.L);
        return lefts;
    }
    void Arrange(const std::function<void(std::vector<OmrBox>&, const BoxSelection&, PageExtent)>& arrange) {
        editor_.Change(
            [&](std::vector<OmrBox>& boxes) { arrange(boxes, profile_.Selected, ExtentOf(profile_)); });
    }
    static void AlignRight(std::vector<OmrBox>& boxes, const BoxSelection& selected, PageExtent page) {
        Align(boxes, selected, Side::Right, page);
    }
};

// Q1 to Q3 stand at 60, 114 and 168 in the first row, Q4 to Q6 below them.
TEST_F(SeveralBoxesTest, ArePickedByRowsByBoxesAndByAFrame) {
    const auto row = [this](int number, Pick pick) {
        return [=, this] { editor_.RowClicked(number, pick); };
    };
    const auto rect = [this](int number, Pick pick) {
        return [=, this] { editor_.RectPicked(number, pick); };
    };
    const auto frame = [this](PageRect area, bool isFurther) {
        return [=, this] { editor_.AreaPicked(area, isFurther); };
    };
    const std::vector<std::pair<std::function<void()>, Numbers>> steps = {
        {row(2, Pick::Toggle), {2}},
        {row(5, Pick::Span), {2, 3, 4, 5}},
        {row(3, Pick::Span), {2, 3}},
        {row(2, Pick::Toggle), {3}},
        {row(3, Pick::Toggle), {3}},  // the last one stays
        {rect(5, Pick::Span), {2, 3, 5, 6}},
        {rect(2, Pick::Toggle), {3, 5, 6}},
        {frame({0, 0, 100, 100}, true), {1, 3, 5, 6}},
        {frame({0, 0, 10, 10}, false), {1, 3, 5, 6}},  // around nothing
        {frame({0, 0, 130, 100}, false), {1, 2}},
        {row(4, Pick::Only), {4}},
    };
    for (std::size_t step = 0; step < steps.size(); ++step) {
        steps[step].first();
        EXPECT_EQ(profile_.Selected.Numbers(), steps[step].second) << step;
        EXPECT_EQ(screen_.marked, steps[step].second.size() > 1 ? steps[step].second : Numbers{}) << step;
        EXPECT_TRUE(profile_.Selected.Has(screen_.emphasised)) << step;
        EXPECT_EQ(screen_.selectedRow, screen_.emphasised) << step;
    }
    EXPECT_FALSE(profile_.ProfileChanged);
    Box(5).R = static_cast<std::int16_t>(Box(5).R + 2);
    Box(6).R = static_cast<std::int16_t>(Box(6).R + 5);
    EXPECT_EQ(OfSizeOf(profile_.BoxList, 4).Numbers(), (Numbers{1, 2, 3, 4, 5}));
}

TEST_F(SeveralBoxesTest, AreArrangedAndMovedTogetherOnThePage) {
    profile_.ImageWidth = 230;
    editor_.Select(BoxSelection({1, 2, 3}, 2));
    editor_.Nudge(100, 0);
    EXPECT_EQ(Lefts(), (Numbers{98, 152, 206, 60, 114, 168}))
        << "the right one stops at the edge of the page";
    editor_.Nudge(-60, 0);
    Box(2).L = 101;
    Arrange([](auto& boxes, const auto& selected, auto) { Distribute(boxes, selected, Direction::Across); });
    EXPECT_EQ(Lefts(), (Numbers{38, 97, 146, 60, 114, 168})) << "the middle of the narrower one";
    Arrange(MakeEqualSize);
    EXPECT_EQ(Place(1), (std::vector<int>{42, 70, 57, 94}))
        << "as narrow as the current one, its middle kept";
    Arrange(AlignRight);
    EXPECT_EQ(Lefts(), (Numbers{97, 97, 97, 60, 114, 168}));
    Box(1) = {"wide", 0, 70, 120, 94};
    Arrange([](auto& boxes, const auto& selected, auto page) { Align(boxes, selected, Side::Left, page); });
    Arrange(AlignRight);
    EXPECT_EQ(Lefts(), (Numbers{0, 97, 97, 60, 114, 168})) << "not off the left of the page";
    editor_.Select(BoxSelection({1, 6}, 1));
    Arrange(MakeEqualSize);
    EXPECT_EQ(Place(6), (std::vector<int>{110, 124, 230, 148})) << "nor off its right";
    editor_.Select(BoxSelection({1, 2, 3}, 2));
    editor_.DeleteBox();
    EXPECT_EQ(profile_.Selected.Numbers(), Numbers{4});
    EXPECT_EQ(profile_.Count, 3);
    EXPECT_FALSE(editor_.Change([](auto&) {}));
}

TEST_F(SeveralBoxesTest, AHeldKeyIsOneStep) {
    editor_.Select(BoxSelection({1, 4}, 1));
    editor_.Nudge(1, 0);
    for (int k = 0; k < 9; ++k)
        editor_.Nudge(1, 0, true);
    editor_.Nudge(0, 1);
    editor_.ClearChanged();  // saved
    editor_.Nudge(0, 1, true);
    EXPECT_EQ(Place(4), (std::vector<int>{70, 126, 94, 150}));
    editor_.Undo();
    EXPECT_FALSE(profile_.ProfileChanged);
    editor_.Undo();
    EXPECT_EQ(Place(4), (std::vector<int>{70, 124, 94, 148}));
    editor_.Undo();
    EXPECT_EQ(Place(4), (std::vector<int>{60, 124, 84, 148}));
    EXPECT_FALSE(editor_.CanUndo());
}

TEST_F(SeveralBoxesTest, GroupsFollowTheirBoxesThroughEveryEdit) {
    const auto groups = [this] {
        std::string text;
        for (const BoxGroup& group : profile_.Groups.value_or(std::vector<BoxGroup>())) {
            text += group.Name + ":";
            for (const std::string& box : group.Boxes)
                text += " " + box;
            text += "; ";
        }
        return text;
    };
    editor_.SetGroups(GroupsByRow(profile_.BoxList, KeptNumbers(profile_.BoxList)));
    EXPECT_EQ(groups(), "Q1: Q1 Q2 Q3; Q4: Q4 Q5 Q6; ");
    editor_.SetGroups(WithGroup(*profile_.Groups, {"hand", {"Q3", "Q4"}, Takes::AtLeastOne}));
    const std::vector<std::pair<std::function<void()>, std::string>> steps = {
        {[this] { Rename(4, "yes"); }, "Q1: Q1 Q2; Q4: Q5 Q6; hand: Q3 yes; "},
        {[this] {
             editor_.Change([](std::vector<OmrBox>& boxes) { std::swap(boxes[0].Name, boxes[4].Name); });
         },
         "Q1: Q5 Q2; Q4: Q1 Q6; hand: Q3 yes; "},
        {[this] { editor_.Change([](std::vector<OmrBox>& boxes) { std::swap(boxes[0], boxes[3]); }); },
         "Q1: Q5 Q2; Q4: Q1 Q6; hand: Q3 yes; "},
        {[this] {
             editor_.Select(BoxSelection({1, 3}, 1));
             editor_.DeleteBox();
         },
         "Q1: Q5 Q2; Q4: Q1 Q6; "},
        {[this] { editor_.Change([](std::vector<OmrBox>& boxes) { boxes[1].Name = "Q1"; }); },
         "Q1: Q5 Q1; Q4: Q1 Q6; "},
        {[this] { Rename(5, "one of two"); }, "Q1: Q5 Q1 one of two; Q4: Q1 one of two Q6; "},
        {[this] { editor_.SetGroups(std::nullopt); }, ""},
    };
    for (const auto& [act, wanted] : steps) {
        act();
        EXPECT_EQ(groups(), wanted);
    }
    for (std::size_t step = steps.size(); step-- > 0;) {
        editor_.Undo();
        EXPECT_EQ(groups(), step > 0 ? steps[step - 1].second : "Q1: Q1 Q2; Q4: Q5 Q6; hand: Q3 Q4; ");
    }
    editor_.Redo();
    EXPECT_EQ(groups(), steps[0].second);
    editor_.Undo();
    editor_.Change([](std::vector<OmrBox>& boxes) {
        for (OmrBox& box : boxes)
            box.Name.front() = 'N';
        PutInOrder(boxes, {6, 5, 4, 3, 2, 1});
    });
    EXPECT_EQ(groups(), "Q1: N1 N2; Q4: N5 N6; hand: N3 N4; ") << "named and sorted in one step";
    EXPECT_EQ(Box(1).Name, "N6");
    const std::string words[] = {"Sex of child male", "Sex of child mixed"};
    EXPECT_EQ(NameForGroup(words), "Sex of child");
}

}  // namespace
}  // namespace tavrene::profiles
