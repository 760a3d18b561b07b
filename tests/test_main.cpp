// SPDX-License-Identifier: GPL-3.0-or-later
// Test entry point: a QApplication on the offscreen platform, so every suite runs without a display.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
