// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures drawn through batches against the same shapes drawn one by one: for each screen's heaviest
// picture two screens act alike, one batching and one not, and every pixel agrees, at the normal size
// and redrawn at another size from what the surface keeps. (The grapher's curve is a plain column run,
// which the surface's own tests compare so.)
#include "runtime/Random.h"

#include "ScreenFixture.h"

namespace {

QImage pictureOf(GraphScreen& s)
{
    return s.surface->picture(QRectF(0, 0, s.surface->widthTwips(), s.surface->heightTwips()));
}

}  // namespace

TEST(Batching, EachScreensHeaviestPictureIsPixelForPixelTheShapesDrawnOneByOne)
{
    ScriptedDialogs script;
    const struct {
        const char* name;
        std::unique_ptr<GraphScreen> (*make)();
        std::function<void(GraphScreen&)> act;
    } cases[] = {
        {"sums, seven methods at 32000", make<frmRiemann>, on<frmRiemann>([](frmRiemann& s) {
             type({s.txtA, s.txtB, s.txtC, s.txtLBound, s.txtRBound, s.txtParts}, "1|0|-3|-2|2.5|32000");
             for (CheckBox* c : {s.chkLeft, s.chkRight, s.chkMid, s.chkTrap, s.chkRandom, s.chkSimpson, s.chkRiemann})
                 c->setChecked(true);
             s.cmdParts_Click();
         })},
        {"slope field, the arrows and eighty curves", make<frmFlowField>, on<frmFlowField>([](frmFlowField& s) {
             s.cmdShowFlow_Click();
             s.chkBiDirect->setChecked(true);
             s.cmdPlotto_Click();
         })},
        {"parametric, 32000 steps connected and as points", make<frmParam>, on<frmParam>([](frmParam& s) {
             s.txtTstep->setText(QStringLiteral("32000"));
             s.cmdPlotto_Click();
             s.optCont->setChecked(true);
             s.txtXmin->setText(QStringLiteral("0"));
             s.cmdPlotto_Click();
         })},
        {"parametric, 1000 steps connected, then an overflow with segments not yet drawn", make<frmParam>,
         on<frmParam>([](frmParam& s) {
             s.mnuXFunc_Click(4);  // the family is shared by both screens
             s.optCont->setChecked(true);
             s.cmdPlotto_Click();  // not a whole number of the batch's chunks
             s.mnuXFunc_Click(11);  // x = e^t - 5, y = t / 10: overflows at t = 710
             FuncGlobals::Coefficients = {1, 1, -5, 0, 0.1, 0};
             type({s.txtT0, s.txtTn}, "-20|800");
             s.cmdPlotto->click();
         })},
        {"mean value, the secant and slider tangents", make<frmMVT>, on<frmMVT>([](frmMVT& s) {
             type({s.txtX1, s.txtX2}, "-3|2");
             s.cmdApplyMVT_Click();
             for (int v : {0, 7000, 20000})
                 s.HscMVT->setValue(v);
         })},
        {"animation, the continuous run", make<frmAnimate>,
         [](GraphScreen& s) { as<frmAnimate>(s).cmdAnimate_Click(); }},
    };
    for (const auto& [name, screen, act] : cases) {
        std::unique_ptr<GraphScreen> both[] = {screen(), screen()};
        both[1]->surface->setBatching(false);
        for (auto& s : both) {
            FuncGlobals::Coefficients = {};
            rt::resetRnd();
            s->Form_Activate();
            act(*s);
        }
        EXPECT_EQ(pictureOf(*both[0]), pictureOf(*both[1])) << name;
        for (auto& s : both)
            s->surface->setZoom(1.5);
        EXPECT_EQ(pictureOf(*both[0]), pictureOf(*both[1])) << name << ", redrawn at 1.5";
    }
    EXPECT_EQ(script.errors, (std::vector<int>{rt::Overflow, rt::Overflow}));  // one for each drawing
    rt::resetRnd();
}
