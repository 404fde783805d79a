#include <QAction>
#include <QMenu>
#include <atomic>
#include <chrono>
#include <semaphore>

#include "ui/DeskWindow.h"
#include "ui/scanning/ScanThread.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using test::Has;

// Scanning in the real window, with the test device of the scanner library.
class ScanWindowTest : public test::DeskWindow {
  protected:
    ~ScanWindowTest() override { Disconnect(); }

    // The library asks for the place only once, so it is that of all tests.
    static std::string Config(const char* name) {
        return qgetenv("SANE_CONFIG_DIR").toStdString() + "/" + name;
    }

    static void Connect(const std::string& device) {
        test::WriteText(Config("dll.conf"), "test\n");
        test::WriteText(Config("test.conf"), device);
    }

    static void Disconnect() { test::WriteText(Config("dll.conf"), ""); }

    static std::string Told(QDialog& dialog) { return FromQt(Find<QLabel>(dialog, "lblScan").text()); }

    // What was asked before is done, and told, by then.
    static bool IsThreadDone() {
        bool isDone = false;
        QObject here;
        ScanThread::OfProgram().Ask(
            &here, ScanThread::AtEnd::LetGo, [] { return true; }, [&](bool) { isDone = true; });
        return QTest::qWaitFor([&] { return isDone; }, 20'000);
    }

    static void WaitForButton(QDialog& dialog, const char* name) {
        auto& button = Find<QPushButton>(dialog, name);
        EXPECT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); }, 20'000)) << Told(dialog);
    }

    static void Choose(QDialog& dialog, const char* list, const char* text) {
        auto& box = Find<QComboBox>(dialog, list);
        EXPECT_GE(box.findText(text), 0);
        box.setCurrentText(text);
    }
};

TEST_F(ScanWindowTest, AJamIsToldAndItCanBeTriedAgain) {
    Connect("read-status-code \"SANE_STATUS_JAMMED\"\n");
    Open();
    DialogScript dialogs;
    dialogs.Do([](QDialog& dialog) {
        for (int k = 0; k < 2; ++k) {
            WaitForButton(dialog, "cmdScan");
            Find<QPushButton>(dialog, "cmdScan").click();
            WaitForButton(dialog, "cmdScan");
            EXPECT_EQ(
                Told(dialog),
                "The paper is jammed, or the feeder has drawn in two sheets at once. No page has come in.");
        }
        dialog.reject();
    });
    Find<QAction>(*window_, "Scan").trigger();
    EXPECT_EQ(In(folders_.ProcessIn), std::vector<std::string>());
}

TEST_F(ScanWindowTest, PagesOfTheFeederComeInAndWhatStopsItIsToldInTheDialog) {
    Connect("test-picture \"Grid\"\n");
    Open();
    DialogScript dialogs;
    dialogs.Do([](QDialog& dialog) {
        WaitForButton(dialog, "cmdScan");
        Choose(dialog, "cboResolution", "100 dpi");
        Choose(dialog, "cboPaper", "A5");
        Find<QPushButton>(dialog, "cmdScan").click();
        EXPECT_FALSE(Find<QPushButton>(dialog, "cmdScan").isEnabled());
        WaitForButton(dialog, "cmdScan");
        EXPECT_EQ(Told(dialog), "10 pages are in ProcessIn.");
        // Nobody laid new paper in.
        Choose(dialog, "cboSource", "Flatbed");
        Find<QPushButton>(dialog, "cmdScan").click();
        WaitForButton(dialog, "cmdScan");
        EXPECT_EQ(Told(dialog), "1 page is in ProcessIn.");
        Find<QPushButton>(dialog, "cmdClose").click();
    });
    Find<QAction>(*window_, "Scan").trigger();
    EXPECT_EQ(dialogs.titles, std::vector<std::string>{"Scan"});
    EXPECT_EQ(In(folders_.ProcessIn).size(), 11U);
    EXPECT_EQ(Panel("Message"), "11 pages were scanned to ProcessIn.");

    // What was chosen is kept.
    dialogs.Do([](QDialog& dialog) {
        WaitForButton(dialog, "cmdScan");
        EXPECT_EQ(Find<QComboBox>(dialog, "cboSource").currentText(), "Flatbed");
        dialog.reject();
    });
    Find<QAction>(*window_, "Scan").trigger();
    EXPECT_EQ(In(folders_.ProcessIn).size(), 11U);
}

TEST_F(ScanWindowTest, WhatStoppedAPageIsShownEvenToWhoIsClosingTheDialog) {
    std::atomic<bool> isWriting = false;
    std::atomic<bool> isClosing = false;
    files_.refuse = [&](const std::string& operation, const std::string& path) {
        const bool isPage = operation == "write" && Has(path, "-p001");
        if (isPage) {
            isWriting = true;
            isClosing.wait(false);
        }
        return isPage;
    };
    Connect("test-picture \"Grid\"\n");
    Open();
    DialogScript dialogs;
    dialogs.Do([&](QDialog& dialog) {
        WaitForButton(dialog, "cmdScan");
        Choose(dialog, "cboResolution", "100 dpi");
        Find<QPushButton>(dialog, "cmdScan").click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isWriting.load(); }, 20'000));
        dialog.reject();
        isClosing = true;
        isClosing.notify_all();
        WaitForButton(dialog, "cmdScan");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(Has(Told(dialog), "Cannot write ")) << Told(dialog);
        dialog.reject();
        EXPECT_FALSE(dialog.isVisible());
    });
    Find<QAction>(*window_, "Scan").trigger();
    EXPECT_EQ(In(folders_.ProcessIn).size(), 0U);
}

TEST_F(ScanWindowTest, WithoutAScannerTheCommandIsGreyAndSaysWhy) {
    Open();
    auto& action = Find<QAction>(*window_, "Scan");
    EXPECT_TRUE(action.isEnabled());
    QMenu* menu = nullptr;
    for (QObject* const place : action.associatedObjects())
        menu = qobject_cast<QMenu*>(place) != nullptr ? qobject_cast<QMenu*>(place) : menu;
    ASSERT_NE(menu, nullptr);
    const auto openMenu = [&] {
        Q_EMIT menu->aboutToShow();
        EXPECT_TRUE(IsThreadDone());
    };
    openMenu();
    EXPECT_FALSE(action.isEnabled());
    EXPECT_TRUE(Has(FromQt(action.toolTip()), "No scanner was found"));
    Connect("");
    openMenu();
    EXPECT_FALSE(action.isEnabled()) << "a minute has not passed";
    clock_.tick = 60;
    openMenu();
    EXPECT_TRUE(action.isEnabled());
    EXPECT_EQ(action.toolTip(), "Take pages from a scanner to ProcessIn");
}

TEST_F(ScanWindowTest, TheWindowGoesWhileScannersAreStillLookedForButWaitsForPages) {
    for (const auto atEnd : {ScanThread::AtEnd::LetGo, ScanThread::AtEnd::Wait}) {
        Open();
        std::binary_semaphore windowIsGone(0);
        bool wentBefore = false;
        ScanThread::OfProgram().Ask(
            window_.get(), atEnd,
            [&] {
                const auto longest =
                    std::chrono::milliseconds(atEnd == ScanThread::AtEnd::Wait ? 200 : 20'000);
                return wentBefore = windowIsGone.try_acquire_for(longest);
            },
            [](bool) { ADD_FAILURE() << "nobody is there to be told"; });
        window_.reset();
        windowIsGone.release();
        EXPECT_TRUE(IsThreadDone());
        EXPECT_EQ(wentBefore, atEnd == ScanThread::AtEnd::LetGo);
    }
}

}  // namespace
}  // namespace tavrene::ui
