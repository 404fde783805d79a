#include "ReviewWorld.h"
#include "painter/ImageFiles.h"

namespace tavrene::review {
namespace {

using test::Names;
using Rows = std::vector<std::pair<std::string, int>>;

// Four forms: of "a" the third box is in doubt, of "b" the second, which is marked, and the third; of "c" and
// "d" none.
class DoubtSheetTest : public test::ReviewWorld {
  protected:
    void SetUp() override {
        AddUnclear("a.tif", {2});
        AddUnclear("b.tif", {1, 2});
        AddScan("c.tif", {.checked = {1}});
        AddScan("d.tif", {.checked = {1}});
        Process();
        EnterReview();
        while (review_.CountNextDoubts()) {
        }
    }

    void AddUnclear(const std::string& name, const std::vector<std::size_t>& boxes) {
        samples::Canvas page = form_.Paint({.checked = {1}});
        for (const std::size_t k : boxes)
            page.FillRect(form_.boxes[k].L + 6, form_.boxes[k].T + 6, 8, k == 1 ? 7 : 4);
        samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff, folders_.ProcessIn + name);
    }

    std::vector<SheetBox> Begin(const std::string& name = "") {
        std::vector<SheetBox> boxes = review_.Sheet().Begin(name);
        while (const auto more = review_.Sheet().LookAtNext())
            boxes.insert(boxes.end(), more->begin(), more->end());
        return boxes;
    }

    static Rows RowsOf(const std::vector<SheetBox>& boxes) {
        Rows rows;
        for (const SheetBox& box : boxes)
            rows.emplace_back(box.Document, box.Row);
        return rows;
    }

    // One box of those that are left in doubt, as it is or turned round.
    DoubtSheet::Outcome Confirm(const std::string& document, int row, bool turned) {
        for (SheetBox box : Begin())
            if (box.Document == document && box.Row == row) {
                box.IsChecked = box.IsChecked != turned;
                return review_.Sheet().Confirm({&box, 1});
            }
        ADD_FAILURE() << document << " " << row << " is not in doubt";
        return {};
    }

    Names Log(std::size_t last) const {
        const Names lines = ProcessLog();
        return {lines.end() - static_cast<std::ptrdiff_t>(last), lines.end()};
    }

    ClearForms AcceptAll(const WorkWatch& goesOn, Names* failures = nullptr) {
        ClearForms forms = review_.FindClear();
        Take(test::Command::AcceptAllClear, [&] {
            const Names left = review_.AcceptAll(forms, goesOn);
            if (failures != nullptr)
                *failures = left;
        });
        return forms;
    }
};

TEST_F(DoubtSheetTest, AFormIsReviewedWhenItsLastDoubtIsConfirmed) {
    EXPECT_EQ(RowsOf(Begin()), (Rows{{"a.xml", 3}, {"b.xml", 3}, {"b.xml", 2}}));
    EXPECT_EQ(Confirm("b.xml", 2, true).corrected, 1);
    EXPECT_EQ(LastLogLine(), "Form [b] box [Q2] from 1 to 0");
    EXPECT_TRUE(ResultHas("b.xml", "Reviewed=\"0\""));
    EXPECT_TRUE(ResultHas("b.xml", "Q2\" Shift=\"0,0\" Checked=\"0\""));

    // What was judged stays judged, also after leaving review, though mark and ink now contradict each other.
    Toggle();
    Toggle();
    EXPECT_EQ(RowsOf(Begin()), (Rows{{"a.xml", 3}, {"b.xml", 3}}));
    EXPECT_EQ(review_.Lines()[1].Doubts, 1);

    EXPECT_EQ(Confirm("b.xml", 3, false).reviewed, 1);
    EXPECT_EQ(LastLogLine(), "Reviewed & Saved [b]");
    EXPECT_EQ(list_.lines[1], "+ b 100");
    EXPECT_EQ(person_.PanelText(app::Panel::File), "Reviewed: 1 of 4");
    const auto both = Confirm("a.xml", 3, true);
    EXPECT_EQ(std::pair(both.reviewed, both.corrected), std::pair(1, 1));
    EXPECT_EQ(Log(2), (Names{"Form [a] box [Q3] from 0 to 1", "Reviewed & Saved [a]"}));
    EXPECT_TRUE(ResultHas("a.xml", "Reviewed=\"1\""));
    EXPECT_TRUE(Begin().empty());
}

TEST_F(DoubtSheetTest, BoxesOfOneNameAreCorrectedWithoutReviewingTheirForms) {
    EXPECT_EQ(review_.Sheet().BoxNames(), (Names{"Q1", "Q2", "Q3", "Q4"}));
    std::vector<SheetBox> boxes = Begin("Q1");
    EXPECT_EQ(RowsOf(boxes), (Rows{{"a.xml", 1}, {"b.xml", 1}, {"c.xml", 1}, {"d.xml", 1}}));
    const std::string before = Result("d.xml");
    boxes[2].IsChecked = false;
    const auto outcome = review_.Sheet().Confirm(boxes);
    EXPECT_EQ(std::tuple(outcome.reviewed, outcome.corrected, outcome.done.size()), std::tuple(0, 1, 4U));
    EXPECT_TRUE(ResultHas("c.xml", "Q1\" Shift=\"0,0\" Checked=\"0\""));
    EXPECT_TRUE(ResultHas("c.xml", "Reviewed=\"0\""));
    EXPECT_EQ(Result("d.xml"), before);
    EXPECT_EQ(RowsOf(Begin()).size(), 3U) << "the doubts about other boxes stay";
    const auto picture = review_.Sheet().PictureOf("c.xml");
    ASSERT_TRUE(picture && picture->form.Boxes[0].rect);
    EXPECT_EQ(picture->form.Boxes[0].rect->left, form_.boxes[0].L);
}

TEST_F(DoubtSheetTest, ACorrectionMakesNoFormFreeOfDoubtThatCannotBeRead) {
    test::WriteText(folders_.ProcessOut + "a.tif", "no image any more");
    Toggle();
    Toggle();
    std::vector<SheetBox> boxes = Begin("Q1");
    boxes[0].IsChecked = false;
    EXPECT_EQ(review_.Sheet().Confirm({boxes.data(), 1}).corrected, 1);
    EXPECT_PRED2(test::Has, Result("a.xml"), "Q1\" Shift=\"0,0\" Checked=\"0\"");
    EXPECT_EQ(review_.Lines()[0].Doubts, std::nullopt);
    EXPECT_EQ(review_.FindClear().documents, (Names{"c.xml", "d.xml"}));
}

TEST_F(DoubtSheetTest, WhatSomebodyElseHasWrittenStays) {
    std::vector<SheetBox> boxes = Begin();
    for (SheetBox& box : boxes)
        box.IsChecked = !box.IsChecked;
    test::WriteText(folders_.ProcessOut + "a.xml", Result("a.xml") + "<!-- by hand -->");
    const std::string before = Result("a.xml");
    const auto outcome = review_.Sheet().Confirm(boxes);
    EXPECT_EQ(outcome.failures,
              Names{"Form [a] stays as it is: it was changed by somebody else, or is gone"});
    EXPECT_EQ(outcome.done, Names{"b.xml"});
    EXPECT_EQ(Result("a.xml"), before);
    EXPECT_FALSE(review_.Sheet().PictureOf("a.xml"));
    review_.FollowFolder();
    EXPECT_EQ(Confirm("a.xml", 3, false).reviewed, 1) << "as it is now";
}

TEST_F(DoubtSheetTest, FormsWithoutDoubtAreAcceptedAndBroughtBackTogether) {
    Confirm("a.xml", 3, false);
    const ClearForms forms = AcceptAll(GoesOnAlways);
    EXPECT_EQ(AcceptAllQuestion(forms),
              "Accept 3 forms without doubt?\n\n3 of profile Form\n\n1 of them were reviewed.\n1 form with "
              "boxes in doubt stays.\n\nThey move to ProcessFinal. Undo Decision brings all of them back.");
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"a.tif", "a.xml", "c.tif", "c.xml", "d.tif", "d.xml"}));
    EXPECT_EQ(Log(3), (Names{"Form [a] accepted.", "Form [c] accepted.", "Form [d] accepted."}));
    EXPECT_EQ(list_.lines, Names{"b 100"});
    EXPECT_EQ(person_.PanelText(app::Panel::File), "Reviewed: 0 of 1");
    EXPECT_EQ(NothingClear(review_.FindClear()), "No form to accept. 1 form with boxes in doubt stays.");

    test::WriteText(folders_.ProcessFinal + "c.xml", "changed");
    Do([this] { review_.UndoDecision(); });
    EXPECT_EQ(Messages(),
              Names{"Form [c] stays in " + folders_.ProcessFinal + ": it was changed there or is gone"});
    EXPECT_EQ(list_.lines, (Names{"+ a 100", "b 100", "d 100"}));
    EXPECT_FALSE(review_.HasDecided());
}

TEST_F(DoubtSheetTest, AcceptingAllStopsAndGoesRoundWhatCannotMove) {
    Open(2);
    EXPECT_EQ(AcceptAll([](std::size_t done, std::size_t) { return done < 1; }).documents.size(), 2U);
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"c.tif", "c.xml"}));
    EXPECT_FALSE(review_.HasForm());
    Do([this] { review_.UndoDecision(); });
    EXPECT_EQ(LastLogLine(), "Form [c] brought back, no longer accepted.");

    test::WriteText(folders_.ProcessFinal + "c.tif", "there before");
    Names failures;
    AcceptAll(GoesOnAlways, &failures);
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_PRED2(test::Has, failures[0], "there is already a file");
    EXPECT_EQ(list_.lines, (Names{"a 100", "b 100", "c 100"}));
    Do([this] { review_.UndoDecision([](std::size_t, std::size_t) { return false; }); });
    EXPECT_TRUE(review_.HasDecided()) << "what was not waited for can be taken back later";
    Do([this] { review_.UndoDecision(); });
    EXPECT_EQ(list_.lines.size(), 4U);
}

}  // namespace
}  // namespace tavrene::review
