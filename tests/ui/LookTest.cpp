#include <QRadioButton>
#include <QStyle>
#include <QTreeView>
#include <map>

#include "ui/DeskWindow.h"
#include "ui/exporting/ExportDialog.h"
#include "ui/look/Contrast.h"
#include "ui/page/MessageStrip.h"

namespace tavrene::ui {
namespace {

using test::Find;

QPalette DarkPalette() {
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(35, 38, 41));
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(role, QColor(252, 252, 252));
    // As most dark themes leave them, and links, which stay blue.
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 220));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    // As with the palette of a desktop.
    QApplication::style()->polish(palette);
    return palette;
}

// In light and dark.
class LookTest : public test::DeskWindow, public testing::WithParamInterface<bool> {
  protected:
    LookTest() {
        AddProfile("Form", form_);
        if (GetParam())
            QApplication::setPalette(DarkPalette());
    }
    ~LookTest() override { QApplication::setPalette(standard_); }

    /// How many pixels of a part of the window stand out from what most of them are, by at least so much.
    int Standing(const QWidget& widget, const QRect& part, double contrast) {
        QApplication::processEvents();
        const QImage picture =
            widget.window()->grab({widget.mapTo(widget.window(), part.topLeft()), part.size()}).toImage();
        std::map<QRgb, int> pixels;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                ++pixels[picture.pixel(x, y)];
        const auto ground =
            std::ranges::max_element(pixels, {}, [](const auto& pixel) { return pixel.second; });
        int standing = 0;
        for (const auto& [color, count] : pixels)
            standing += Contrast(color, ground->first) >= contrast ? count : 0;
        return standing;
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);

  private:
    QPalette standard_ = QApplication::palette();
};

TEST_P(LookTest, TextsCanBeRead) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window}};
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        for (const auto& [text, ground] : pairs)
            EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), kTextContrast)
                << text << " on " << ground;
    Open();
    EXPECT_GT(Standing(View(), View().rect(), kTextContrast), 200) << "the hint in the place of a page";
    Click("Review");
    auto& list = Find<QTreeView>(*window_, "lvwReview");
    EXPECT_GT(Standing(*list.viewport(), list.viewport()->rect(), kTextContrast), 100) << "of an empty list";
    auto& filter = Find<QLineEdit>(*window_, "txtFilter");
    EXPECT_GT(Standing(filter, filter.rect(), kTextContrast), 40) << "what an empty field waits for";
}

TEST_P(LookTest, TickBoxesAndSignsStandOutOnEveryLine) {
    for (int i = 1; i <= 3; ++i)
        form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(i) + ".tif", {.checked = {2}});
    Open();
    Click("Process");
    dynamic_cast<MessageStrip&>(Find<QFrame>(*window_, "MessageStrip"))
        .Show(std::array{app::Notice{"Look here."}});
    for (const char* const name : {"cmdCloseSummary", "cmdCloseNotices"})
        EXPECT_GT(
            Standing(Find<QWidget>(*window_, name), Find<QWidget>(*window_, name).rect(), kSignContrast), 15)
            << name;
    ExportDialog dialog({}, folders_, window_.get());
    for (const auto* const choice : dialog.findChildren<QRadioButton*>())
        EXPECT_GT(Standing(*choice, {0, 0, 18, choice->height()}, kSignContrast), 8)
            << FromQt(choice->text());
    Click("Review");
    auto& list = Find<QTreeView>(*window_, "lvwReview");
    list.setCurrentIndex(list.model()->index(0, 0));
    for (int row = 0; row < 3; ++row) {
        const QRect line = list.visualRect(list.model()->index(row, 0));
        // Before the name there is only the box, whose outline takes some forty pixels.
        EXPECT_GT(Standing(*list.viewport(), {line.left(), line.top(), 18, line.height()}, kSignContrast), 30)
            << row;
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, LookTest, testing::Bool());

}  // namespace
}  // namespace tavrene::ui
