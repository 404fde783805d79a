#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "profiles/BoxArrangement.h"
#include "profiles/BoxGrid.h"
#include "profiles/BoxNaming.h"
#include "profiles/BoxPlace.h"
#include "profiles/BoxSelection.h"
#include "profiles/PrintedNames.h"
#include "support/TestForm.h"

namespace tavrene::profiles {
namespace {

using test::TestForm;
using Names = std::vector<std::string>;

// Two blocks of three columns and four rows each, a little uneven and aslant, in the order of a shuffled
// list.
std::vector<OmrBox> TwoBlocks() {
    std::vector<OmrBox> boxes;
    for (int k = 0; k < 24; ++k) {
        const int at = k * 7 % 24;
        const int column = at % 6;
        const int row = at / 6;
        OmrBox box;
        box.L = static_cast<std::int16_t>(100 + 50 * column + (column > 2 ? 200 : 0) + k % 3);
        box.T = static_cast<std::int16_t>(100 + 40 * row + column + k % 2);
        box.R = static_cast<std::int16_t>(box.L + 24);
        box.B = static_cast<std::int16_t>(box.T + 24);
        box.Name = std::to_string(row + 1) + "/" + std::to_string(column + 1);
        boxes.push_back(box);
    }
    return boxes;
}

Names Texts(const std::vector<NewName>& names) {
    Names texts;
    for (const NewName& name : names)
        texts.push_back(name.name);
    return texts;
}

TEST(BoxNamingTest, RowsAndColumnsAreThoseOfTheBlocksThatStandSideBySide) {
    const std::vector<OmrBox> boxes = TwoBlocks();
    const std::vector<int> all = KeptNumbers(boxes);
    const auto across = CellsOf(boxes, all, CellOrder::Across);
    const auto name = [&](const std::string& text, Names rows, Names columns) {
        return Texts(NamesByPattern(boxes, across, {text, std::move(rows), std::move(columns)}));
    };
    const Names plain = name("Q{row:02} {column} = {name}", {}, {});
    EXPECT_EQ(plain.at(0), "Q01 1 = 1/1");
    EXPECT_EQ(plain.at(11), "Q04 3 = 4/3");
    EXPECT_EQ(plain.at(12), "Q05 1 = 1/4");  // the second block counts on
    EXPECT_EQ(plain.at(23), "Q08 3 = 4/6");
    EXPECT_EQ(name(" {n:03}{column:A}{block} ", {}, {}).at(13), "014B2");
    EXPECT_EQ(name("{row} {column}", {"Taste"}, {"often", "rarely", "never"}).at(2), "Taste never");
    EXPECT_EQ(name("{row} {column}", {"Taste"}, {"often", "rarely", "never"}).at(3), "2 often");
    EXPECT_EQ(CellsOf(boxes, all, CellOrder::Down).at(1).row, 2);
    for (const char* const wrong : {"Q{row", "{line}", "{n:x}"})
        EXPECT_THROW(name(wrong, {}, {}), std::invalid_argument) << wrong;
}

// Questions below each other, with boxes behind answers of any length.
TEST(BoxNamingTest, BoxesThatAreNoGridCountAlongTheirRows) {
    std::vector<OmrBox> boxes;
    const std::vector<std::vector<int>> rows = {{100, 300, 520}, {140, 410}, {90, 380, 600, 700}, {205}};
    int top = 100;
    for (const std::vector<int>& row : rows) {
        for (const int left : row)
            boxes.push_back({"", static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                             static_cast<std::int16_t>(left + 20), static_cast<std::int16_t>(top + 20)});
        top += 50;
    }
    const auto cells = CellsOf(boxes, KeptNumbers(boxes), CellOrder::Across);
    EXPECT_EQ(Texts(NamesByPattern(boxes, cells, {"{row}{column:A}"})),
              (Names{"1A", "1B", "1C", "2A", "2B", "3A", "3B", "3C", "3D", "4A"}));
}

TEST(BoxNamingTest, ListsAndReplacementsNameOnlyWhatTheyReach) {
    const std::vector<OmrBox> boxes = TwoBlocks();
    const auto down = CellsOf(boxes, KeptNumbers(boxes), CellOrder::Down);
    const std::vector<NewName> listed = NamesOfLines(down, WordsOf("yes\r\n\n  no, never \n"));
    EXPECT_EQ(Texts(listed), (Names{"yes", "no, never"}));
    EXPECT_EQ(boxes[static_cast<std::size_t>(listed[1].number) - 1].Name, "3/1")
        << "the empty line is passed over";
    EXPECT_EQ(WordsOf("often, rarely,never"), (Names{"often", "rarely", "never"}));
    EXPECT_EQ(WordsOf("1\toften\t\r\n\"a & b\"\xC2\x85\n"), (Names{"1 often", "a  b"}))
        << "cells of a table, and what no document can hold";
    EXPECT_EQ(Texts(NamesReplaced(boxes, down, "1", "11")).front(), "11/11");
    EXPECT_TRUE(NamesReplaced(boxes, down, "", "x").empty());
}

TEST(BoxNamingTest, TroublesAreToldBeforeAnythingIsChanged) {
    std::vector<OmrBox> boxes = TestForm::Grid(3, 1).boxes;
    const auto troubles = [&](std::vector<NewName> names) { return TroublesOf(boxes, names); };
    EXPECT_TRUE(troubles({{1, "Q2"}, {2, "Q1"}}).texts.empty()) << "two names may change places";
    EXPECT_EQ(troubles({{1, "Q3"}}).texts, Names{"2 boxes would have the name \"Q3\"."});
    EXPECT_EQ(troubles({{1, "Q3"}}).numbers, (std::set<int>{1, 3}));
    EXPECT_EQ(troubles({{1, ""}, {2, ""}}).texts, Names{"2 boxes would have no name."});
    EXPECT_FALSE(troubles({{1, "Q3"}}).mayNotBe);
    EXPECT_TRUE(troubles({{1, "a & b"}}).mayNotBe);
    boxes[2].Checked = false;
    EXPECT_TRUE(troubles({{1, "Q3"}}).texts.empty()) << "that box is deleted";
}

TEST(BoxNamingTest, CopiesHaveTheNamesThatFollow) {
    std::vector<OmrBox> boxes;
    const std::pair<const char*, const char*> follows[] = {
        {"Q7", "Q8"}, {"Q 09 yes", "Q 10 yes"}, {"yes", "yes 2"}, {"Q9", "Q11"}, {"12", "13"}};
    boxes.push_back({"Q10"});
    for (const auto& [name, next] : follows)
        EXPECT_EQ(NextName(boxes, name), next);
    const std::vector<OmrBox> copied = {{"Q10", 1, 2, 3, 4}, {"Q11", 5, 6, 7, 8}};
    EXPECT_EQ(AppendCopies(boxes, copied), (std::vector<int>{2, 3}));
    EXPECT_EQ(boxes[1].Name + boxes[2].Name, "Q11Q12");
}

TEST(BoxOrderTest, SortsByPlaceAndMovesRowsPastTheirNeighbours) {
    std::vector<OmrBox> boxes = TwoBlocks();
    boxes[3].Checked = false;
    const std::vector<OmrBox> before = boxes;
    const std::vector<int> moved = SortByPlace(boxes);
    Names names;
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        EXPECT_EQ(boxes[static_cast<std::size_t>(moved[k]) - 1], before[k]);
        if (boxes[k].Checked)
            names.push_back(boxes[k].Name);
    }
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(boxes[3], before[3]) << "a deleted box keeps its place";

    std::vector<OmrBox> few = TestForm::Grid(5, 1).boxes;
    few[2].Checked = false;
    const auto order = [&few] {
        std::string text;
        for (const OmrBox& box : few)
            text += box.Name;
        return text;
    };
    EXPECT_EQ(MoveInList(few, std::vector{4, 5}, -1), (std::vector<int>{1, 5, 3, 2, 4}));
    EXPECT_EQ(order(), "Q1Q4Q3Q5Q2");
    MoveInList(few, std::vector{2, 4}, 1);
    MoveInList(few, std::vector{4, 5}, 1);  // at the end already
    EXPECT_EQ(order(), "Q1Q2Q3Q4Q5");
}

// An exam sheet of 40 rows and 5 columns, of which two boxes are drawn.
TEST(BoxGridTest, TheShapeOfAGridAndItsOutlinesAreFoundInThePrint) {
    TestForm form = TestForm::Grid(5, 40);
    form.height = 70 + 54 * 41;
    const imaging::Page page = form.PageOf({.checked = {7, 8}});
    const imaging::PageRect first = PlaceOf(form.boxes.front());
    const imaging::PageRect last = PlaceOf(form.boxes.back());
    EXPECT_EQ(ShapeInPrint(page.grid, first, last), (GridShape{40, 5}));
    EXPECT_EQ(ShapeInPrint(page.grid, first, first), (GridShape{1, 1}));
    EXPECT_EQ(ShapeInPrint(page.grid, first, PlaceOf(form.boxes[4])), (GridShape{1, 5}));
    const std::vector<imaging::PageRect> places = PlacesOfGrid(first, last, {40, 5});
    for (std::size_t k = 0; k < places.size(); ++k) {
        imaging::PageRect rough = places[k];
        rough.left += 4;
        rough.width -= 5;
        rough.top -= 3;
        EXPECT_EQ(OutlineUnder(page.grid, rough), PlaceOf(form.boxes[k])) << k;
    }
    EXPECT_FALSE(OutlineUnder(page.grid, {300, 30, 24, 24})) << "nothing is printed there";
}

// As a reader of print writes it: of the cells only place, confidence and text matter.
TEST(PrintedNamesTest, TheWordsBesideBoxesAreTheirNames) {
    const auto line = [](const char* text, int left, int top, const char* confidence = "91.5") {
        return "5\t1\t1\t1\t1\t1\t" + std::to_string(left) + "\t" + std::to_string(top) + "\t40\t20\t" +
               confidence + "\t" + text + "\n";
    };
    const std::string table =
        "level\tpage_num\tblock_num\tpar_num\tline_num\tword_num\tleft\ttop\twidth\t"
        "height\tconf\ttext\n" +
        line("Sex:", 20, 102) + line("fe\"male", 132, 101) + line("not", 180, 99) + line("male", 332, 102) +
        line("|", 380, 102) + line("D", 290, 100) + line("noise", 332, 202, "12") + line("far", 500, 200) +
        line("below", 132, 140) + "5\t1\tbroken\n";
    const std::vector<OmrBox> right = {
        {"a", 100, 100, 124, 124}, {"b", 300, 100, 324, 124}, {"c", 300, 200, 324, 224}};
    const auto names = [&](std::vector<OmrBox> boxes) {
        const std::vector<int> numbers = KeptNumbers(boxes);
        return NamesFromPrint(boxes, CellsOf(boxes, numbers, CellOrder::Across), WordsOfTable(table));
    };
    EXPECT_EQ(names(right), (std::vector<NewName>{{1, "female not"}, {2, "male"}}));
    // At the left of the boxes: in reading order, and not beyond the next box.
    EXPECT_EQ(names({{"a", 230, 100, 254, 124}, {"b", 550, 200, 574, 224}}),
              (std::vector<NewName>{{1, "female not"}, {2, "far"}}));
    EXPECT_TRUE(names({{"a", 800, 800, 824, 824}}).empty());
}

// Two blocks beside each other, the first with its words far off and a head of two lines; below them a line
// whose boxes have their words beside them.
TEST(PrintedNamesTest, InATableTheRowAndTheHeadOfTheColumnAreTheNames) {
    std::vector<OmrBox> boxes;
    std::vector<PrintedWord> words = {{"very", {690, 20, 40, 20}},  {"often", {690, 44, 44, 20}},
                                      {"never", {770, 44, 44, 20}}, {"A", {1140, 44, 12, 20}},
                                      {"B", {1220, 44, 12, 20}},    {"Questions", {20, 44, 90, 20}}};
    for (const int row : {0, 1, 2}) {
        const auto top = static_cast<std::int16_t>(80 + 60 * row);
        for (const int left : {700, 780, 1134, 1214})
            boxes.push_back({"", static_cast<std::int16_t>(left), top, static_cast<std::int16_t>(left + 24),
                             static_cast<std::int16_t>(top + 24)});
        words.push_back({"walk", {20, top + 2.0, 40, 20}});
        words.push_back({std::to_string(row), {70, top + 2.0, 12, 20}});
        words.push_back({std::to_string(row + 21) + ".", {1090, top + 2.0, 30, 20}});
    }
    boxes.push_back({"", 700, 300, 724, 324});
    boxes.push_back({"", 780, 300, 804, 324});
    words.push_back({"yes", {730, 302, 30, 20}});
    words.push_back({"no", {810, 302, 30, 20}});
    std::string text;
    const std::vector<int> numbers = KeptNumbers(boxes);
    std::map<int, std::string> names;
    for (const NewName& name : NamesFromPrint(boxes, CellsOf(boxes, numbers, CellOrder::Across), words))
        names[name.number] = name.name;
    for (const auto& [number, name] : names)
        text += name + "; ";
    EXPECT_EQ(text,
              "walk 0 very often; walk 0 never; 21. A; 21. B; walk 1 very often; walk 1 never; 22. A; 22. B; "
              "walk 2 very often; walk 2 never; 23. A; 23. B; yes; no; ");
}

}  // namespace
}  // namespace tavrene::profiles
