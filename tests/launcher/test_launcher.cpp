// SPDX-License-Identifier: GPL-3.0-or-later
// The launcher: its caption and About sequence, opening a screen modally and finding it as it was
// left, and Quit.
#include <QMenu>
#include <QTimer>
#include <gtest/gtest.h>

#include "graphwin/Dialogs.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/frmClasses.h"

namespace {

struct LauncherTest : ::testing::Test {
    DialogScript script;
    std::vector<int> ends;
    void SetUp() override
    {
        setDialogScript(&script);
        setProgramEndHandler([this](int code) { ends.push_back(code); });
    }
    void TearDown() override
    {
        setDialogScript(nullptr);
        setProgramEndHandler(nullptr);
    }
    // Runs `inside` while the screen is shown modally, then leaves it by its Exit button.
    static void whileShown(GraphScreen& screen, std::function<void()> inside)
    {
        QTimer::singleShot(0, &screen, [&screen, inside] {
            inside();
            screen.cmdExit->click();
        });
    }
};

}  // namespace

TEST_F(LauncherTest, CaptionAndAboutSequence)
{
    frmGraphingCalc launcher;
    EXPECT_EQ(launcher.windowTitle(), QStringLiteral("Plotto!   Calculus Calculator"));
    EXPECT_EQ(launcher.cmdFuncClasses->text(), QStringLiteral("Graph Classes of &Functions"));
    EXPECT_EQ(launcher.mnuGrapher->text(), QStringLiteral("&Function Grapher"));
    launcher.mnuAbout->trigger();
    ASSERT_EQ(script.shown.size(), 3u);
    EXPECT_EQ(script.shown[0].first, QStringLiteral("Calculus Demonstrations"));
    EXPECT_EQ(script.shown[1].first, QStringLiteral("Distribute Freely"));
    EXPECT_TRUE(script.shown[1].second.startsWith(QStringLiteral(
        "This program is free.  Give it to your Calculus students or whoever could benefit from its use.")));
    EXPECT_TRUE(script.shown[1].second.endsWith(QStringLiteral("Plotto issue tracker.")));
    EXPECT_EQ(script.shown[2].second, QStringLiteral("Read the ABOUTs on each screen.  There are handy things to know "
                                                     "about clicking labels on the screens....."));
}

TEST_F(LauncherTest, AScreenKeepsItsStateBetweenVisits)
{
    frmGraphingCalc launcher;
    frmClasses& screen = launcher.classesScreen();
    screen.surface->setRecording(true);
    whileShown(screen, [&] {
        EXPECT_TRUE(screen.isVisible());
        EXPECT_TRUE(screen.isModal());
        screen.txtXmax->setText(QStringLiteral("20"));
        screen.mnuFunc_Click(3);
        screen.cmdPlotto_Click();
    });
    launcher.cmdFuncClasses->click();
    EXPECT_FALSE(screen.isVisible());

    bool activated = false;
    whileShown(screen, [&] {
        activated = screen.surface->ops().size() == 2 + 21 + 31;  // fresh axes and ticks, the plot gone
        EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("20"));
        EXPECT_EQ(screen.lblFunc->text(), QStringLiteral("y = A(Bx - C)^3 + D"));
    });
    launcher.mnuGrapher->trigger();
    EXPECT_TRUE(activated);
    EXPECT_EQ(&launcher.classesScreen(), &screen);
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(LauncherTest, QuitButtonAndMenuEndTheProgram)
{
    frmGraphingCalc launcher;
    launcher.cmdExit->click();
    launcher.mnuExit->trigger();
    EXPECT_EQ(ends, (std::vector<int>{0, 0}));
    EXPECT_EQ(launcher.cmdExit->text(), QStringLiteral("&Quit"));
    EXPECT_EQ(launcher.mnuExit->text(), QStringLiteral("&Quit"));
}

TEST_F(LauncherTest, AnErrorInsideAModalScreenReachesTheOneReport)
{
    frmGraphingCalc launcher;
    frmClasses& screen = launcher.classesScreen();
    whileShown(screen, [&] { screen.txtXmax->setText(QStringLiteral("-10")); });
    launcher.cmdFuncClasses->click();
    EXPECT_EQ(script.errors, std::vector<int>{11});
    EXPECT_EQ(script.shown.back(),
              std::make_pair(QStringLiteral("Plotto"), QStringLiteral("Run-time error '11':\n\nDivision by zero")));
}

TEST_F(LauncherTest, EveryScreenOpensFromItsButtonAndItsMenuEntry)
{
    frmGraphingCalc launcher;
    struct Entry {
        QPushButton* button;
        QAction* action;
        GraphScreen& screen;
        const char* title;
    };
    const Entry entries[] = {
        {launcher.cmdFuncClasses, launcher.mnuGrapher, launcher.classesScreen(), "Graphing Classes of Functions"},
        {launcher.cmdSums, launcher.mnuRiemann, launcher.riemannScreen(), "Riemann and Other Sums"},
        {launcher.cmdAnimate, launcher.mnuAnimate, launcher.animateScreen(), "Animate Classes of Functions"},
        {launcher.cmdSlopeField, launcher.mnuSlopeField, launcher.slopeFieldScreen(), "Slope Fields"},
        {launcher.cmdNewton, launcher.mnuNewton, launcher.newtonScreen(), "Newton's Method and Derivatives"},
        {launcher.cmdTangent, launcher.mnuTangent, launcher.tangentScreen(), "The Tangent Line Problem"},
        {launcher.cmdMVT, launcher.mnuMVT, launcher.mvtScreen(), "The Mean Value Theorem"},
        {launcher.cmdParam, launcher.mnuParam, launcher.paramScreen(), "Parametric Equation graphing"},
    };
    for (const Entry& e : entries) {
        int shown = 0;
        whileShown(e.screen, [&] { shown += e.screen.isVisible() ? 1 : 0; });
        e.button->click();
        whileShown(e.screen, [&] { shown += e.screen.isVisible() ? 1 : 0; });
        e.action->trigger();
        EXPECT_EQ(shown, 2) << e.title;
        EXPECT_EQ(e.screen.windowTitle(), QString::fromUtf8(e.title));
    }
    const QString menu[] = {QStringLiteral("&Riemann Sums +"),     QStringLiteral("&Function Grapher"),
                            QStringLiteral("&Animate Functions"),  QStringLiteral("&Slope Fields"),
                            QStringLiteral("&Newton's Method"),    QStringLiteral("&Tangent Problem"),
                            QStringLiteral("&Mean Value Theorem"), QStringLiteral("&Parametric Graphs")};
    const QList<QAction*> actions = launcher.mnuSelect->menu()->actions();
    ASSERT_EQ(actions.size(), 8);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(actions[i]->text(), menu[i]);
    EXPECT_TRUE(script.errors.empty());
}
