#include <gtest/gtest.h>

#include <QApplication>

#include "support/KeptTestDevice.h"
#include "support/TempFolder.h"
#include "ui/shell/Composition.h"

// The windows under test are real; they need an application around them, but no screen, and neither settings
// of a person nor a scanner.
int main(int argc, char** argv) {
    const tavrene::test::TempFolder config;
    tavrene::test::KeepTestDevice();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", config.Path().c_str());
    qputenv("SANE_CONFIG_DIR", config.Path().c_str());
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    tavrene::ui::PrepareApplication();
    return RUN_ALL_TESTS();
}
