#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "support/TempFolder.h"
#include "ui/base/QtText.h"
#include "ui/settings/QtSettingsStore.h"
#include "ui/shell/SingleInstance.h"

namespace tavrene::ui {
namespace {

TEST(QtSettingsStoreTest, KeepsEveryTextAsItIs) {
    const test::TempFolder config;
    for (const std::string text :
         {"/home/Zoë/a, b; c=d #e \"f\" %20 & [g]", " spaced ", "12px", "C:\\x\\n"}) {
        QtSettingsStore writer(ToQt(config.Path()));
        ASSERT_TRUE(writer.WriteSettingValue("App", "Common", "WorkDir", text));
        const QtSettingsStore reader(ToQt(config.Path()));
        EXPECT_EQ(reader.ReadSettingValue("App", "Common", "WorkDir"), text);
        EXPECT_EQ(reader.ReadSettingValue("App", "Window", "WorkDir"), "");
        EXPECT_EQ(reader.ReadSettingValue("Other", "Common", "WorkDir"), "");
    }
}

TEST(QtSettingsStoreTest, ReadsWhatAPersonWroteByHand) {
    const test::TempFolder config;
    QtSettingsStore store(ToQt(config.Path()));
    store.WriteSettingValue("App", "Common", "FillThreshold", "8");
    for (const std::string folder : {"/forms, old", "/forms,old", "/Zoë,  a ,b"}) {
        test::WriteText(config.File("App/settings.ini"),
                        "[Other]\nWorkDir=/x,y\n[Common]\nFillThreshold=12\nWorkDir = " + folder + "\n");
        const QtSettingsStore reader(ToQt(config.Path()));
        EXPECT_EQ(reader.ReadSettingValue("App", "Common", "FillThreshold"), "12");
        EXPECT_EQ(reader.ReadSettingValue("App", "Common", "WorkDir"), folder);
        store.WriteSettingValue("App", "Window", "Labels", "1");
        EXPECT_EQ(reader.ReadSettingValue("App", "Common", "WorkDir"), folder) << "another value is written";
    }
}

TEST(QtSettingsStoreTest, TellsWhenItCannotWrite) {
    const test::TempFolder config;
    test::WriteText(config.File("App"), "a file where the folder should be");
    QtSettingsStore store(ToQt(config.Path()));
    EXPECT_FALSE(store.WriteSettingValue("App", "Common", "FillThreshold", "8"));
    EXPECT_EQ(store.ReadSettingValue("App", "Common", "FillThreshold"), "8") << "it is in force all the same";
    std::filesystem::remove(config.File("App"));
    EXPECT_TRUE(store.WriteSettingValue("App", "Common", "FillThreshold", "9"));
    EXPECT_EQ(store.ReadSettingValue("App", "Common", "FillThreshold"), "9");
}

TEST(QtSettingsStoreTest, WaitsForNobodysLock) {
    const test::TempFolder config;
    QtSettingsStore store(ToQt(config.Path()));
    EXPECT_TRUE(store.WriteSettingValue("App", "Common", "FillThreshold", "8"));
    const std::string lock = config.File("App/settings.ini.lock");
    test::WriteText(lock, "1\nprogram\nanother machine\n");
    EXPECT_TRUE(store.WriteSettingValue("App", "Common", "FillThreshold", "9"));
    std::filesystem::create_directory(lock);
    EXPECT_TRUE(store.WriteSettingValue("App", "Common", "FillThreshold", "10"));
    std::filesystem::create_directories(lock + "/full");
    EXPECT_FALSE(store.WriteSettingValue("App", "Common", "FillThreshold", "11"));
    EXPECT_EQ(store.ReadSettingValue("App", "Common", "FillThreshold"), "11");
}

TEST(SingleInstanceTest, TheLockOfACrashedHolderIsTakenOver) {
    const test::TempFolder folder;
    const pid_t holder = fork();
    ASSERT_GE(holder, 0);
    if (holder == 0) {
        SingleInstance instance(ToQt(folder.Path()));
        _exit(instance.Become() ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(holder, &status, 0), holder);
    ASSERT_EQ(status, 0);
    EXPECT_TRUE(SingleInstance(ToQt(folder.Path())).Become());
    EXPECT_TRUE(SingleInstance(ToQt(folder.Path())).Become()) << "the one before has ended";
}

TEST(SingleInstanceTest, OnlyARunningOneCounts) {
    const test::TempFolder parent;
    const std::string folder = parent.File("new folder");
    const std::string lock = folder + "/instance.lock";
    EXPECT_TRUE(SingleInstance(ToQt(folder)).Become());
    for (const std::string content : {"", "garbage", "1\nprogram\nanother machine\n", "folder"}) {
        std::filesystem::remove(lock);
        if (content == "folder")
            std::filesystem::create_directory(lock);
        else
            test::WriteText(lock, content);
        SingleInstance first(ToQt(folder));
        EXPECT_TRUE(first.Become()) << content;
        EXPECT_FALSE(SingleInstance(ToQt(folder)).Become()) << content;
    }
}

}  // namespace
}  // namespace tavrene::ui
