#include "support/DeskWorld.h"

namespace tavrene {
namespace {

using test::ReadText;
using test::TestForm;

class DrawnBoxTest : public test::DeskWorld {};

TEST_F(DrawnBoxTest, ABoxDrawnByHandIsFoundAndReadOnScans) {
    const TestForm form = TestForm::Grid(2, 2);
    TestForm known = form;
    known.boxes.pop_back();  // the profile lacks the last box
    AddSpecimenProfile("Form", known);
    store_.RebuildThumbnails();
    ASSERT_TRUE(store_.ThumbnailSelected(1));
    screen_.SetZoom(50);
    desk_.scroll = {13, 21};
    const profiles::OmrBox& box = form.boxes.back();
    Draw({double(box.L), double(box.T), double(box.R - box.L), double(box.B - box.T)});
    ASSERT_TRUE(store_.Save());

    form.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {4}});
    form.SaveScan(folders_.ProcessIn + "b.tif", {.checked = {4}, .dx = 20, .dy = -20});
    form.SaveScan(folders_.ProcessIn + "c.tif", {.checked = {1}, .dx = 20, .dy = 20});
    Process();
    const auto marks = [this](const std::string& name) {
        const std::string text = ReadText(folders_.ProcessOut + name);
        return text.substr(text.rfind("Un-named-4"), 50);
    };
    EXPECT_TRUE(marks("a.xml").starts_with("Un-named-4\" Shift=\"0,0\" Checked=\"1\"")) << marks("a.xml");
    EXPECT_TRUE(marks("b.xml").starts_with("Un-named-4\" Shift=\"20,-20\" Checked=\"1\"")) << marks("b.xml");
    EXPECT_TRUE(marks("c.xml").starts_with("Un-named-4\" Shift=\"20,20\" Checked=\"0\"")) << marks("c.xml");
}

}  // namespace
}  // namespace tavrene
