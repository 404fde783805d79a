#include <gtest/gtest.h>

#include "batch/IniStore.h"
#include "support/TempFolder.h"
#include "ui/base/QtText.h"
#include "ui/settings/QtSettingsStore.h"

namespace tavrene::ui {
namespace {

constexpr const char* kTexts[] = {
    "12",    "",   "12px",      "/home/Zo\u00EB/a, b; c=d #e \"f\" %20 & [g]", " spaced ", "C:\\x\\n\t",
    "@home", "@@", "/forms,old"};

// The window's toolkit and the program without it share one file.
TEST(IniStoreTest, ReadsWhatTheWindowWritesAndTheOtherWayRound) {
    app::DiskFiles files;
    for (const std::string text : kTexts) {
        SCOPED_TRACE(text);
        // One for each: the toolkit keeps a file of the same size and time in memory.
        const test::TempFolder config;
        QtSettingsStore window(ToQt(config.Path()));
        ASSERT_TRUE(window.WriteSettingValue("App", "Common", "WorkDir", text));
        ASSERT_TRUE(window.WriteSettingValue("App", "Window", "Labels", "1"));
        batch::IniStore batch(files, config.File("App/settings.ini"));
        EXPECT_EQ(batch.ReadSettingValue("App", "Common", "WorkDir"), text);
        EXPECT_EQ(batch.ReadSettingValue("App", "Common", "Labels"), "");
        EXPECT_TRUE(batch.WriteSettingValue("App", "Common", "Other", text));
        EXPECT_TRUE(batch.WriteSettingValue("App", "New", "First", text));
        const QtSettingsStore again(ToQt(config.Path()));
        EXPECT_EQ(again.ReadSettingValue("App", "Common", "Other"), text);
        EXPECT_EQ(again.ReadSettingValue("App", "New", "First"), text);
        EXPECT_EQ(again.ReadSettingValue("App", "Common", "WorkDir"), text);
        EXPECT_EQ(again.ReadSettingValue("App", "Window", "Labels"), "1");
    }
}

TEST(IniStoreTest, TakesAFileByHandAsItIsAndHoldsWhatItCannotWrite) {
    const test::TempFolder config;
    app::DiskFiles files;
    test::WriteText(config.File("s.ini"),
                    "; by hand\r\n[Common]\r\nWorkDir = /Zo\\xeb,  a ,b\r\nA=\\xeb\\q\r\n\r\n[Z]\r\nA=1");
    batch::IniStore store(files, config.File("s.ini"));
    EXPECT_EQ(store.ReadSettingValue("", "Common", "WorkDir"), "/Zo\\xeb,  a ,b");
    EXPECT_EQ(store.ReadSettingValue("", "Common", "A"), "\u00EB") << "as the window's toolkit reads it";
    EXPECT_EQ(store.ReadSettingValue("", "Z", "A"), "1");
    EXPECT_TRUE(store.WriteSettingValue("", "Common", "B", "2"));
    EXPECT_EQ(test::ReadText(config.File("s.ini")),
              "; by hand\n[Common]\nWorkDir = /Zo\\xeb,  a ,b\nA=\\xeb\\q\nB=2\n\n[Z]\nA=1\n");
    batch::IniStore unwritable(files, config.File("none/s.ini"));
    EXPECT_FALSE(unwritable.WriteSettingValue("", "Common", "B", "2"));
    EXPECT_EQ(unwritable.ReadSettingValue("", "Common", "B"), "2");
}

}  // namespace
}  // namespace tavrene::ui
