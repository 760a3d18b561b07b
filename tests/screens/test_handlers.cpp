// SPDX-License-Identifier: GPL-3.0-or-later
// The named handlers act on their own control and on nothing else: a coefficient box's change
// handler copies that box, a stepper label moves its own box one way with the left button and back
// with the right; a slip to a neighbour (C's handler copying D) or a handler that does nothing is
// caught here, where the form's own wiring would hide it.
#include <map>

#include "screens/frmArea.h"
#include "screens/frmLimits.h"
#include "screens/frmTaylor.h"

#include "ScreenFixture.h"

namespace {

// Every box of the screen but one by its object name, with its text.
std::map<QString, QString> boxTexts(GraphScreen& s, const TextBox* except)
{
    std::map<QString, QString> out;
    for (TextBox* box : s.surface->findChildren<TextBox*>())
        if (box != except)
            out[box->objectName()] = box->text();
    return out;
}

}  // namespace

TEST(Handlers, EachCoefficientHandlerCopiesItsOwnBoxOnly)
{
    using Handler = void (GraphScreen::*)();
    const Handler changes[6] = {&GraphScreen::txtA_Change, &GraphScreen::txtB_Change, &GraphScreen::txtC_Change,
                                &GraphScreen::txtD_Change, &GraphScreen::txtE_Change, &GraphScreen::txtF_Change};
    ScriptedDialogs script;
    frmFlowField screen;  // a screen with all six coefficients
    screen.Form_Activate();
    TextBox* boxes[6] = {screen.txtA, screen.txtB, screen.txtC, screen.txtD, screen.txtE, screen.txtF};
    const double before[6] = {-11, -12, -13, -14, -15, -16};
    for (int i = 0; i < 6; ++i) {
        FuncGlobals::Coefficients = {before[0], before[1], before[2], before[3], before[4], before[5]};
        setQuietly(boxes[i], QStringLiteral("2.5"));  // the handler alone, not the box's own wiring
        (screen.*changes[i])();
        const double* k = &FuncGlobals::Coefficients.A;
        for (int j = 0; j < 6; ++j)
            EXPECT_EQ(k[j], j == i ? 2.5 : before[j]) << "txt" << char('A' + i) << "_Change, coefficient " << j;
    }
}

// Each stepper label of the screens: the left button moves its box by `left` (from whatever it
// holds), the right button brings it back, and no other box changes.
TEST(Handlers, EachStepperLabelMovesItsOwnBoxAndTheRightButtonBringsItBack)
{
    struct Row {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        std::function<void(GraphScreen&, int)> press;
        std::function<TextBox*(GraphScreen&)> box;
        std::function<double(double)> left;
    };
    const auto plusOne = [](double v) { return v + 1; };
    const auto half = [](double v) { return v / 2; };
// clang-format off
#define ROW(name, S, handler, box, left) \
    {name, make<S>, [](GraphScreen& s, int b) { as<S>(s).handler(b, 0, 0, 0); }, \
     [](GraphScreen& s) -> TextBox* { return as<S>(s).box; }, left}
    const Row rows[] = {
        ROW("coefficient A", frmFlowField, lblA_MouseDown, txtA, plusOne),
        ROW("coefficient B", frmFlowField, lblB_MouseDown, txtB, plusOne),
        ROW("coefficient C", frmFlowField, lblC_MouseDown, txtC, plusOne),
        ROW("coefficient D", frmFlowField, lblD_MouseDown, txtD, plusOne),
        ROW("coefficient E", frmFlowField, lblE_MouseDown, txtE, plusOne),
        ROW("coefficient F", frmFlowField, lblF_MouseDown, txtF, plusOne),
        ROW("sums: partitions", frmRiemann, lblPartitions_MouseDown, txtParts, plusOne),
        ROW("sums: left bound", frmRiemann, lblLBound_MouseDown, txtLBound, plusOne),
        ROW("sums: right bound", frmRiemann, lblRBound_MouseDown, txtRBound, plusOne),
        ROW("tangent: x", frmTangent, lblXat_MouseDown, txtX, plusOne),
        ROW("tangent: dx", frmTangent, lblDeltaX_MouseDown, txtDeltaX, plusOne),
        ROW("parametric: t0", frmParam, lblT0_MouseDown, txtT0, plusOne),
        ROW("parametric: final t", frmParam, lblFinalT_MouseDown, txtTn, plusOne),
        ROW("parametric: t step", frmParam, lblTstep_MouseDown, txtTstep, plusOne),
        ROW("parametric: traced t", frmParam, lbltTrace_MouseDown, txtT, plusOne),
        ROW("slope field: points", frmFlowField, lblplots_MouseDown, txtCurvePoints, plusOne),
        ROW("slope field: horizontal shift", frmFlowField, lblHorShift_MouseDown, txtHorShift, plusOne),
        ROW("slope field: vertical shift", frmFlowField, lblVerShift_MouseDown, txtVerShift, plusOne),
        ROW("slope field: step halves", frmFlowField, lblDeltaX_MouseDown, txtDelta, half),
        ROW("area: a", frmArea, lblLeft_MouseDown, txtLeft, plusOne),
        ROW("area: b", frmArea, lblRight_MouseDown, txtRight, plusOne),
        ROW("area: strips", frmArea, lblStrips_MouseDown, txtStrips, plusOne),
        ROW("limits: epsilon halves", frmLimits, lblEpsilon_MouseDown, txtEpsilon, half),
        ROW("limits: a", frmLimits, lblPoint_MouseDown, txtPoint, plusOne),
        ROW("Taylor: centre", frmTaylor, lblCentre_MouseDown, txtCentre, plusOne),
    };
#undef ROW
    // clang-format on
    ScriptedDialogs script;
    for (const Row& r : rows) {
        const auto screen = r.make();
        screen->Form_Activate();
        TextBox* box = r.box(*screen);
        const double before = box->value();
        const auto others = boxTexts(*screen, box);
        r.press(*screen, LeftButton);
        EXPECT_DOUBLE_EQ(box->value(), r.left(before)) << r.name << " from " << before;
        r.press(*screen, RightButton);
        EXPECT_DOUBLE_EQ(box->value(), before) << r.name;
        EXPECT_EQ(boxTexts(*screen, box), others) << r.name;
    }
}

// The labels that step through a catalogue of families: pressed as many times as the catalogue has
// families, each visits every family once and comes back to where it started; the right button goes
// back one where it steps backwards (the parametric labels step forwards with either button).
TEST(Handlers, EachFamilyLabelStepsThroughItsWholeCatalogue)
{
    using namespace FuncGlobals;
    struct Row {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        void (*press)(GraphScreen&, int Button);
        std::int16_t* id;
        int families;
        bool rightGoesBack;
    };
#define PRESS(S, H) [](GraphScreen& s, int b) { as<S>(s).H(b, 0, 0, 0); }
    const Row rows[] = {
        {"grapher", make<frmClasses>, PRESS(GraphScreen, lblFunc_MouseDown), &FunctionId, ExplicitFamilyCount, true},
        {"slope field dy", make<frmFlowField>, PRESS(frmFlowField, lbldy_MouseDown), &DyFuncId, RateFamilyCount, true},
        {"slope field dx", make<frmFlowField>, PRESS(frmFlowField, lbldx_MouseDown), &DxFuncId, RateFamilyCount, true},
        {"parametric x", make<frmParam>, PRESS(frmParam, lblXPar_MouseDown), &XtFuncId, ParametricFamilyCount, false},
        {"parametric y", make<frmParam>, PRESS(frmParam, lblYPar_MouseDown), &YtFuncId, ParametricFamilyCount, false},
    };
#undef PRESS
    ScriptedDialogs script;
    for (const Row& r : rows) {
        const auto screen = r.make();
        screen->Form_Activate();
        const int start = *r.id;
        r.press(*screen, LeftButton);
        const int next = *r.id;
        EXPECT_NE(next, start) << r.name;
        r.press(*screen, RightButton);
        EXPECT_EQ(*r.id, r.rightGoesBack ? start : (next % r.families) + 1) << r.name;
        const int from = *r.id;
        std::set<int> seen;
        for (int i = 0; i < r.families; ++i) {
            r.press(*screen, LeftButton);
            seen.insert(*r.id);
        }
        EXPECT_EQ(static_cast<int>(seen.size()), r.families) << r.name;
        EXPECT_EQ(*r.id, from) << r.name;
    }
    EXPECT_TRUE(script.errors.empty());
}
