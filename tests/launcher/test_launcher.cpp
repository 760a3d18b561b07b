// SPDX-License-Identifier: GPL-3.0-or-later
// The launcher: opening each screen modally from its button and its menu entry, finding it as it was
// left, the one report of a run-time error inside a screen, and Quit.
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/ScreenRegistry.h"
#include "screens/frmClasses.h"
#include "tests/screens/ScreenFixture.h"

TEST(Launcher, OpensEachScreenModallyKeepsItsStateReportsItsErrorsAndQuits)
{
    ScriptedDialogs script;
    std::vector<int> ends;
    setProgramEndHandler([&](int code) { ends.push_back(code); });
    {
        frmGraphingCalc l;
        EXPECT_EQ(l.mnuSelect->menu()->actions().size(), 8);
        EXPECT_EQ(l.mnuFile->menu()->actions(), (QList<QAction*>{l.mnuAbout, l.Sep1, l.mnuExit}));
        const auto* heading = l.findChild<QLabel*>();  // above the buttons, in the window's layout
        EXPECT_TRUE(heading && heading->text() == QStringLiteral("Choose a demonstration") &&
                    l.layout()->indexOf(heading) >= 0);
        l.resize(l.size() * 2);  // everything grows with the window: fonts, menus and buttons
        QResizeEvent grown(l.size(), l.size() / 2);
        QCoreApplication::sendEvent(&l, &grown);
        EXPECT_EQ(
            std::tuple(l.font().pointSizeF(), l.mnuSelect->menu()->font().pointSizeF(), l.cmdSums->minimumWidth()),
            std::tuple(22.0, 22.0, 480));
        QWidget* tab = l.cmdFuncClasses;  // Tab runs through the buttons in teaching order, Quit last
        for (QPushButton* next :
             {l.cmdAnimate, l.cmdSums, l.cmdNewton, l.cmdSlopeField, l.cmdTangent, l.cmdMVT, l.cmdParam, l.cmdExit}) {
            do
                tab = tab->nextInFocusChain();
            while (!(tab->focusPolicy() & Qt::TabFocus));
            EXPECT_EQ(tab, static_cast<QWidget*>(next));
        }
        // The grapher found as it was left, but activated afresh: axes and ticks, the plot gone.
        frmClasses& grapher = l.classesScreen();
        grapher.surface->setRecording(true);
        whileShown(grapher, [&] {
            grapher.txtXmax->setText(QStringLiteral("20"));
            grapher.mnuFunc_Click(3);
            grapher.cmdPlotto_Click();
        });
        l.cmdFuncClasses->click();
        std::size_t drawn = 0;
        whileShown(grapher, [&] { drawn = grapher.surface->ops().size(); });
        l.mnuGrapher->trigger();
        EXPECT_EQ(std::tuple(drawn, grapher.txtXmax->text(), int(FuncGlobals::FunctionId)),
                  std::tuple(2u + 21 + 31, QStringLiteral("20"), 3));
        EXPECT_TRUE(script.errors.empty());
        whileShown(grapher, [&] { grapher.txtXmax->setText(QStringLiteral("-10")); });
        l.cmdFuncClasses->click();  // equal limits: the one report, from inside the modal screen
        EXPECT_EQ(script.errors, std::vector<int>{11});
        EXPECT_EQ(script.shown.back(),
                  std::pair(QStringLiteral("Plotto"), QStringLiteral("Run-time error '11':\n\nDivision by zero")));
        l.cmdExit->click();
        l.mnuExit->trigger();
        EXPECT_EQ(ends, (std::vector<int>{0, 0}));
    }
    setProgramEndHandler(nullptr);
}

// Every row of the screen registry opens a screen of the row's class, modally, and Exit closes it: a
// seed's from its button and its Selections entry, an addition's from its More Demonstrations entry
// (and has no button).
TEST(Launcher, EveryRegisteredScreenOpensFromItsButtonAndEntry)
{
    ScriptedDialogs script;
    frmGraphingCalc l;
    const QList<QAction*> menus[] = {l.mnuSelect->menu()->actions(), l.mnuMore->menu()->actions()};
    qsizetype next[2] = {0, 0};
    for (const screens::Entry& row : screens::all()) {
        const int kind = row.kind == screens::Entry::Kind::Addition;
        ASSERT_LT(next[kind], menus[kind].size()) << row.key;
        QAction* entry = menus[kind][next[kind]++];
        GraphScreen& screen = l.screen(row);
        EXPECT_EQ(screens::of(screen), &row);
        EXPECT_EQ(entry->text(), QString::fromUtf8(row.entry));
        QPushButton* button = nullptr;
        for (QPushButton* b : l.findChildren<QPushButton*>())
            if (!button && b->text() == QString::fromUtf8(row.button))
                button = b;
        EXPECT_EQ(button == nullptr, bool(kind)) << row.key;
        int shown = 0;
        for (int way = kind; way < 2; ++way) {
            whileShown(screen, [&] { shown += screen.isVisible() && screen.isModal(); });
            way ? entry->trigger() : button->click();
            EXPECT_FALSE(screen.isVisible()) << row.key << ": left by its Exit button";
        }
        EXPECT_EQ(shown, 2 - kind) << row.key;
    }
    EXPECT_EQ(std::pair(next[0], next[1]), std::pair(menus[0].size(), menus[1].size())) << "every entry opens a row";
    // The added menu's Alt letter opens it alone: no button of the window shares it (the menus' letters
    // are told apart in every language by the translations' test).
    const QKeySequence more = QKeySequence::mnemonic(l.mnuMore->text());
    ASSERT_FALSE(more.isEmpty());
    for (QPushButton* b : l.findChildren<QPushButton*>())
        EXPECT_NE(QKeySequence::mnemonic(b->text()), more) << b->text().toStdString();
    EXPECT_TRUE(script.errors.empty());
}

// A lesson from a colleague whose step makes a classic handler raise a run-time error: the step is
// refused in words that name it and the error, the screen stays open with the lesson, no report ends
// the program, and Next Step goes on. A person's own click keeps the classic report.
TEST(Launcher, ALessonStepThatRaisesIsRefusedAndTheLessonGoesOn)
{
    ScriptedDialogs script;
    std::vector<int> ends;
    setProgramEndHandler([&](int code) { ends.push_back(code); });
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("colleague.plotto")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    // Step 2: equal x-limits, so that Plotto! divides by the window's width of 0 (error 11); step 3:
    // A = 1e308 on A(Bx - C)^2 + D, whose values at |x| near 10 pass the largest double (error 6).
    file.write(R"({"format": "plotto-lesson", "version": 2, "steps": [
        {"screen": "grapher", "controls": {"txtXmax": "20"}, "actions": [{"click": "cmdPlotto"}]},
        {"screen": "grapher", "controls": {"txtXmin": "5", "txtXmax": "5"}, "actions": [{"click": "cmdPlotto"}]},
        {"screen": "grapher", "controls": {"txtXmin": "-10", "txtXmax": "10", "txtA": "1e308"}, "actions": [{"click": "cmdPlotto"}]},
        {"screen": "grapher", "controls": {"txtXmin": "-3", "txtXmax": "3"}, "actions": [{"click": "cmdPlotto"}]}]})");
    file.close();
    {
        frmGraphingCalc l;
        frmClasses& grapher = l.classesScreen();
        QStringList seen;  // the lesson's place and whether the screen was shown
        QString said;
        whileShown(grapher, [&] {
            // Before the first step and past the last there is nothing to move to.
            grapher.mnuPreviousStep->trigger();
            for (int step = 1; step <= 5; ++step) {
                if (step > 1)
                    grapher.mnuNextStep->trigger();
                seen << grapher.lblLessonPlace->text() + (grapher.isVisible() ? " shown" : " hidden") +
                            (grapher.mnuNextStep->isEnabled() && grapher.mnuPreviousStep->isEnabled() ? "" : " stuck");
            }
            said = grapher.announcement();  // the step shown whole is said
        });
        EXPECT_FALSE(grapher.mnuNextStep->isEnabled() || grapher.mnuPreviousStep->isEnabled()) << "no lesson yet";
        l.openLesson(file.fileName());
        EXPECT_EQ(seen, QStringList({"Step 1 of 4 shown", "Step 2 of 4 shown", "Step 3 of 4 shown", "Step 4 of 4 shown",
                                     "Step 4 of 4 shown"}));
        EXPECT_EQ(said, QStringLiteral("Step 4 of 4."));
        QStringList boxes;
        for (const auto& [title, prompt] : script.shown)
            boxes << prompt;
        EXPECT_EQ(boxes, QStringList({"Step 2 cannot be shown: its values divide by zero (run-time error 11).",
                                      "Step 3 cannot be shown: its values overflow (run-time error 6)."}));
        EXPECT_TRUE(script.errors.empty() && ends.empty());
        // The refused step's A went back to what it was; the last step's window is shown.
        EXPECT_EQ(texts({grapher.txtXmin, grapher.txtXmax, grapher.txtA}), QStringLiteral("-3|3|1"));
        // Outside the lesson the same values clicked by a person still meet the classic report.
        whileShown(grapher, [&] {
            type({grapher.txtXmin, grapher.txtXmax}, "5|5");
            grapher.cmdPlotto->click();
        });
        l.cmdFuncClasses->click();
        EXPECT_EQ(script.errors, std::vector<int>{11});
    }
    setProgramEndHandler(nullptr);
}
