#include <gtest/gtest.h>

#include <QFile>
#include <QPushButton>
#include <QTest>

#include "support/TempFolder.h"
#include "ui/Controls.h"
#include "ui/shell/AboutDialog.h"

namespace tavrene::ui {
namespace {

// What is installed on the machine of the test must not matter.
TEST(AboutDialogTest, StartsTheToolForSystemInformationWhereThereIsOne) {
    const test::TempFolder programs;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", programs.Path().c_str());
    AboutDialog without(nullptr);
    without.show();
    EXPECT_FALSE(test::Find<QPushButton>(without, "cmdSysInfo").isVisible());
    const QString text = test::Find<QLabel>(without, "AboutText").text();
    EXPECT_TRUE(text.contains("Tavrene CheckBoxes") &&
                text.contains("Version " + qApp->applicationVersion()));

    QFile tool(ToQt(programs.File("gnome-control-center")));
    ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\necho \"$@\" >" + QByteArray::fromStdString(programs.File("started")) + "\n");
    tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    tool.close();
    AboutDialog with(nullptr);
    with.show();
    auto& button = test::Find<QPushButton>(with, "cmdSysInfo");
    EXPECT_TRUE(button.isVisible());
    button.click();
    qputenv("PATH", path);
    QFile started(ToQt(programs.File("started")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return started.size() > 0; }));
    ASSERT_TRUE(started.open(QIODevice::ReadOnly));
    EXPECT_EQ(started.readAll(), "info-overview\n");
}

}  // namespace
}  // namespace tavrene::ui
