#include <QListWidget>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTextBrowser>
#include <algorithm>

#include "support/SourceFolder.h"
#include "ui/DeskWindow.h"
#include "ui/base/EngineTexts.h"
#include "ui/commands/ManualText.h"

namespace tavrene::ui {
namespace {

using test::Find;

class HelpWindowTest : public test::DeskWindow {
  protected:
    std::string OpenHelp() {
        Press(*window_, Qt::Key_F1);
        return FromQt(Find<QListWidget>(*window_, "Contents").currentItem()->text());
    }
};

TEST_F(HelpWindowTest, OpensAtThePageOfTheModeAndIsClosedFirst) {
    const auto form = test::TestForm::Grid(2, 2);
    AddSpecimenProfile("Form", form);
    Open();
    EXPECT_EQ(window_->windowTitle(), "Tavrene CheckBoxes");
    EXPECT_EQ(OpenHelp(), "First steps");
    auto& page = Find<QTextBrowser>(*window_, "Page");
    EXPECT_TRUE(page.toPlainText().startsWith("First steps"));
    Q_EMIT page.anchorClicked(QUrl("#files-and-folders"));
    EXPECT_TRUE(page.toPlainText().contains("ProcessReject"));
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(page.isVisible());
    EXPECT_TRUE(window_->isVisible());
    ClickThumbnail(1);
    EXPECT_EQ(OpenHelp(), "Making a profile");
    Click("Review");
    EXPECT_EQ(OpenHelp(), "Reviewing");
}

TEST_F(HelpWindowTest, TheManualKnowsEveryKeyAndItsLinksLeadSomewhere) {
    const std::string manual = test::ReadText(test::SourceFolder() + "/docs/manual.md");
    const auto pages = commands::PagesOf(manual);
    const auto page = [&](std::string_view title) {
        const auto found = std::ranges::find(pages, title, &commands::ManualPage::title);
        return found == pages.end() ? std::string() : found->text;
    };
    QString rows = ToQt(page("Keyboard"));
    const QStringList keys = rows.replace(" and ", "|").replace(", ", "|").replace(' ', "").split('|');
    for (const commands::CommandInfo& info : commands::CommandTable())
        for (const QString& key : ToQt(info.shortcut).split("; ", Qt::SkipEmptyParts))
            EXPECT_TRUE(keys.contains(key)) << info.key;
    for (const auto mode :
         {commands::Mode::Start, commands::Mode::Profile, commands::Mode::Form, commands::Mode::Run})
        EXPECT_FALSE(page(commands::PageFor(mode)).empty());
    for (std::size_t at = manual.find("](#"); at != std::string::npos; at = manual.find("](#", at + 1)) {
        const std::string anchor = manual.substr(at + 3, manual.find(')', at) - at - 3);
        EXPECT_TRUE(std::ranges::count(pages, anchor, &commands::ManualPage::anchor) == 1) << anchor;
    }
}

// Phrases of the messages, as the table has them: "…" stands for what is put in.
std::vector<QStringList> ToldPhrases(const QString& page) {
    std::vector<QStringList> phrases;
    for (const QString& row : page.split('\n'))
        for (const QString& phrase : row.section('|', 1, 1).split(", ")) {
            QStringList parts;
            for (const QString& part : phrase.split(QChar(0x2026)))
                if (part.trimmed().size() > 2)
                    parts += part.trimmed();
            if (!parts.isEmpty())
                phrases.push_back(parts);
        }
    return phrases;
}

// Whatever asks, or says that something cannot be done, leaves a person with the question what to do.
TEST_F(HelpWindowTest, TheManualTellsWhatToDoAboutEveryMessageThatAsksOrFails) {
    static const QRegularExpression asks(
        "\\?$|cannot|could not|not there|not enough|not match|no room|damaged|missing|jammed|changed by "
        "somebody|[Cc]hoose|will fail|misread");
    const std::string manual = test::ReadText(test::SourceFolder() + "/docs/manual.md");
    const auto pages = commands::PagesOf(manual);
    const auto messages = std::ranges::find(pages, "Messages", &commands::ManualPage::title);
    ASSERT_NE(messages, pages.end());
    const auto phrases = ToldPhrases(ToQt(messages->text));
    int asked = 0;
    for (const auto texts : {EngineTexts(), CommandTexts()})
        for (const QString text : texts) {
            if (!text.contains(asks))
                continue;
            ++asked;
            EXPECT_TRUE(std::ranges::any_of(phrases, [&](const QStringList& parts) {
                return std::ranges::all_of(
                    parts, [&](const QString& part) { return text.contains(part, Qt::CaseInsensitive); });
            })) << FromQt(text);
        }
    EXPECT_GT(asked, 60);
}

TEST_F(HelpWindowTest, TitleAndZoomTellWhatIsOnTheScreen) {
    const auto form = test::TestForm::Grid(2, 2);
    AddSpecimenProfile("Form [*]", form);
    form.SaveScan(folders_.ProcessIn + "scan.tif", {});
    Open();
    ClickThumbnail(1);
    EXPECT_EQ(window_->windowTitle(), "Form [*][*][*] - Tavrene CheckBoxes");
    EXPECT_FALSE(window_->isWindowModified());
    ClickRow(0);
    Press(View(), Qt::Key_Right);
    EXPECT_TRUE(window_->isWindowModified());
    Click("Save");
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(Panel("Message"), "Saved Profile: Form [*]");

    auto& zoom = Find<QSpinBox>(*window_, "ZoomPercent");
    zoom.selectAll();
    QTest::keyClicks(&zoom, "60");
    QTest::keyClick(&zoom, Qt::Key_Return);
    EXPECT_DOUBLE_EQ(View().transform().m11(), 0.6);
    EXPECT_TRUE(window_->isVisible());

    Click("Process");
    EXPECT_EQ(window_->windowTitle(), "Tavrene CheckBoxes");
    Click("Review");
    Find<QAction>(*window_, "OpenForm").trigger();
    EXPECT_EQ(window_->windowTitle(), "scan[*] - Tavrene CheckBoxes");
    Click("Okay");
    EXPECT_EQ(Panel("Message"), "Saved Form: scan");
}

}  // namespace
}  // namespace tavrene::ui
