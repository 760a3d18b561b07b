// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ScreenRegistry.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <QStringList>

#include "funclib/FuncGlobals.h"
#include "graphwin/Language.h"
#include "screens/frmAnimate.h"
#include "screens/frmArea.h"
#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmLimits.h"
#include "screens/frmMVT.h"
#include "screens/frmNewton.h"
#include "screens/frmParam.h"
#include "screens/frmRiemann.h"
#include "screens/frmTangent.h"
#include "screens/frmTaylor.h"

namespace screens {

namespace {

template <class Screen>
std::unique_ptr<GraphScreen> make()
{
    return std::make_unique<Screen>();
}

template <class Screen>
Screen& as(GraphScreen& s)
{
    return static_cast<Screen&>(s);
}

QString typeCubic(GraphScreen& s) { return s.setTypedFunction(QStringLiteral("x^3 - 2*x - 5")); }

void set(std::initializer_list<std::pair<QLineEdit*, const char*>> boxes)
{
    for (const auto& [box, text] : boxes)
        box->setText(QString::fromLatin1(text));
}

// What each screen shows in its picture.
void showGrapher(GraphScreen& g)
{
    // Three parabolas and a sine curve.
    auto& s = as<frmClasses>(g);
    s.Form_Activate();
    s.mnuFunc_Click(2);
    for (const char* a : {"1", "0.25", "-0.5"}) {
        set({{s.txtA, a}, {s.txtC, "-4"}});
        s.cmdPlotto_Click();
    }
    s.mnuFunc_Click(5);
    set({{s.txtA, "3"}, {s.txtC, "0"}});
    s.cmdPlotto_Click();
}

void showAnimation(GraphScreen& g)
{
    // A of the parabola from -2 to 2 in 41 steps.
    auto& s = as<frmAnimate>(g);
    s.Form_Activate();
    s.mnuFunc_Click(2);
    set({{s.txtB, "0"}});
    s.cmdAnimate_Click();
}

void showSums(GraphScreen& g)
{
    // y = x^2 on [-2, 2] with eight partitions and every method ticked.
    auto& s = as<frmRiemann>(g);
    s.Form_Activate();
    set({{s.txtParts, "8"}});
    for (CheckBox* c : {s.chkLeft, s.chkRight, s.chkMid, s.chkTrap, s.chkRandom, s.chkSimpson, s.chkRiemann})
        c->setChecked(true);
    s.cmdGraphNow_Click();
    s.cmdParts_Click();
}

void showNewton(GraphScreen& g)
{
    // y = x^2 - 4 from 1, three steps, with the derivative.
    auto& s = as<frmNewton>(g);
    s.Form_Activate();
    s.mnuFunc_Click(2);
    set({{s.txtB, "0"}, {s.txtC, "-4"}});
    s.cmdPlotto_Click();
    set({{s.txtGuess, "1"}});
    for (int i = 0; i < 3; ++i)
        s.cmdApply_Click();
    s.cmdDeriv_Click();
}

void showSlopeField(GraphScreen& g)
{
    // The circle field dy/dx = -x/y with its forty curves.
    auto& s = as<frmFlowField>(g);
    s.Form_Activate();
    s.cmdShowFlow_Click();
    s.cmdPlotto_Click();
}

void showTangent(GraphScreen& g)
{
    // Secants of y = x^2 at 1 closing in on the tangent.
    auto& s = as<frmTangent>(g);
    s.Form_Activate();
    set({{s.txtB, "1"}});
    s.cmdPlotto_Click();
    for (int v : {2000, 1500, 1250, 1100})
        s.hscDx->setValue(v);
}

void showMVT(GraphScreen& g)
{
    // y = x^2 on [0, 2]: c = 1.
    auto& s = as<frmMVT>(g);
    s.Form_Activate();
    s.cmdPlotto_Click();
    set({{s.txtX1, "0"}, {s.txtX2, "2"}});
    s.cmdApplyMVT_Click();
    s.HscMVT->setValue(5000);
    s.cmdAnimateIt_Click();
}

void showParametric(GraphScreen& g)
{
    // x = 4 sin 3t, y = 3 cos 2t as points, traced at t = 1.
    auto& s = as<frmParam>(g);
    s.Form_Activate();
    s.cmdPlotto_Click();
    s.HscT->setValue(160);
}

void showTaylor(GraphScreen& g)
{
    // sin x about 0 to degree 7, against the tolerance 0.1, with the Lagrange bound at x = 2.
    auto& s = as<frmTaylor>(g);
    s.Form_Activate();
    s.mnuFunc_Click(5);
    set({{s.txtA, "1"}, {s.txtB, "1"}, {s.txtC, "0"}, {s.txtD, "0"}, {s.txtE, "0"}, {s.txtAtX, "2"}});
    s.chkLagrange->setChecked(true);
    for (int n = 0; n <= 7; ++n)
        s.cmdAddTerm_Click();
}

void showLimits(GraphScreen& g)
{
    // x^2 at 2 with L = 4: epsilon 2, then halved twice; the table lists the three.
    auto& s = as<frmLimits>(g);
    s.Form_Activate();
    s.mnuFunc_Click(1);
    set({{s.txtA, "1"}, {s.txtB, "1"}, {s.txtC, "0"}, {s.txtD, "0"}});
    set({{s.txtXmin, "-1"}, {s.txtXmax, "5"}, {s.txtYmin, "-1"}, {s.txtYmax, "8"}});
    set({{s.txtPoint, "2"}, {s.txtLimit, "4"}, {s.txtEpsilon, "2"}});
    s.cmdFindDelta_Click();
    s.cmdHalve_Click();
    s.cmdHalve_Click();
}

void showArea(GraphScreen& g)
{
    // y = x^2 against g(x) = x + 2 on [-2, 3] in a window about it: crossings at -1 and 2, both colours of
    // shading.
    auto& s = as<frmArea>(g);
    s.Form_Activate();
    s.mnuFunc_Click(1);
    set({{s.txtA, "1"}, {s.txtB, "1"}, {s.txtC, "0"}, {s.txtD, "0"}, {s.txtG, "x + 2"}});
    set({{s.txtLeft, "-2"}, {s.txtRight, "3"}, {s.txtStrips, "8"}});
    set({{s.txtXmin, "-3"}, {s.txtXmax, "4"}, {s.txtYmin, "-2"}, {s.txtYmax, "10"}});
    s.cmdCrossings_Click();
}

const Entry kScreens[] = {
    // key          class           place  button                          Selections entry
    {"sums", "frmRiemann", 2, QT_TRANSLATE_NOOP("Plotto", "&Riemann Sums + Others"),
     QT_TRANSLATE_NOOP("Plotto", "&Riemann Sums +"), QT_TRANSLATE_NOOP("Plotto", "Riemann and other sums"),
     make<frmRiemann>, typeCubic, showSums, [](GraphScreen& s) { return as<frmRiemann>(s).convergence; }},
    {"grapher", "frmClasses", 0, QT_TRANSLATE_NOOP("Plotto", "Graph Classes of &Functions"),
     QT_TRANSLATE_NOOP("Plotto", "&Function Grapher"),
     QT_TRANSLATE_NOOP("Plotto", "graphing {families} families of functions"), make<frmClasses>, typeCubic,
     showGrapher},
    {"animation", "frmAnimate", 1, QT_TRANSLATE_NOOP("Plotto", "&Animate Graphs"),
     QT_TRANSLATE_NOOP("Plotto", "&Animate Functions"), QT_TRANSLATE_NOOP("Plotto", "animating their coefficients"),
     make<frmAnimate>, typeCubic, showAnimation},
    {"slope-field", "frmFlowField", 4, QT_TRANSLATE_NOOP("Plotto", "&Slope Fields"),
     QT_TRANSLATE_NOOP("Plotto", "&Slope Fields"),
     QT_TRANSLATE_NOOP("Plotto", "slope fields with integral curves and Euler and Runge-Kutta approximations"),
     make<frmFlowField>,
     [](GraphScreen& s) { return as<frmFlowField>(s).setTypedRates(QStringLiteral("x - y^2"), QString()); },
     showSlopeField, [](GraphScreen& s) { return as<frmFlowField>(s).convergence; }},
    {"newton", "frmNewton", 3, QT_TRANSLATE_NOOP("Plotto", "&Newton's Method"),
     QT_TRANSLATE_NOOP("Plotto", "&Newton's Method"), QT_TRANSLATE_NOOP("Plotto", "Newton's method"), make<frmNewton>,
     typeCubic, showNewton},
    {"tangent", "frmTangent", 5, QT_TRANSLATE_NOOP("Plotto", "&Tangent Line Problem"),
     QT_TRANSLATE_NOOP("Plotto", "&Tangent Problem"),
     QT_TRANSLATE_NOOP("Plotto", "secant lines converging to the tangent"), make<frmTangent>, typeCubic, showTangent},
    {"mvt", "frmMVT", 6, QT_TRANSLATE_NOOP("Plotto", "The &Mean Value Theorem"),
     QT_TRANSLATE_NOOP("Plotto", "&Mean Value Theorem"), QT_TRANSLATE_NOOP("Plotto", "the mean value theorem"),
     make<frmMVT>, typeCubic, showMVT},
    {"parametric", "frmParam", 7, QT_TRANSLATE_NOOP("Plotto", "&Parametric Graphing"),
     QT_TRANSLATE_NOOP("Plotto", "&Parametric Graphs"), QT_TRANSLATE_NOOP("Plotto", "parametric curves"),
     make<frmParam>,
     [](GraphScreen& s) {
         return as<frmParam>(s).setTypedCurve(QStringLiteral("t - sin(t)"), QStringLiteral("1 - cos(t)"));
     },
     showParametric},
    // An addition: opened from the launcher's More Demonstrations menu, with no button.
    {"taylor",
     "frmTaylor",
     8,
     QT_TRANSLATE_NOOP("Plotto", "Taylor Polynomials"),
     QT_TRANSLATE_NOOP("Plotto", "&Taylor Polynomials"),
     QT_TRANSLATE_NOOP("Plotto", "Taylor polynomials term by term"),
     make<frmTaylor>,
     [](GraphScreen& s) { return s.setTypedFunction(QStringLiteral("ln(1 + x)")); },
     showTaylor,
     {},
     Entry::Kind::Addition},
    {"area", "frmArea", 9, QT_TRANSLATE_NOOP("Plotto", "Area Between Two Curves"),
     QT_TRANSLATE_NOOP("Plotto", "&Area Between Curves"), QT_TRANSLATE_NOOP("Plotto", "the area between two curves"),
     make<frmArea>, [](GraphScreen& s) { return s.setTypedFunction(QStringLiteral("sqrt(x)")); }, showArea,
     [](GraphScreen& s) { return as<frmArea>(s).convergence; }, Entry::Kind::Addition},
    {"limits",
     "frmLimits",
     10,
     QT_TRANSLATE_NOOP("Plotto", "Limits by Epsilon and Delta"),
     QT_TRANSLATE_NOOP("Plotto", "&Limits by Epsilon and Delta"),
     QT_TRANSLATE_NOOP("Plotto", "limits by epsilon and delta"),
     make<frmLimits>,
     [](GraphScreen& s) { return s.setTypedFunction(QStringLiteral("sin(x)/x")); },
     showLimits,
     {},
     Entry::Kind::Addition},
};

}  // namespace

std::span<const Entry> all() { return kScreens; }

const Entry* find(const QString& key)
{
    for (const Entry& e : kScreens)
        if (key == QLatin1String(e.key))
            return &e;
    return nullptr;
}

const Entry* of(const GraphScreen& screen)
{
    for (const Entry& e : kScreens)
        if (qstrcmp(screen.metaObject()->className(), e.className) == 0)
            return &e;
    return nullptr;
}

QString countInWords(int n)
{
    static const char* const kWords[] = {"no",       "one",      "two",      "three",   "four",    "five",
                                         "six",      "seven",    "eight",    "nine",    "ten",     "eleven",
                                         "twelve",   "thirteen", "fourteen", "fifteen", "sixteen", "seventeen",
                                         "eighteen", "nineteen", "twenty"};
    return n >= 0 && n < static_cast<int>(std::size(kWords)) ? QString::fromLatin1(kWords[n]) : QString::number(n);
}

std::vector<const Entry*> inTeachingOrder()
{
    std::vector<const Entry*> taught;
    for (const Entry& e : kScreens)
        taught.push_back(&e);
    std::stable_sort(taught.begin(), taught.end(), [](const Entry* a, const Entry* b) { return a->place < b->place; });
    return taught;
}

QString summary()
{
    // English counts in words; another language in figures (its catalogue has no number words).
    const auto count = [](int n) {
        return i18n::current() == QLatin1String("en") ? countInWords(n) : QString::number(n);
    };
    QStringList phrases;
    for (const Entry* e : inTeachingOrder())
        phrases
            << Plotto::tr(e->describes).replace(QStringLiteral("{families}"), count(FuncGlobals::ExplicitFamilyCount));
    //: the last of a list of screens ("..., Newton's method and Taylor polynomials")
    if (phrases.size() > 1)
        phrases.back() = Plotto::tr("and %1").arg(phrases.back());
    return Plotto::tr("A launcher opens %1 demonstration screens: %2.")
        .arg(count(static_cast<int>(phrases.size())), phrases.join(QStringLiteral(", ")));
}

}  // namespace screens
