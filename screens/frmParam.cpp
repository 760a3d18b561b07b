// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmParam.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "graphwin/DrawingStyle.h"

#include <QMenu>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"

namespace {

GraphScreen::Config paramConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Parametric Equation graphing");
    c.surfaceWidth = 13920;
    c.coefficientCount = 6;
    c.coefficientDefaults = {"4", "3", "0", "3", "2", "0"};
    c.functionMenu = false;
    return c;
}

constexpr double kPanel = 11220, kPanelWidth = 2580, kInner = 2340;

// Cut to four decimals in single precision: Int(v * 10000) / 10000.
float cut4(float v) { return rt::CSng(rt::Int(rt::CSng(static_cast<double>(v) * 10000)) / 10000); }

}  // namespace

frmParam::frmParam() : GraphScreen(paramConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double I = kInner;
    // clang-format off
    form::buildForm(surface, {
        // name          kind           caption                  place                    handlers / look
        {FORM_NAME(lblXPar),       Kind::Stepper, "x = A*Sin(Bt) + C",     {60, 3180, 1860, 300},   {.MouseDown = on(&frmParam::lblXPar_MouseDown)}},
        {FORM_NAME(lblYPar),       Kind::Stepper, "y = D*Cos(Et) + F",     {60, 3540, 1860, 300},   {.MouseDown = on(&frmParam::lblYPar_MouseDown)}},
        {FORM_NAME(lblInstruct),   Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Select x && y functions and enter their constants."),
                                                                 {60, 3960, 2280, 600},   {}, {.wrap = true}},
        {FORM_NAME(cmdZout),       Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Zoom &Out"),             {buttonColumn(), 3000, 1680, 420}, {.Click = on(&frmParam::cmdZout_Click)}},
        {FORM_NAME(fraSetup),      Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Graphing Set up"),       {kPanel, 120, kPanelWidth, 2280}, {}, {}, {
            {FORM_NAME(lblT0),     Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Initial  t ="),          {120,   330, 1440, 300}, {.MouseDown = on(&frmParam::lblT0_MouseDown)}},
            {FORM_NAME(txtT0),     Kind::Box,     "0",                     {1620,  330, 840, 300},  {.Change = on(&frmParam::txtT0_Change)}},
            {FORM_NAME(lblFinalT), Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Final  t ="),            {120,   690, 1440, 300}, {.MouseDown = on(&frmParam::lblFinalT_MouseDown)}},
            {FORM_NAME(txtTn),     Kind::Box,     "6.3",                   {1620,  690, 840, 300},  {.Change = on(&frmParam::txtTn_Change)}},
            {FORM_NAME(lblTstep),  Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Number of Steps"),       {120,  1050, 1440, 300}, {.MouseDown = on(&frmParam::lblTstep_MouseDown)}},
            {FORM_NAME(txtTstep),  Kind::Box,     "1000",                  {1620, 1050, 840, 300},  {.Change = on(&frmParam::txtTstep_Change)}},
            {FORM_NAME(optCont),   Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Connected Points"),      {120,  1440, I, 300}},
            {FORM_NAME(optPoints), Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Separate Points"),       {120,  1800, I, 300},    {}, {.checked = true}},
        }},
        {FORM_NAME(fraTrace),      Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Trace"),                 {kPanel, 2520, kPanelWidth, 2400}, {}, {}, {
            {FORM_NAME(lbltTrace), Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Trace at t ="),          {120,   330, 1440, 300}, {.MouseDown = on(&frmParam::lbltTrace_MouseDown)}},
            {FORM_NAME(txtT),      Kind::Box,     "0",                     {1620,  330, 840, 300},  {.Change = on(&frmParam::txtT_Change)}},
            {FORM_NAME(lblXY),     Kind::Label,   "( ______ , _______ )",  {120,   720, I, 300}},
            {FORM_NAME(lblTslide), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "t - slider"),            {120,  1140, I, 300},    {}, {.align = Qt::AlignCenter}},
            {FORM_NAME(HscT),      Kind::HScroll, "",                      {120,  1470, I, 255},
                {.Change = on(&frmParam::HscT_Change), .Spoken = [this] { return QStringLiteral("t = ") + txtT->text(); }},
                {.bar = {.min = 0, .max = 1000, .small = 1, .large = 20}}},
            {FORM_NAME(lblTmin),   Kind::Label,   "0",                     {120,  1800, 1100, 300}},
            {FORM_NAME(lblTmax),   Kind::Label,   "6.3",                   {1360, 1800, 1100, 300}, {}, {.align = Qt::AlignRight | Qt::AlignTop}},
        }},
    });
    // clang-format on
    lblInstruct->setBuddy(lblXPar);  // so that "&&" shows as one ampersand

    xMenu_ = addMenu(Plotto::tr("Select &x Function"));
    mnuSelectX = xMenu_->menuAction();
    yMenu_ = addMenu(Plotto::tr("Select &y Function"));
    mnuSelectY = yMenu_->menuAction();
    startMenuArray(xMenu_, mnuXFunc);
    startMenuArray(yMenu_, mnuYFunc);
    Form_Load();
}

void frmParam::Form_Load()
{
    using namespace FuncGlobals;
    XtFuncId = 4;
    YtFuncId = 5;
    XFuncCount = ParametricFamilyCount;
    YFuncCount = ParametricFamilyCount;
    for (int i = 1; i <= ParametricFamilyCount; ++i) {
        XCaptions[i] = XtCaption(i);
        YCaptions[i] = YtCaption(i);
    }
    fillMenuArray(
        xMenu_, mnuXFunc, ParametricFamilyCount, [this](int i) { return QString::fromStdString(XCaptions[i]); },
        [this](int i) { mnuXFunc_Click(i); });
    fillMenuArray(
        yMenu_, mnuYFunc, ParametricFamilyCount, [this](int i) { return QString::fromStdString(YCaptions[i]); },
        [this](int i) { mnuYFunc_Click(i); });
}

void frmParam::mnuXFunc_Click(int Index)
{
    typedCurve_.reset();  // a family chosen from the menu replaces a typed curve
    installTyped();
    FuncGlobals::XtFuncId = rt::CInt(Index);
    lblXPar->setText(QString::fromStdString(XCaptions[FuncGlobals::XtFuncId]));
    shownCurve_[0] = FuncGlobals::XtFuncId;
}

void frmParam::mnuYFunc_Click(int Index)
{
    typedCurve_.reset();
    installTyped();
    FuncGlobals::YtFuncId = rt::CInt(Index);
    lblYPar->setText(QString::fromStdString(YCaptions[FuncGlobals::YtFuncId]));
    shownCurve_[1] = FuncGlobals::YtFuncId;
}

void frmParam::lblXPar_MouseDown(int, int, double, double)
{
    mnuXFunc_Click(rt::Mod(FuncGlobals::XtFuncId, XFuncCount) + 1);
}

void frmParam::lblYPar_MouseDown(int, int, double, double)
{
    mnuYFunc_Click(rt::Mod(FuncGlobals::YtFuncId, YFuncCount) + 1);
}

void frmParam::lblT0_MouseDown(int Button, int, double, double) { stepBox(txtT0, Button); }
void frmParam::lblFinalT_MouseDown(int Button, int, double, double) { stepBox(txtTn, Button); }
void frmParam::lblTstep_MouseDown(int Button, int, double, double) { stepBox(txtTstep, Button); }
void frmParam::lbltTrace_MouseDown(int Button, int, double, double) { stepBox(txtT, Button); }

void frmParam::txtT0_Change() { lblTmin->setText(txtT0->text()); }
void frmParam::txtTn_Change() { lblTmax->setText(txtTn->text()); }

void frmParam::txtTstep_Change()
{
    if (txtTstep->value() > 32000) {
        MsgBox(Plotto::tr("The maximum number of steps is 32000"), Plotto::tr("Exceeded Maximum"));
        txtTstep->assign(QStringLiteral("32000"));
    }
    const double steps = txtTstep->value();
    HscT->setMax(rt::CInt(steps));
    if (steps > 49)
        HscT->setPageStep(rt::CInt(rt::Int(steps / 50)));
    else if (steps > 0)
        HscT->setPageStep(rt::CInt(steps));
}

void frmParam::HscT_Change()
{
    const float span = rt::CSng(txtTn->value() - txtT0->value());
    const float perStep = rt::CSng(rt::Div(span, HscT->Max()));
    const float along = rt::CSng(static_cast<double>(perStep) * HscT->value());
    const double t = rt::Int(rt::Chk(rt::Chk(along + txtT0->value()) * 10000)) / 10000;
    txtT->assign(rt::CStr(t));
}

void frmParam::txtT_Change()
{
    using namespace FuncGlobals;
    const float t = rt::CSng(txtT->value());
    if (typedCurve_) {
        const double tx = CurveX(t), ty = CurveY(t);
        if (std::isnan(tx) || std::isnan(ty) || std::fabs(tx) > 3e38 || std::fabs(ty) > 3e38) {
            lblXY->setText(Plotto::tr("(undefined at t = %1)").arg(shownTrimStr(t)));
            return;
        }
    }
    const float x = rt::CSng(CurveX(t)), y = rt::CSng(CurveY(t));
    lblXY->setText(QStringLiteral("(") + shownStr(cut4(x)) + QStringLiteral(",") + shownStr(cut4(y)) +
                   QStringLiteral(")"));
    // The traced point is a kept step: a new window marks it again at its place there.
    keepDrawing(
        Plotto::tr("the point at t = %1").arg(shownTrimStr(t)),
        [this, x, y] {
            const double column = graph.column(x), row = graph.row(y);
            if (!inside(column, row))
                return;
            DrawWidthScope marked(*surface, DrawingStyle::kMarkWidth);
            surface->PSet(column, row, rgbColor(rt::QBColor(rt::Mod(FuncGlobals::XtFuncId + 2, 7))));
        },
        typedCurve_);
}

frmParam::~frmParam()
{
    if (typedCurve_ && FuncGlobals::TypedParametric == typedCurve_.get())
        FuncGlobals::TypedParametric = nullptr;
}

std::vector<GraphScreen::FunctionPart> frmParam::functionParts()
{
    return {{"x",
             "xTyped",
             FuncGlobals::ParametricFamilyCount,
             {"t"},
             shownCurve_[0],
             [this](int i) { mnuXFunc_Click(i); }},
            {"y", "yTyped", FuncGlobals::ParametricFamilyCount, {"t"}, shownCurve_[1], [this](int i) {
                 mnuYFunc_Click(i);
             }}};
}

QStringList frmParam::typedTexts() const
{
    if (!typedCurve_)
        return {};
    return {QString::fromStdString(typedCurve_->x->text()), QString::fromStdString(typedCurve_->y->text())};
}

void frmParam::installTyped() { FuncGlobals::TypedParametric = typedCurve_.get(); }

QString frmParam::setTypedCurve(const QString& xt, const QString& yt)
{
    std::string error;
    auto made = FuncGlobals::TypedCurve::make(xt.toStdString(), yt.toStdString(), error);
    if (!made)
        return i18n::words(error);
    typedCurve_ = std::move(made);
    installTyped();
    lblXPar->setText(QStringLiteral("x = ") + xt.trimmed());
    lblYPar->setText(QStringLiteral("y = ") + yt.trimmed());
    rememberTyped(QStringLiteral("x = %1, y = %2").arg(xt.trimmed(), yt.trimmed()),
                  [this, xt, yt] { setTypedCurve(xt, yt); });
    return QString();
}

void frmParam::mnuTypeFunction_Click()
{
    TypedEntryLayout entry;
    entry.title = Plotto::tr("Type a parametric curve");
    entry.fields = {QStringLiteral("x(t) ="), QStringLiteral("y(t) =")};
    entry.initial = {typedCurve_ ? QString::fromStdString(typedCurve_->x->text()) : QString(),
                     typedCurve_ ? QString::fromStdString(typedCurve_->y->text()) : QString()};
    entry.examples = {{QStringLiteral("t - sin(t)"), QStringLiteral("1 - cos(t)")},
                      {QStringLiteral("A*cos(t)"), QStringLiteral("B*sin(t)")},
                      {QStringLiteral("cos(3*t)*cos(t)"), QStringLiteral("cos(3*t)*sin(t)")},
                      {QStringLiteral("t^2 - 1"), QStringLiteral("t^3 - t")},
                      {QStringLiteral("exp(t/10)*cos(t)"), QStringLiteral("exp(t/10)*sin(t)")}};
    entry.names = typedNamesHelp(QStringLiteral("t"), Plotto::tr("A to F"));
    entry.check = [](const QStringList& texts, QString& preview) {
        std::string error;
        const auto curve =
            FuncGlobals::TypedCurve::make(texts.value(0).toStdString(), texts.value(1).toStdString(), error);
        if (!curve)
            return i18n::words(error);
        preview =
            Plotto::tr("Understood: x = %1,  y = %2")
                .arg(QString::fromStdString(curve->x->understood()), QString::fromStdString(curve->y->understood()));
        return QString();
    };
    runTypedEntry(entry, [this](const QStringList& texts) { return setTypedCurve(texts.value(0), texts.value(1)); });
}

void frmParam::cmdZout_Click()
{
    using rt::Chk;
    const double w = Chk(txtXmax->value() - txtXmin->value()), h = Chk(txtYmax->value() - txtYmin->value());
    txtXmin->assign(rt::Str(Chk(txtXmin->value() - w / 2)));
    txtXmax->assign(rt::Str(Chk(txtXmax->value() + w / 2)));
    txtYmin->assign(rt::Str(Chk(txtYmin->value() - h / 2)));
    txtYmax->assign(rt::Str(Chk(txtYmax->value() + h / 2)));
    CleanGraph();
    cmdPlotto_Click();
}

void frmParam::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP("Plotto", "This screen allows you to graph parametric equations by defining the function "
                                     "for the x value and another "
                                     "equation for the y value.  The x and y values are functions of the variable t.")},
        {QT_TRANSLATE_NOOP("Plotto", "How do I graph things?"),
         QT_TRANSLATE_NOOP("Plotto", "After selecting the functions by using the pull down menus for the x and y "
                                     "functions, enter the values you "
                                     "want for A...F.  You may click [Plotto!] to see what it looks like.")},
        {QT_TRANSLATE_NOOP("Plotto", "Graph Set Up"),
         QT_TRANSLATE_NOOP("Plotto", "Graphing Set Up at the right allows you to change the range of t, the number of "
                                     "steps used, and whether you "
                                     "want the points connected or not.  The initial set up is for a trig function and "
                                     "1000 steps.  You may use "
                                     "any range and up to 32000 steps")},
        {QT_TRANSLATE_NOOP("Plotto", "Trace?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Trace allows you to look at the point produced by any particular t value.  You may click in the box to "
             "change the value. As soon as you do you will see the (x,y) value below and the point appear on the "
             "graph.  "
             "You may also use the slider at the bottom to scroll to different values or even click on the slide or "
             "arrows to move the trace point on the graph.  THe slider does not show the t= value or change the box "
             "above "
             "it.")},
        {QT_TRANSLATE_NOOP("Plotto", "Left or Right clicks"),
         QT_TRANSLATE_NOOP("Plotto", "You may left click of right click on the labels for the entry boxes to raise of "
                                     "lower their values by 1.")},
        {QT_TRANSLATE_NOOP("Plotto", "Change the size of the window?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "The buttons below [Plotto!] are what they say.  Zoom in will reduce the size by a factor of 2.  Zoom Out "
             "will "
             "enlarge the size by a factor of 2.  You may change the window size by clicking on any of the boxes "
             "showing "
             "teh ranges for x and y.")},
    });
}

void frmParam::describeResults(QStringList& lines) const
{
    const auto& k = FuncGlobals::Coefficients;
    lines << Plotto::tr("Parametric curve %1, %2 with A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.")
                 .arg(lblXPar->text(), lblYPar->text(), shownTrimStr(k.A), shownTrimStr(k.B), shownTrimStr(k.C),
                      shownTrimStr(k.D), shownTrimStr(k.E), shownTrimStr(k.F));
    lines << Plotto::tr("t from %1 to %2 in steps of %3, %4.")
                 .arg(txtT0->text(), txtTn->text(), txtTstep->text(),
                      optCont->isChecked() ? Plotto::tr("connected points") : Plotto::tr("separate points"));
    lines << Plotto::tr("Trace at t = %1: %2.").arg(txtT->text(), lblXY->text());
}

std::vector<GraphScreen::DragHandle> frmParam::dragHandles()
{
    const std::optional<double> t = txtT->number();
    if (!t)
        return {};
    double x = 0, y = 0;
    try {
        x = FuncGlobals::CurveX(static_cast<float>(*t));
        y = FuncGlobals::CurveY(static_cast<float>(*t));
    } catch (const rt::RuntimeError&) {
        return {};
    }
    if (!std::isfinite(x) || !std::isfinite(y))
        return {};
    return {{Plotto::tr("the traced point"), x, y, false, [this](double toX, double toY) { dragTrace(toX, toY); }}};
}

void frmParam::dragTrace(double toX, double toY)
{
    // The t of the curve's point nearest the pointer, among the plot's steps, to four decimals as the
    // slider gives it; where the curve passes near itself, the one nearest the t shown now, so that
    // the point follows the pointer along the branch it is on. The box takes it and marks the point
    // as typing it does.
    const std::optional<double> t0 = txtT0->number(), tn = txtTn->number(), steps = txtTstep->number();
    const std::optional<double> now = txtT->number();
    if (!t0 || !tn || !steps || !(*steps >= 1) || *steps > 32000)
        return;
    const int n = static_cast<int>(*steps);
    std::vector<std::pair<double, double>> candidates;  // (t, squared distance in twips)
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= n; ++i) {
        const float t = static_cast<float>(*t0 + (*tn - *t0) * i / n);
        try {
            const double dx = graph.plainColumn(FuncGlobals::CurveX(t)) - graph.plainColumn(toX),
                         dy = graph.plainRow(FuncGlobals::CurveY(t)) - graph.plainRow(toY);
            const double d = dx * dx + dy * dy;
            if (std::isfinite(d)) {
                candidates.emplace_back(t, d);
                best = std::min(best, d);
            }
        } catch (const rt::RuntimeError&) { }
    }
    if (candidates.empty())
        return;
    const double near = std::pow(std::sqrt(best) + 4 * twipsPerPixel(surface), 2);
    // Each branch's nearest point is a local minimum of the distance along t.
    double chosen = candidates.front().first, gap = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const auto [t, d] = candidates[i];
        const bool least =
            (i == 0 || d <= candidates[i - 1].second) && (i + 1 == candidates.size() || d <= candidates[i + 1].second);
        if (least && d <= near && std::fabs(t - now.value_or(t)) < gap) {
            gap = std::fabs(t - now.value_or(t));
            chosen = t;
        }
    }
    runForDrag([&] { txtT->assign(rt::CStr(std::floor(chosen * 10000 + 0.5) / 10000)); });
}
