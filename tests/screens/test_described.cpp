// SPDX-License-Identifier: GPL-3.0-or-later
// What the clipboard and the keyboard get across the screens: Ctrl+C copies the graph with its
// description, the description says which shared family the sums really use, every caption's "&"
// is a shortcut, and stepper labels stepped from the keys.
// (Each screen's own description is checked in its suite.)
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "launcher/frmGraphingCalc.h"
#include "screens/ScreenRegistry.h"

#include "ScreenFixture.h"

namespace {

std::string str(const QString& text) { return text.toStdString(); }

// A shown screen whose action goes through a button, as a person's click does.
struct Shown {
    std::unique_ptr<GraphScreen> screen;
    explicit Shown(std::unique_ptr<GraphScreen> s) : screen(std::move(s))
    {
        screen->Form_Activate();  // as the launcher opens a screen
        screen->show();
        screen->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
    }
};

QString described(GraphScreen& s)
{
    return QAccessible::queryAccessibleInterface(s.surface)->text(QAccessible::Description);
}

}  // namespace

TEST(Copy, CtrlCCopiesTheGraphWithItsDescription)
{
    ScriptedDialogs script;
    Shown shown(std::make_unique<frmClasses>());
    GraphScreen& s = *shown.screen;
    s.cmdPlotto->click();
    s.txtA->setFocus();  // a box without a selection leaves Ctrl+C to the window
    QTest::keyClick(s.txtA, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* data = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(data && data->hasImage());
    const QImage image = qvariant_cast<QImage>(data->imageData());
    EXPECT_NEAR(image.width(), 6405 / 15.0 * s.surface->devicePixelRatioF(), 2);
    EXPECT_TRUE(data->text().contains(QStringLiteral("y = A * (Bx - C)^2 + D with A = 1"))) << str(data->text());
    // The square's picture from (2400, 120): the parabola's blue is at its vertex (5600, 3300).
    const double dpr = s.surface->devicePixelRatioF();
    int blue = 0;
    for (int dy = -2; dy <= 2; ++dy)
        for (int dx = -2; dx <= 2; ++dx)
            blue += image.pixel(int(3200 / 15.0 * dpr) + dx, int(3180 / 15.0 * dpr) + dy) == 0xFF000080u;
    EXPECT_GT(blue, 0);
}

// The sums screen keeps its own caption but shares the selected family with every screen: after the
// grapher has been opened (its loading selects family 1), the sums' boxes A = 1, B = 0, C = 0 give
// y = 1(0x - 0)^2 + 0 = 0 and every area is 0. The description says which family is really used.
TEST(Described, TheSumsUseTheSharedFamilyAndTheDescriptionSaysWhich)
{
    ScriptedDialogs script;
    Shown sums(std::make_unique<frmRiemann>());
    auto& s = static_cast<frmRiemann&>(*sums.screen);
    frmClasses grapher;  // loaded after the sums screen: the shared family is now 1
    s.Form_Activate();
    type({s.txtLBound, s.txtRBound}, "0|2");
    s.chkLeft->setChecked(true);
    s.cmdParts->click();
    EXPECT_EQ(texts({s.lblFunction, s.lblLeftE}), QStringLiteral("y = Ax^2 + Bx + C|=  0"));
    EXPECT_TRUE(described(s).contains(QStringLiteral("Area under y = A * (Bx - C)^2 + D with A = 1, B = 0")))
        << str(described(s));
}

// Every "&" of a caption is the Alt shortcut of its button, option or check box, on every window;
// stepper labels step from the keyboard as from the mouse.
TEST(Keyboard, MnemonicsAndSteppers)
{
    ScriptedDialogs script;
    frmGraphingCalc launcher;
    std::vector<QWidget*> windows{&launcher};
    for (const screens::Entry& row : screens::all())
        windows.push_back(&launcher.screen(row));
    for (QWidget* window : windows) {
        int checked = 0;
        for (QAbstractButton* b : window->findChildren<QAbstractButton*>())
            if (!QKeySequence::mnemonic(b->text()).isEmpty()) {
                EXPECT_EQ(b->shortcut(), QKeySequence::mnemonic(b->text())) << str(b->text());
                ++checked;
            }
        EXPECT_GT(checked, 3) << str(window->windowTitle());
    }
    frmClasses& grapher = launcher.classesScreen();
    const Shown named(std::make_unique<frmClasses>());  // a stepper is a button named by what it does
    const auto spoken = [](QWidget* w) { return QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name); };
    EXPECT_EQ(spoken(named.screen->lblA) + '|' + spoken(named.screen->lblXmaxR) + '|' + spoken(named.screen->txtYmin) +
                  '|' + named.screen->txtYmin->toolTip(),
              QStringLiteral("raise or lower A|raise Xmax by one|Ymin|Ymin"));
    // A stepper's actions for assistive technology, with their keys: press and increase raise by one
    // (Space), decrease lowers by one (Minus).
    QAccessibleActionInterface* actions = QAccessible::queryAccessibleInterface(named.screen->lblA)->actionInterface();
    ASSERT_NE(actions, nullptr);
    QStringList bindings;
    for (const QString& action : actions->actionNames())
        bindings << action + QLatin1Char(' ') + actions->keyBindingsForAction(action).join(QLatin1Char(','));
    EXPECT_EQ(bindings.join(QLatin1Char('|')), QStringLiteral("Press Space|Increase Space|Decrease Minus"));
    QTest::keyClick(grapher.lblA, Qt::Key_Up);
    const QString up = grapher.txtA->text();
    QTest::keyClick(grapher.lblA, Qt::Key_Down);
    QTest::keyClick(grapher.lblXmaxR, Qt::Key_Space);  // the arrow's click
    const QString arrow = grapher.txtXmax->text();
    QTest::keyClick(grapher.lblXmaxR, Qt::Key_Space, Qt::ShiftModifier);  // and its double click
    EXPECT_EQ(up + '|' + texts({grapher.txtA}) + '|' + arrow + '|' + texts({grapher.txtXmax}), "2|1|11|16");
    QTest::keyClick(grapher.lblFunc, Qt::Key_Left);
    EXPECT_EQ(FuncGlobals::FunctionId, 15);
    for (const screens::Entry& row : screens::all()) {  // each screen's File menu: About, a separator, Exit
        GraphScreen& g = launcher.screen(row);
        EXPECT_EQ(g.mnuFile->menu()->actions(), (QList<QAction*>{g.mnuAbout, g.sep1, g.mnuExit})) << row.key;
    }
}
