#include <QAction>
#include <QMenu>

#include "ui/DeskWindow.h"

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

TEST_F(ScanWindowTest, WithoutAScannerTheCommandIsGreyAndSaysWhy) {
    Open();
    auto& action = Find<QAction>(*window_, "Scan");
    EXPECT_TRUE(action.isEnabled());
    QMenu* menu = nullptr;
    for (QObject* const place : action.associatedObjects())
        menu = qobject_cast<QMenu*>(place) != nullptr ? qobject_cast<QMenu*>(place) : menu;
    ASSERT_NE(menu, nullptr);
    const auto openMenu = [&](bool hasScanner) {
        Q_EMIT menu->aboutToShow();
        return QTest::qWaitFor([&] { return action.isEnabled() == hasScanner; }, 20'000);
    };
    EXPECT_TRUE(openMenu(false));
    EXPECT_TRUE(Has(FromQt(action.toolTip()), "No scanner was found"));
    Connect("");
    EXPECT_TRUE(openMenu(true));
    EXPECT_EQ(action.toolTip(), "Take pages from a scanner to ProcessIn");
}

}  // namespace
}  // namespace tavrene::ui
