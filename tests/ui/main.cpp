#include <gtest/gtest.h>

#include <QApplication>

#include "ui/Composition.h"

// The windows under test are real; they need an application around them, but no screen.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    tavrene::ui::PrepareApplication();
    return RUN_ALL_TESTS();
}
