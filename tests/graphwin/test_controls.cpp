// SPDX-License-Identifier: GPL-3.0-or-later
// The control wrappers: a person's change reaches the handler through the guarded entry point; the
// program's own write calls it directly and lets a run-time error travel on.
#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "tests/TestSupport.h"

struct Controls : ::testing::Test {
    DialogScript script;
    QWidget parent;
    void SetUp() override { setDialogScript(&script); }
    void TearDown() override { setDialogScript(nullptr); }
};

TEST_F(Controls, TextBoxChangesOncePerTextReportsAPersonsErrorsAndStopsEndlessCorrections)
{
    TextBox box(&parent, QStringLiteral("1"));
    int changes = 0;
    box.Change = [&] { ++changes; };
    for (const char* t : {"2", "2"})
        box.assign(QString::fromLatin1(t));
    for (const char* t : {"3", "3"})
        box.setText(QString::fromLatin1(t));  // as a person's edit arrives
    EXPECT_EQ(std::pair(changes, box.value()), std::pair(2, 3.0));
    box.Change = [] { rt::raise(rt::DivisionByZero); };
    box.setText(QStringLiteral("x"));  // reported, and the program goes on
    EXPECT_EQ(script.errors, std::vector<int>{11});
    EXPECT_EQ(script.shown.back().second, QStringLiteral("Run-time error '11':\n\nDivision by zero"));
    EXPECT_EQ(errorOf([&] { box.assign(QStringLiteral("y")); }), rt::DivisionByZero);  // the program's write
    int runs = 0;
    box.Change = [&] {  // two corrections that undo each other
        ++runs;
        box.assign(box.text() == QStringLiteral("0") ? QStringLiteral("-5") : QStringLiteral("0"));
    };
    box.setText(QStringLiteral("3"));
    EXPECT_EQ(std::tuple(runs, script.errors.size()), std::tuple(TextBox::kMaxNestedChanges, 1u));
}
