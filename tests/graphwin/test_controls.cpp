// SPDX-License-Identifier: GPL-3.0-or-later
// The control wrappers: a person's change reaches the handler through the guarded entry point; the
// program's own write calls it directly and lets a run-time error travel on.
#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormArea.h"
#include "graphwin/FormStyle.h"
#include "graphwin/FormTable.h"
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
    box.setText(QStringLiteral("x"));  // reported (the launcher's test reads the report), and the program goes on
    EXPECT_EQ(script.errors, std::vector<int>{11});
    EXPECT_EQ(errorOf([&] { box.assign(QStringLiteral("y")); }), rt::DivisionByZero);  // the program's write
    int runs = 0;
    box.Change = [&] {  // two corrections that undo each other
        ++runs;
        box.assign(box.text() == QStringLiteral("0") ? QStringLiteral("-5") : QStringLiteral("0"));
    };
    box.setText(QStringLiteral("3"));
    EXPECT_EQ(std::tuple(runs, script.errors.size()), std::tuple(TextBox::kMaxNestedChanges, 1u));
}

// A form table: rows inside a frame stand in the frame's twips, the look is given and nothing set
// while building runs a handler; a row that cannot be built as written stops the build.
TEST_F(Controls, AFormTableBuildsPlacesAndWiresItsRowsAndRefusesMistakes)
{
    using form::Kind;
    QGroupBox* frame = nullptr;
    OptionButton *first = nullptr, *second = nullptr;
    ScrollBar* bar = nullptr;
    ClickLabel* label = nullptr;
    TextBox* box = nullptr;
    std::vector<int> ran;
    auto note = [&](int which) { return [&ran, which] { ran.push_back(which); }; };
    // clang-format off
    form::buildForm(&parent, {
        {&frame, Kind::Frame, "Frame", {600, 300, 3000, 1500}, {}, {.tip = "tip"}, {
            {&first, Kind::Option, "One", {120, 300, 900, 300}, {.Click = note(1)}},
            {&second, Kind::Option, "Two", {120, 600, 900, 300}, {.Click = note(2)}, {.checked = true}},
        }},
        {&bar, Kind::VScroll, "", {0, 0, 255, 1500}, {.Change = note(3)},
         {.bar = {.min = 5, .max = 1, .small = 2, .large = 3, .value = 4}}},
        {&label, Kind::Stepper, "<", {0, 1500, 180, 300},
         {.MouseDown = [&](int b, int, double, double) { ran.push_back(10 + b); }}, {.align = Qt::AlignRight, .name = "lower"}},
        {&box, Kind::Box, "7", {180, 1500, 600, 300}, {.Change = note(4)}},
    });
    // clang-format on
    EXPECT_EQ(std::tuple(first->parentWidget(), second->geometry(), second->isChecked(), first->isChecked()),
              std::tuple(static_cast<QWidget*>(frame), QRect(8, 40, 60, 20), true, false));
    EXPECT_EQ(std::tuple(bar->orientation(), bar->Min(), bar->Max(), bar->value(), bar->singleStep(), bar->pageStep(),
                         bar->invertedAppearance()),
              std::tuple(Qt::Vertical, 5, 1, 4, 2, 3, true));  // drawn as it runs: backwards
    bar->setRange(0, 50);  // a range set through Qt's own API becomes Min and Max as they are
    EXPECT_EQ(std::pair(bar->Min(), bar->Max()), std::pair(0, 50));
    EXPECT_TRUE(bar->invertedAppearance() && bar->invertedControls()) << "a maximum below the minimum runs backwards";
    EXPECT_EQ(frame->toolTip(), QStringLiteral("tip"));  // the other looks are read on the screens
    first->click();
    label->activate(RightButton);
    box->setText(QStringLiteral("8"));
    bar->setValueChecked(3);
    EXPECT_EQ(ran, (std::vector<int>{1, 12, 4, 3}));  // and nothing from the building

    TextBox* typed = nullptr;
    ClickLabel* plain = nullptr;
    QPushButton* button = nullptr;
    const std::vector<std::pair<const char*, form::Control>> mistakes = {
        {"member of another type", {&typed, Kind::Label, "x", {}}},
        {"event the kind does not raise", {&plain, Kind::Label, "x", {}, {.Change = [] {}}}},
        {"a button without its click", {&button, Kind::Button, "x", {}}},
        {"a ticked label", {&plain, Kind::Label, "x", {}, {}, {.checked = true}}},
        {"an aligned box", {&typed, Kind::Box, "x", {}, {}, {.align = Qt::AlignCenter}}},
        {"rows in a label", {&plain, Kind::Label, "x", {}, {}, {}, {{&typed, Kind::Box, "y", {}}}}},
    };
    for (const auto& [what, row] : mistakes)
        EXPECT_THROW(form::buildForm(&parent, {row}), std::logic_error) << what;
}

// The thumb dragged scrolls at each move and changes once, where it is let go: not at all when it is
// let go where it was taken, whatever it passed on the way, nor when the program writes the value
// the bar already has.
TEST_F(Controls, AScrollBarsDraggedThumbScrollsAsItMovesAndChangesWhereItIsLetGo)
{
    const struct {
        std::vector<int> moves;
        int scrolls, changes;
    } drags[] = {{{30, 40}, 2, 1}, {{30, 20}, 2, 0}, {{}, 0, 0}, {{21}, 1, 1}};
    for (const auto& drag : drags) {
        ScrollBar bar(Qt::Horizontal, &parent);
        bar.setValue(20);
        int scrolls = 0, changes = 0;
        bar.Scroll = [&] { ++scrolls; };
        bar.Change = [&] { ++changes; };
        bar.setSliderDown(true);
        for (int v : drag.moves)
            bar.setValue(v);
        bar.setSliderDown(false);
        bar.setValueChecked(bar.value());  // the program writing the value the bar has: no change
        EXPECT_EQ(std::pair(scrolls, changes), std::pair(drag.scrolls, drag.changes)) << drag.moves.size();
        EXPECT_EQ(errorOf([&] { bar.setValueChecked(100); }), rt::InvalidPropertyValue) << "past Max";
    }
}

TEST_F(Controls, ABoxWithASelectionKeepsCtrlCToCopyIt)
{
    TextBox box(&parent, QStringLiteral("12"));
    box.selectAll();
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    QApplication::sendEvent(&box, &override);
    EXPECT_TRUE(override.isAccepted()) << "without a selection the window copies the graph (the Copy test)";
}

TEST_F(Controls, ADoubleClicksSecondPressStepsLikeAnyOtherAndRaisesDblClickOnce)
{
    ClickLabel label(&parent, QStringLiteral("A="), true);
    label.resize(40, 20);
    int presses = 0, doubles = 0, clicks = 0;
    label.MouseDown = [&](int, int, double, double) { ++presses; };
    label.DblClick = [&] { ++doubles; };
    label.Click = [&] { ++clicks; };
    QTest::mouseClick(&label, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&label, &second);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(std::tuple(presses, doubles, clicks), std::tuple(2, 1, 1))
        << "a release after a double click clicks no more";
    // A double click whose release goes elsewhere (to a box its handler opened): the next click clicks.
    QApplication::sendEvent(&label, &second);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(std::tuple(presses, doubles, clicks), std::tuple(4, 2, 2));
}

TEST(FullScreenKey, ReturnsToTheStateBefore)
{
    for (const Qt::WindowStates before : {Qt::WindowStates(Qt::WindowNoState), Qt::WindowStates(Qt::WindowMaximized)}) {
        QWidget window;
        window.setWindowState(before);
        window.show();
        toggleFullScreen(&window);
        EXPECT_TRUE(window.windowState() & Qt::WindowFullScreen) << "from state " << before.toInt();
        toggleFullScreen(&window);
        EXPECT_EQ(window.windowState(), before);
    }
}
