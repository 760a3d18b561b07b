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

TEST_F(Controls, LabelsScrollBarsChecksOptionsAndButtons)
{
    ClickLabel label(&parent, QStringLiteral(">"), true);
    label.resize(20, 20);
    std::vector<std::string> events;
    label.MouseDown = [&](int b, int, double, double) { events.push_back("down" + std::to_string(b)); };
    label.Click = [&] { events.push_back("click"); };
    label.DblClick = [&] { events.push_back("dbl"); };
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mouseDClick(&label, Qt::LeftButton);  // its second press is a press too: none is lost
    EXPECT_EQ(events, (std::vector<std::string>{"down1", "click", "down2", "down1", "dbl"}));

    ScrollBar bar(Qt::Horizontal, &parent);
    bar.setRange(0, 100);
    int changes = 0, scrolls = 0;
    bar.Change = [&] { ++changes; };
    bar.Scroll = [&] { ++scrolls; };
    bar.setValueChecked(40);
    bar.setValueChecked(40);
    EXPECT_EQ(errorOf([&] { bar.setValueChecked(101); }), rt::InvalidPropertyValue);
    bar.setMax(30);  // pulls the value down with it
    bar.setValue(10);  // a person's click
    EXPECT_EQ(std::tuple(bar.value(), changes, scrolls), std::tuple(10, 3, 0));

    CheckBox check(&parent, QStringLiteral("A"));
    OptionButton one(&parent, QStringLiteral("one")), two(&parent, QStringLiteral("two"));
    int checks = 0, ones = 0, twos = 0;
    check.Click = [&] { ++checks; };
    one.Click = [&] { ++ones; };
    two.Click = [&] { ++twos; };
    check.setValue(true);
    check.setValue(true);
    check.setChecked(false);
    one.select();
    two.setChecked(true);  // a person picks the other one: only the selected one clicks
    EXPECT_FALSE(one.isChecked());
    EXPECT_EQ(std::tuple(checks, ones, twos), std::tuple(2, 1, 1));

    QPushButton* button = makeButton(&parent, QStringLiteral("&Go"), [] { rt::raise(rt::Overflow); });
    EXPECT_FALSE(button->autoDefault());
    button->click();
    EXPECT_EQ(script.errors, std::vector<int>{6});
}
