#include <QClipboard>

#include "ui/FormWindow.h"

namespace tavrene::ui {
namespace {

using profiles::OmrBox;
using test::DialogScript;
using test::Find;
using test::TestForm;
using Names = std::vector<std::string>;

class GridsAndCopiesTest : public test::FormWindow {
  protected:
    // The page shows all boxes of `printed`, of which the profile has `known`.
    void OpenPrinted(const TestForm& printed, std::vector<OmrBox> known) {
        AddSpecimenProfile("Form", printed);
        form_.width = printed.width;
        form_.boxes = std::move(known);
        test::WriteText(folders_.Profiles + "Form.Tvp", form_.ProfileText(folders_.ProfileImages + "Form"));
        OpenForm();
        View().SetZoom(100);
    }
};

// The first and the last box of a grid whose other boxes are printed between them.
TEST_F(GridsAndCopiesTest, AGridIsDrawnAndCopiesSnapToThePrint) {
    TestForm whole = TestForm::Grid(5, 6);
    whole.width = 700;
    OpenPrinted(whole, {whole.boxes[7]});
    DialogScript dialogs;
    dialogs.Do([](QDialog& dialog) {
        EXPECT_EQ(Find<QSpinBox>(dialog, "numRows").value(), 6);
        EXPECT_EQ(Find<QSpinBox>(dialog, "numColumns").value(), 5);
        dialog.accept();
    });
    Press(*window_, Qt::Key_F8, Qt::ShiftModifier);
    Drag(PlaceOf(whole.boxes.front()).topLeft() + QPointF(2, -2),
         PlaceOf(whole.boxes.front()).bottomRight() + QPointF(-2, 1));
    ClickPage(PlaceOf(whole.boxes.back()).center() + QPointF(2, 3));
    Click("Save");
    const std::vector<OmrBox> saved = Saved("Form");
    ASSERT_EQ(saved.size(), 30U) << "the box that was there is one of them";
    for (std::size_t k = 0; k < saved.size(); ++k)
        EXPECT_EQ(PlaceOf(saved[k]), PlaceOf(whole.boxes[k])) << k;
    EXPECT_EQ(Rows().selectedItems().size(), 29);

    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    ClickRow(0);
    Press(*window_, Qt::Key_D, Qt::ControlModifier);
    const QPointF off(3, 2);
    Drag(PlaceOf(whole.boxes[12]).center(), PlaceOf(whole.boxes[13]).center() + off, Qt::ControlModifier);
    Click("Save");
    EXPECT_EQ(PlaceOf(Saved("Form").at(2)), PlaceOf(whole.boxes[13]).translated(off));
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    Trigger("SnapToPrint");
    Drag(PlaceOf(whole.boxes[12]).center(), PlaceOf(whole.boxes[13]).center() + QPointF(3, 2),
         Qt::ControlModifier);
    Press(*window_, Qt::Key_C, Qt::ControlModifier);
    Press(*window_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Panel("Message"), "1 box added.");
    EXPECT_EQ(RowTexts(), (Names{"Q8", "Q9", "Q10", "Q11"}));
    Click("Save");
    EXPECT_EQ(PlaceOf(Saved("Form").at(2)), PlaceOf(whole.boxes[13]));
}

// All are put a little beside the outlines of the second row, which has no boxes yet.
TEST_F(GridsAndCopiesTest, WhatIsPutOnThePageSnapsToThePrintUnlessAltIsHeld) {
    const TestForm whole = form_;
    OpenPrinted(whole, {whole.boxes[0], whole.boxes[1]});
    const QPointF off(3, 2);
    const QRectF free = PlaceOf(whole.boxes[3]).translated(off);
    const QPointF from = PlaceOf(whole.boxes[0]).center();
    using Keys = Qt::KeyboardModifiers;
    const std::tuple<const char*, std::size_t, std::function<void(Keys)>> ways[] = {
        {"a box is moved", 2, [&](Keys keys) { Drag(from, free.center(), keys); }},
        {"boxes are moved", 2,
         [&](Keys keys) {
             Press(*window_, Qt::Key_A, Qt::ControlModifier);
             Drag(from, free.center(), keys);
         }},
        {"a copy", 3, [&](Keys keys) { Drag(from, free.center(), keys | Qt::ControlModifier); }},
        {"a drawn box", 3,
         [&](Keys keys) {
             Click("Add", "CfgToolbar");
             Drag(free.topLeft(), free.bottomRight(), keys);
             Click("Select", "CfgToolbar");
         }},
        {"a grid", 5, [&](Keys keys) {
             DialogScript dialogs;
             dialogs.PressEnter();
             Trigger("DrawGrid");
             Drag(free.topLeft(), free.bottomRight(), keys);
             ClickPage(PlaceOf(whole.boxes[5]).center() + off, keys);
         }}};
    Trigger("SnapToPrint");
    for (const auto& [name, count, put] : ways)
        for (const Keys keys : {Keys(Qt::NoModifier), Keys(Qt::AltModifier)}) {
            ClickRow(0);
            put(keys);
            Click("Save");
            const std::vector<OmrBox> saved = Saved("Form");
            ASSERT_EQ(saved.size(), count) << name;
            const QPointF beside = keys == Qt::NoModifier ? QPointF() : off;
            const std::size_t moved = count == 2 ? 0 : 2;
            EXPECT_EQ(PlaceOf(saved[moved]), PlaceOf(whole.boxes[3]).translated(beside)) << name << keys;
            if (name == std::string("boxes are moved")) {
                EXPECT_EQ(PlaceOf(saved[1]), PlaceOf(whole.boxes[4]).translated(beside)) << keys;
            }
            Press(*window_, Qt::Key_Z, Qt::ControlModifier);
        }
    // What snaps back to where it was is shown there.
    Press(*window_, Qt::Key_A, Qt::ControlModifier);
    Drag(from, from + QPointF(4, 3));
    EXPECT_EQ(View().Boxes().PlaceOf(2), PlaceOf(whole.boxes[1]));
}

// At its edges they would lie over those that they are copies of.
TEST_F(GridsAndCopiesTest, CopiesStayOnThePageAndTheClipboardTellsWhatIsPasted) {
    form_.height = 150;
    AddSpecimenProfile("Form", form_);
    OpenForm();
    View().SetZoom(100);
    Press(*window_, Qt::Key_A, Qt::ControlModifier);
    Press(*window_, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(RowTexts().size(), 6U);
    EXPECT_EQ(Panel("Message"), "There is no room on the page for the copies there.");
    ClickRow(0);
    Press(*window_, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Panel("Message"), "1 box copied; Ctrl+V adds it to a profile.");
    Press(*window_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(RowTexts().size(), 7U);
    QGuiApplication::clipboard()->setText("something else");
    Press(*window_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(RowTexts().size(), 7U);
    EXPECT_PRED2(test::Has, Panel("Message"), "holds no files");
    Press(*window_, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(RowTexts().size(), 8U);
}

}  // namespace
}  // namespace tavrene::ui
