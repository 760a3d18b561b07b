// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader and the clipboard get: each screen's description follows its results after a
// person's action, result labels read as what they show, stepper labels and scroll bars speak, names
// are unique, the graph takes presses from the keyboard, Tab leaves the grids, Ctrl+C copies.
#include <functional>
#include <set>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTimer>

#include "launcher/frmGraphingCalc.h"
#include "screens/frmAnimate.h"
#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmMVT.h"
#include "screens/frmNewton.h"
#include "screens/frmParam.h"
#include "screens/frmRiemann.h"
#include "screens/frmTangent.h"

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
QString spokenName(QWidget* w) { return QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name); }
QString spokenValue(QWidget* w) { return QAccessible::queryAccessibleInterface(w)->text(QAccessible::Value); }

struct Case {
    const char* name;
    std::function<std::unique_ptr<GraphScreen>()> make;
    // Acts as a person would and returns the result labels that must now be read and described.
    std::function<std::vector<QLabel*>(GraphScreen&)> act;
    const char* mustMention;  // a text that only the action's result puts in the description
};

template <class S>
S& as(GraphScreen& s)
{
    return static_cast<S&>(s);
}

const Case kCases[] = {
    {"grapher", [] { return std::make_unique<frmClasses>(); },
     [](GraphScreen& s) {
         s.txtA->setText(QStringLiteral("3"));
         s.cmdPlotto->click();
         return std::vector<QLabel*>{};
     },
     "y = A * (Bx - C)^2 + D with A = 3, B = 1"},
    {"sums", [] { return std::make_unique<frmRiemann>(); },
     [](GraphScreen& g) {
         auto& s = as<frmRiemann>(g);
         s.txtLBound->setText(QStringLiteral("0"));
         s.txtRBound->setText(QStringLiteral("2"));
         s.txtParts->setText(QStringLiteral("4"));
         s.chkLeft->setChecked(true);
         s.chkSimpson->setChecked(true);
         s.cmdParts->click();
         return std::vector<QLabel*>{s.lblLeftE, s.lblSimpson, s.lblMid};
     },
     "Left Endpoint (ticked): =  1.75"},
    {"newton", [] { return std::make_unique<frmNewton>(); },
     [](GraphScreen& g) {
         auto& s = as<frmNewton>(g);
         s.txtGuess->setText(QStringLiteral("3"));
         s.cmdApply->click();
         s.cmdApply->click();
         return std::vector<QLabel*>{};
     },
     "Guesses: 1: 3; 2: "},
    {"slope field", [] { return std::make_unique<frmFlowField>(); },
     [](GraphScreen& g) {
         auto& s = as<frmFlowField>(g);
         s.surface->setFocus();
         QTest::keyClick(s.surface, Qt::Key_Right);
         QTest::keyClick(s.surface, Qt::Key_Return);  // a press at the cross-hair, one step right of the middle
         return std::vector<QLabel*>{s.lblPos, s.lblEndpt};
     },
     "that is dy = -1x; dx = Dx + Ey + F, that is dx = y."},
    {"tangent", [] { return std::make_unique<frmTangent>(); },
     [](GraphScreen& g) {
         auto& s = as<frmTangent>(g);
         s.cmdApply->click();
         return std::vector<QLabel*>{s.lblPoints, s.lblTLine};
     },
     "Secant through ( 1, 1) to ( 2, 4): y = 3x + -2."},
    {"mean value", [] { return std::make_unique<frmMVT>(); },
     [](GraphScreen& g) {
         auto& s = as<frmMVT>(g);
         s.txtX1->setText(QStringLiteral("0"));
         s.txtX2->setText(QStringLiteral("2"));
         s.cmdApplyMVT->click();
         s.cmdAnimateIt->click();
         return std::vector<QLabel*>{s.lblPt1, s.lblPt2, s.lblSlope1, s.lblFindc, s.lblSlope2};
     },
     "Found: c = "},
    {"parametric", [] { return std::make_unique<frmParam>(); },
     [](GraphScreen& g) {
         auto& s = as<frmParam>(g);
         s.cmdPlotto->click();
         s.HscT->triggerAction(QAbstractSlider::SliderPageStepAdd);
         return std::vector<QLabel*>{s.lblXY};
     },
     "Trace at t = "},
    {"animation", [] { return std::make_unique<frmAnimate>(); },
     [](GraphScreen& g) {
         auto& s = as<frmAnimate>(g);
         s.optSteps->click();
         s.vscStep->triggerAction(QAbstractSlider::SliderSingleStepAdd);
         return std::vector<QLabel*>{s.lblSlide, s.lblClickAnimate};
     },
     "Animating A of"},
};

class Described : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override
    {
        setDialogScript(&script);
        FuncGlobals::Coefficients = {};
    }
    void TearDown() override { setDialogScript(nullptr); }
    DialogScript script;
};

}  // namespace

TEST_P(Described, TheDescriptionAndTheLabelsFollowEveryAction)
{
    Shown shown(GetParam().make());
    GraphScreen& s = *shown.screen;
    const QString before = described(s);
    EXPECT_TRUE(before.contains(s.windowTitle())) << str(before);
    EXPECT_TRUE(before.contains(QStringLiteral("x from -10 to 10"))) << str(before);
    const std::vector<QLabel*> results = GetParam().act(s);
    const QString after = described(s);
    EXPECT_TRUE(after.contains(QString::fromUtf8(GetParam().mustMention))) << str(after);
    for (QLabel* label : results) {
        EXPECT_EQ(spokenName(label), label->text());  // read as shown, not as first named
        EXPECT_TRUE(after.contains(label->text().trimmed())) << str(label->text()) << " missing from " << str(after);
    }
    EXPECT_TRUE(script.errors.empty()) << script.errors.front();
}

TEST_P(Described, FocusableControlsHaveUniqueNamesAndTabLeavesEveryGrid)
{
    Shown shown(GetParam().make());
    GraphScreen& s = *shown.screen;
    std::set<QString> names;
    for (QWidget* w : s.surface->findChildren<QWidget*>()) {
        if (!(w->focusPolicy() & Qt::TabFocus) || !w->isVisibleTo(&s))
            continue;
        const QString name = spokenName(w);
        EXPECT_FALSE(name.isEmpty()) << w->metaObject()->className();
        EXPECT_TRUE(names.insert(name).second) << "repeated name " << str(name);
    }
    GetParam().act(s);  // a grid that holds results lets Tab go too
    for (Grid* grid : s.surface->findChildren<Grid*>()) {
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Tab);
        EXPECT_NE(QApplication::focusWidget(), grid);
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, Described, ::testing::ValuesIn(kCases), [](const auto& info) {
    std::string n = info.param.name;
    std::replace(n.begin(), n.end(), ' ', '_');
    return n;
});

TEST(Spoken, SteppersAreButtonsThatStepAndSlidersSayWhatTheyMean)
{
    DialogScript script;
    setDialogScript(&script);
    FuncGlobals::Coefficients = {};
    {
        Shown shown(std::make_unique<frmClasses>());
        GraphScreen& s = *shown.screen;
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(s.lblA);
        EXPECT_EQ(a->role(), QAccessible::Button);
        EXPECT_EQ(a->text(QAccessible::Name), QStringLiteral("raise or lower A"));
        a->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        a->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        EXPECT_EQ(s.txtA->text(), QStringLiteral("3"));
        a->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        EXPECT_EQ(a->text(QAccessible::Value), QStringLiteral("2"));
        // The limit arrows keep their own names and are buttons too.
        EXPECT_EQ(spokenName(s.lblXmaxR), QStringLiteral("raise Xmax by one"));
    }
    {
        Shown shown(std::make_unique<frmTangent>());
        auto& s = static_cast<frmTangent&>(*shown.screen);
        s.hscDx->triggerAction(QAbstractSlider::SliderPageStepSub);  // 2000 -> 1900: 0.9 of Delta x = 1
        EXPECT_EQ(spokenValue(s.hscDx), QStringLiteral("Delta x = .9"));
    }
    {
        Shown shown(std::make_unique<frmAnimate>());
        auto& s = static_cast<frmAnimate&>(*shown.screen);
        s.optSteps->click();
        s.vscStep->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        EXPECT_EQ(spokenValue(s.vscStep), QStringLiteral("A = ") + s.lblSlide->text());
        EXPECT_NE(spokenName(s.vscStep), QString());
    }
    setDialogScript(nullptr);
}

TEST(Keyboard, EnterInTheGraphPressesWhereTheMouseWouldAtEveryZoom)
{
    DialogScript script;
    setDialogScript(&script);
    for (double zoom : {1.0, 2.0, 0.75}) {
        Shown shown(std::make_unique<frmFlowField>());
        DrawingSurface* surface = shown.screen->surface;
        surface->setZoom(zoom);
        std::vector<std::tuple<int, double, double>> presses;
        surface->MouseDown = [&](int button, int, double x, double y) { presses.emplace_back(button, x, y); };
        surface->setFocus();
        QTest::keyClick(surface, Qt::Key_Left);
        QTest::keyClick(surface, Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(surface, Qt::Key_Return);
        QTest::keyClick(surface, Qt::Key_Return, Qt::ShiftModifier);
        const QPointF at = surface->pointer();
        // The mouse at the same logical pixel.
        const double t = twipsPerPixel(surface);
        QTest::mouseClick(surface, Qt::LeftButton, {},
                          QPoint(static_cast<int>(std::lround(at.x() / t)), static_cast<int>(std::lround(at.y() / t))));
        ASSERT_EQ(presses.size(), 3u) << zoom;
        EXPECT_EQ(std::get<0>(presses[0]), LeftButton);
        EXPECT_EQ(std::get<0>(presses[1]), RightButton);
        for (int i = 0; i < 2; ++i) {
            EXPECT_DOUBLE_EQ(std::get<1>(presses[i]), std::get<1>(presses[2])) << zoom;
            EXPECT_DOUBLE_EQ(std::get<2>(presses[i]), std::get<2>(presses[2])) << zoom;
        }
        // A step left and a tenth of a step up from the middle of the square, within a pixel.
        EXPECT_NEAR(std::get<1>(presses[2]), 2400 + 3200 - DrawingSurface::kPointerStep, t);
        EXPECT_NEAR(std::get<2>(presses[2]), 3300 - DrawingSurface::kPointerStep / 10, t);
    }
    setDialogScript(nullptr);
}

TEST(Copy, CtrlCCopiesTheGraphWithItsDescriptionOrAGridOrASelection)
{
    DialogScript script;
    setDialogScript(&script);
    FuncGlobals::Coefficients = {};
    {
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
        // The plotted parabola's blue is in the copied picture.
        bool blue = false;
        for (int y = 0; y < image.height() && !blue; ++y)
            for (int x = 0; x < image.width() && !blue; ++x)
                blue = image.pixel(x, y) == (0xFF000000u | rt::QBColor(1));
        EXPECT_TRUE(blue);
        s.txtA->selectAll();
        QTest::keyClick(s.txtA, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1"));
    }
    {
        Shown shown(std::make_unique<frmNewton>());
        auto& s = static_cast<frmNewton&>(*shown.screen);
        s.txtGuess->setText(QStringLiteral("3"));
        s.cmdApply->click();
        s.cmdApply->click();
        s.grdGuess->setFocus();
        QTest::keyClick(s.grdGuess, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(),
                  QStringLiteral("Guess #\tValue\n1\t3\n2\t") + s.grdGuess->cell(2, 1) + QLatin1Char('\n'));
    }
    setDialogScript(nullptr);
}

TEST(Keyboard, EnterPressesTheFocusedLauncherButton)
{
    DialogScript script;
    setDialogScript(&script);
    {
        frmGraphingCalc launcher;
        launcher.show();
        launcher.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&launcher));
        launcher.cmdTangent->setFocus();
        bool opened = false;
        QTimer::singleShot(0, &launcher, [&] {  // the screen runs modally: look, then leave it
            opened = launcher.tangentScreen().isVisible();
            launcher.tangentScreen().hide();
        });
        QTest::keyClick(launcher.cmdTangent, Qt::Key_Return);
        EXPECT_TRUE(opened);
    }
    setDialogScript(nullptr);
}

// The sums screen keeps its own caption but shares the selected family with every screen: after the
// grapher has been opened (its loading selects family 1), the sums' boxes A = 1, B = 0, C = 0 give
// y = 1(0x - 0)^2 + 0 = 0 and every area is 0. The description says which family is really used.
TEST(Described, TheSumsUseTheSharedFamilyAndTheDescriptionSaysWhich)
{
    DialogScript script;
    setDialogScript(&script);
    FuncGlobals::Coefficients = {};
    Shown sums(std::make_unique<frmRiemann>());
    auto& s = static_cast<frmRiemann&>(*sums.screen);
    frmClasses grapher;  // loaded after the sums screen: the shared family is now 1
    s.Form_Activate();
    s.txtLBound->setText(QStringLiteral("0"));
    s.txtRBound->setText(QStringLiteral("2"));
    s.chkLeft->setChecked(true);
    s.cmdParts->click();
    EXPECT_EQ(s.lblFunction->text(), QStringLiteral("y = Ax^2 + Bx + C"));
    EXPECT_EQ(s.lblLeftE->text(), QStringLiteral("=  0"));
    EXPECT_TRUE(described(s).contains(QStringLiteral("Area under y = A * (Bx - C)^2 + D with A = 1, B = 0")))
        << str(described(s));
    setDialogScript(nullptr);
}
