// SPDX-License-Identifier: GPL-3.0-or-later
// Test entry point: a QApplication on the offscreen platform, so every suite runs without a display,
// with its settings kept apart from the user's.
#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the program remembers (the export folder and options) goes to a test location, never into
    // the settings of the person who runs the tests.
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
