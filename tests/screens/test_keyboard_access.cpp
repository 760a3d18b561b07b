// SPDX-License-Identifier: GPL-3.0-or-later
// Keyboard and screen-reader access through the widgets: Tab order by panel, the mnemonics of the
// captions, accessible names on every control, and stepper labels stepped from the keyboard.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

#include "launcher/frmGraphingCalc.h"

#include "ScreenFixture.h"

namespace {

template <class Screen>
struct Shown : ScreenFixture<Screen> {
    void SetUp() override
    {
        ScreenFixture<Screen>::SetUp();
        this->screen->show();
        this->screen->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this->screen.get()));
    }
    // The widgets Tab visits from `start`, until it comes back.
    std::vector<QWidget*> tabCycle(QWidget* start)
    {
        std::vector<QWidget*> seen;
        QWidget* w = start;
        do {
            seen.push_back(w);
            w = w->nextInFocusChain();
            while (w != start &&
                   !(w->focusPolicy() & Qt::TabFocus && w->isVisibleTo(this->screen.get()) && w->isEnabled()))
                w = w->nextInFocusChain();
        } while (w != start && seen.size() < 500);
        return seen;
    }
};

std::ptrdiff_t indexOf(const std::vector<QWidget*>& v, QWidget* w)
{
    return std::find(v.begin(), v.end(), w) - v.begin();
}

}  // namespace

using GrapherKeys = Shown<frmClasses>;
using SumsKeys = Shown<frmRiemann>;
using FieldKeys = Shown<frmFlowField>;

TEST_F(GrapherKeys, TabRunsThroughThePanelsInOrder)
{
    const auto cycle = tabCycle(screen->lblA);
    // The coefficient panel top to bottom, then the window limits, then the buttons top to bottom.
    const QWidget* expected[] = {screen->lblA, screen->txtA, screen->lblB, screen->txtB, screen->lblE, screen->txtE};
    for (std::size_t i = 1; i < std::size(expected); ++i)
        EXPECT_LT(indexOf(cycle, const_cast<QWidget*>(expected[i - 1])),
                  indexOf(cycle, const_cast<QWidget*>(expected[i])));
    EXPECT_LT(indexOf(cycle, screen->txtE), indexOf(cycle, screen->txtYmax));
    EXPECT_LT(indexOf(cycle, screen->txtYmax), indexOf(cycle, screen->txtXmin));  // top to bottom round the square
    EXPECT_LT(indexOf(cycle, screen->txtXmin), indexOf(cycle, screen->txtYmin));
    EXPECT_LT(indexOf(cycle, screen->txtYmin), indexOf(cycle, screen->cmdPlotto));
    EXPECT_LT(indexOf(cycle, screen->cmdPlotto), indexOf(cycle, screen->cmdClean));
    EXPECT_LT(indexOf(cycle, screen->cmdSetDefault), indexOf(cycle, screen->cmdExit));
    EXPECT_LT(indexOf(cycle, screen->lblFunc), indexOf(cycle, screen->txtYmax));
    EXPECT_EQ(static_cast<std::size_t>(indexOf(cycle, screen->cmdExit)), cycle.size() - 1);
}

// Every "&" of a caption becomes the Alt shortcut of its button, option or check box; the menu titles
// carry theirs into the menu bar. (Pressed on a real X display, Alt+Z zooms and Alt+P plots.)
void expectMnemonics(QWidget* screen)
{
    int checked = 0;
    for (QAbstractButton* b : screen->findChildren<QAbstractButton*>()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(b->text());
        if (mnemonic.isEmpty())
            continue;
        EXPECT_EQ(b->shortcut(), mnemonic) << b->text().toStdString();
        ++checked;
    }
    EXPECT_GT(checked, 3);
}

TEST_F(GrapherKeys, MnemonicsOfButtonsAndMenus)
{
    expectMnemonics(screen.get());
    EXPECT_EQ(screen->cmdPlotto->shortcut(), QKeySequence(Qt::ALT | Qt::Key_P));
    EXPECT_EQ(screen->cmdZoomIn->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Z));
    EXPECT_EQ(screen->cmdExit->shortcut(), QKeySequence(Qt::ALT | Qt::Key_X));
    EXPECT_EQ(QKeySequence::mnemonic(screen->mnuSelect->text()), QKeySequence(Qt::ALT | Qt::Key_S));
    screen->cmdZoomIn->animateClick();  // the shortcut's own action
    QTest::qWait(200);
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("5"));
}

TEST_F(GrapherKeys, ControlsAreNamedByTheirLabels)
{
    EXPECT_EQ(screen->txtA->accessibleName(), QStringLiteral("A"));
    EXPECT_EQ(screen->txtXmin->accessibleName(), QStringLiteral("Xmin"));
    EXPECT_EQ(screen->lblXmaxR->accessibleName(), QStringLiteral("raise Xmax by one"));
    EXPECT_EQ(screen->cmdPlotto->accessibleName(), QStringLiteral("Plotto!"));
}

TEST_F(GrapherKeys, SteppersStepFromTheKeyboard)
{
    screen->lblA->setFocus();
    QTest::keyClick(screen->lblA, Qt::Key_Up);
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("2"));
    QTest::keyClick(screen->lblA, Qt::Key_Down);
    QTest::keyClick(screen->lblA, Qt::Key_Down);
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("0"));
    QTest::keyClick(screen->lblXmaxR, Qt::Key_Space);  // the arrow's click
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("11"));
    QTest::keyClick(screen->lblXmaxR, Qt::Key_Space, Qt::ShiftModifier);  // click and double click
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("16"));
    QTest::keyClick(screen->lblFunc, Qt::Key_Right);
    EXPECT_EQ(FuncGlobals::FunctionId, 2);
    press(screen->lblA, Qt::LeftButton);  // the mouse does what it did
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("1"));
}

TEST_F(SumsKeys, TipsNamesAndTheSumsPanel)
{
    EXPECT_EQ(screen->cmdDouble->toolTip(), QStringLiteral("Automatically double Number of Partitions"));
    EXPECT_EQ(screen->txtParts->accessibleName(), QStringLiteral("Number of Partitions"));
    EXPECT_EQ(screen->txtLBound->accessibleName(), QStringLiteral("Left Boundary"));
    EXPECT_EQ(screen->chkSimpson->accessibleName(), QStringLiteral("Simpson's"));
    const auto cycle = tabCycle(screen->lblA);
    EXPECT_LT(indexOf(cycle, screen->cmdGraphNow), indexOf(cycle, screen->txtParts));
    EXPECT_LT(indexOf(cycle, screen->txtParts), indexOf(cycle, screen->chkLeft));
    EXPECT_LT(indexOf(cycle, screen->chkLeft), indexOf(cycle, screen->chkRiemann));
    expectMnemonics(screen.get());
    EXPECT_EQ(screen->cmdDouble->shortcut(), QKeySequence(Qt::ALT | Qt::Key_D));
}

TEST_F(FieldKeys, OptionMnemonicsAndNamedBoxes)
{
    expectMnemonics(screen.get());
    EXPECT_EQ(screen->optApprox->shortcut(), QKeySequence(Qt::ALT | Qt::Key_A));
    EXPECT_EQ(screen->optEuler->shortcut(), QKeySequence(Qt::ALT | Qt::Key_D));
    EXPECT_EQ(screen->txtCurvePoints->accessibleName(), QStringLiteral("Number of Curve Points"));
    EXPECT_EQ(screen->lbldy->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    QTest::keyClick(screen->lbldy, Qt::Key_Down);
    EXPECT_EQ(FuncGlobals::DyFuncId, 15);
}

TEST(LauncherKeys, ButtonsInTeachingOrderAndTheirMnemonics)
{
    DialogScript script;
    setDialogScript(&script);
    std::vector<int> ends;
    setProgramEndHandler([&](int code) { ends.push_back(code); });
    {
        frmGraphingCalc launcher;
        launcher.show();
        launcher.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&launcher));
        QWidget* order[] = {launcher.cmdFuncClasses, launcher.cmdAnimate,    launcher.cmdSums,
                            launcher.cmdNewton,      launcher.cmdSlopeField, launcher.cmdTangent,
                            launcher.cmdMVT,         launcher.cmdParam,      launcher.cmdExit};
        for (std::size_t i = 1; i < std::size(order); ++i) {
            QWidget* next = order[i - 1]->nextInFocusChain();
            while (!(next->focusPolicy() & Qt::TabFocus))
                next = next->nextInFocusChain();
            EXPECT_EQ(next, order[i]) << i;
        }
        expectMnemonics(&launcher);
        EXPECT_EQ(launcher.cmdExit->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Q));
    }
    setProgramEndHandler(nullptr);
    setDialogScript(nullptr);
}
