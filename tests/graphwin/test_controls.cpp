// SPDX-License-Identifier: GPL-3.0-or-later
// The control wrappers: a person's change reaches the handler through the guarded entry point; the
// program's own write calls it directly and lets a run-time error travel on.
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "runtime/RuntimeError.h"

namespace {

struct ScriptedDialogs : ::testing::Test {
    DialogScript script;
    void SetUp() override { setDialogScript(&script); }
    void TearDown() override { setDialogScript(nullptr); }
};

}  // namespace

using Controls = ScriptedDialogs;

TEST_F(Controls, TextBoxFiresChangeOncePerDifferentText)
{
    QWidget parent;
    TextBox box(&parent, QStringLiteral("1"));
    int changes = 0;
    box.Change = [&] { ++changes; };
    box.assign(QStringLiteral("2"));
    box.assign(QStringLiteral("2"));
    box.setText(QStringLiteral("3"));  // as a person's edit arrives
    box.setText(QStringLiteral("3"));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(box.value(), 3);
}

TEST_F(Controls, ErrorsFromAPersonsEditAreReportedAndFromCodePropagate)
{
    QWidget parent;
    TextBox box(&parent);
    box.Change = [] { rt::raise(rt::DivisionByZero); };
    box.setText(QStringLiteral("x"));
    ASSERT_EQ(script.errors, std::vector<int>{11});
    EXPECT_EQ(script.shown.back().second, QStringLiteral("Run-time error '11':\n\nDivision by zero"));
    EXPECT_THROW(box.assign(QStringLiteral("y")), rt::RuntimeError);
    EXPECT_EQ(script.errors.size(), 1u);
}

TEST_F(Controls, LabelClickDoubleClickAndMouseDown)
{
    QWidget parent;
    ClickLabel label(&parent, QStringLiteral(">"), true);
    label.resize(20, 20);
    std::vector<std::string> events;
    label.MouseDown = [&](int b, int, double, double) { events.push_back("down" + std::to_string(b)); };
    label.Click = [&] { events.push_back("click"); };
    label.DblClick = [&] { events.push_back("dbl"); };
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    // The second press of the double click is a press too: quick presses are never lost.
    const std::vector<std::string> expected{"down1", "click", "down2", "down1", "dbl"};
    EXPECT_EQ(events, expected);
    EXPECT_EQ(label.palette().color(QPalette::Window), QColor(0xC0, 0xFF, 0xC0));
}

TEST_F(Controls, ScrollBarValueIsCheckedAndChangeFiresOnce)
{
    QWidget parent;
    ScrollBar bar(Qt::Horizontal, &parent);
    bar.setRange(0, 100);
    int changes = 0, scrolls = 0;
    bar.Change = [&] { ++changes; };
    bar.Scroll = [&] { ++scrolls; };
    bar.setValueChecked(40);
    bar.setValueChecked(40);
    EXPECT_EQ(changes, 1);
    try {
        bar.setValueChecked(101);
        FAIL();
    } catch (const rt::RuntimeError& e) {
        EXPECT_EQ(e.number(), rt::InvalidPropertyValue);
    }
    bar.setMax(30);  // pulls the value down with it
    EXPECT_EQ(bar.value(), 30);
    EXPECT_EQ(changes, 2);
    bar.setValue(10);  // a person's click
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(scrolls, 0);
}

TEST_F(Controls, CheckAndOptionClicks)
{
    QWidget parent;
    CheckBox check(&parent, QStringLiteral("A"));
    OptionButton one(&parent, QStringLiteral("one")), two(&parent, QStringLiteral("two"));
    int checks = 0, ones = 0, twos = 0;
    check.Click = [&] { ++checks; };
    one.Click = [&] { ++ones; };
    two.Click = [&] { ++twos; };
    check.setValue(true);
    check.setValue(true);
    check.setChecked(false);
    EXPECT_EQ(checks, 2);
    one.select();
    two.setChecked(true);  // a person picks the other one: only the selected one clicks
    EXPECT_FALSE(one.isChecked());
    EXPECT_EQ(ones, 1);
    EXPECT_EQ(twos, 1);
}

TEST_F(Controls, ButtonsAndMenusRunGuarded)
{
    QWidget parent;
    QPushButton* button = makeButton(&parent, QStringLiteral("&Go"), [] { rt::raise(rt::Overflow); });
    EXPECT_FALSE(button->autoDefault());
    button->click();
    EXPECT_EQ(script.errors, std::vector<int>{6});
}

TEST_F(Controls, TwoCorrectionsThatUndoEachOtherDoNotRecurseForever)
{
    QWidget parent;
    TextBox box(&parent, QStringLiteral("0"));
    int runs = 0;
    box.Change = [&] {
        ++runs;
        box.assign(box.text() == QStringLiteral("0") ? QStringLiteral("-5") : QStringLiteral("0"));
    };
    box.setText(QStringLiteral("3"));
    EXPECT_EQ(runs, TextBox::kMaxNestedChanges);
    EXPECT_TRUE(script.errors.empty());
}
