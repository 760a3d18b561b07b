// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmFlowField.h"

#include <algorithm>
#include <cmath>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"

namespace {

QString noStart() { return Plotto::tr("Start( _____, _____ )"); }

// Writes a number into a box by the plain conversion.
void write(TextBox* box, double v) { box->assign(rt::CStr(v)); }

}  // namespace

void frmFlowField::Form_Load()
{
    using namespace FuncGlobals;
    DxFuncId = 1;
    DyFuncId = 1;
    FamilyCount = RateFamilyCount;
    Coefficients = {1, 0, 0, 1, 0, 0};
    for (int i = 1; i <= RateFamilyCount; ++i) {
        DyCaptions[i] = DyCaption(i);
        DxCaptions[i] = DxCaption(i);
    }
    fillMenuArray(
        dyMenu_, mnuDy, RateFamilyCount, [this](int i) { return QString::fromStdString(DyCaptions[i]); },
        [this](int i) { mnuDy_Click(i); });
    fillMenuArray(
        dxMenu_, mnuDx, RateFamilyCount, [this](int i) { return QString::fromStdString(DxCaptions[i]); },
        [this](int i) { mnuDx_Click(i); });
}

void frmFlowField::Form_Activate()
{
    copyCoefficients();
    installTyped();
    CleanGraph();
    MethodColour = 5;
}

void frmFlowField::CleanGraph()
{
    GraphScreen::CleanGraph();
    ShowDyDx();
}

void frmFlowField::coefficientChanged(int) { ShowDyDx(); }

void frmFlowField::ShowDyDx()
{
    const QRectF r = twipsOf(shpDyDx);
    const double left = r.x(), top = r.y();
    surface->clearArea(left + 15, top + 15, r.width() - 30, r.height() - 30);
    surface->setFontSize(8);
    const QRgb ink = surface->ForeColor;
    const double lineHeight = surface->TextHeight(QStringLiteral("d"));
    const double x0 = left + 90, y0 = top + 90;

    surface->setFontUnderline(true);
    surface->CurrentX = x0;
    surface->CurrentY = y0;
    surface->Print(QStringLiteral("dy "));
    surface->setFontUnderline(false);
    surface->CurrentX = x0;
    surface->CurrentY = y0 + lineHeight;
    surface->Print(QStringLiteral("dx"));
    const double equals = x0 + surface->TextWidth(QStringLiteral("dy  "));
    surface->CurrentX = equals;
    surface->CurrentY = y0 + lineHeight / 2;
    surface->Print(QStringLiteral("="), false);

    using namespace FuncGlobals;
    const auto& k = Coefficients;
    const std::string dyCaption = DyCaption(DyFuncId), dxCaption = DxCaption(DxFuncId);
    const std::string dy =
        typedRates_
            ? typedRates_->dy->text()
            : FormulaWithCoefficients(std::string_view(dyCaption).substr(std::min<std::size_t>(5, dyCaption.size())),
                                      "ABC", {k.A, k.B, k.C});
    const std::string dx =
        typedRates_
            ? typedRates_->dx->text()
            : FormulaWithCoefficients(std::string_view(dxCaption).substr(std::min<std::size_t>(5, dxCaption.size())),
                                      "DEF", {k.D, k.E, k.F});
    const double formula = equals + surface->TextWidth(QStringLiteral("= "));
    surface->setFontUnderline(true);
    surface->CurrentX = formula;
    surface->CurrentY = y0;
    surface->Print(QString::fromStdString(dy));
    surface->setFontUnderline(false);
    surface->CurrentX = formula;
    surface->CurrentY = y0 + lineHeight;
    surface->Print(QString::fromStdString(dx));
    surface->ForeColor = ink;
    settleDrawing();  // the formula is drawn again by every clear, a zoom's included
}

void frmFlowField::mnuDy_Click(int Index)
{
    using namespace FuncGlobals;
    typedRates_.reset();  // a family chosen from the menu replaces typed rates
    installTyped();
    DyFuncId = rt::CInt(Index);
    lbldx->setText(QString::fromStdString(DxCaptions[DxFuncId]));
    lbldy->setText(QString::fromStdString(DyCaptions[DyFuncId]));
    shownRates_ = {DyFuncId, DxFuncId};
    ShowDyDx();
}

void frmFlowField::mnuDx_Click(int Index)
{
    using namespace FuncGlobals;
    typedRates_.reset();
    installTyped();
    DxFuncId = rt::CInt(Index);
    lbldx->setText(QString::fromStdString(DxCaptions[DxFuncId]));
    lbldy->setText(QString::fromStdString(DyCaptions[DyFuncId]));
    shownRates_ = {DyFuncId, DxFuncId};
    ShowDyDx();
}

void frmFlowField::lbldy_MouseDown(int Button, int, double, double)
{
    using namespace FuncGlobals;
    if (!stepFamily(DyFuncId, Button, FamilyCount))
        return;
    if (DyFuncId == 0)
        DyFuncId = RateFamilyCount;
    mnuDy_Click(DyFuncId);
}

void frmFlowField::lbldx_MouseDown(int Button, int, double, double)
{
    using namespace FuncGlobals;
    if (!stepFamily(DxFuncId, Button, FamilyCount))
        return;
    if (DyFuncId == 0)  // the dy number, deliberately: dx can be left at 0
        DxFuncId = RateFamilyCount;
    mnuDx_Click(DxFuncId);
}

void frmFlowField::lblplots_MouseDown(int Button, int, double, double) { stepBox(txtCurvePoints, Button); }
void frmFlowField::lblHorShift_MouseDown(int Button, int, double, double) { stepBox(txtHorShift, Button); }
void frmFlowField::lblVerShift_MouseDown(int Button, int, double, double) { stepBox(txtVerShift, Button); }

void frmFlowField::lblDeltaX_MouseDown(int Button, int, double, double)
{
    if (Button == LeftButton)
        write(txtDelta, txtDelta->value() / 2);
    else if (Button == RightButton)
        write(txtDelta, rt::Chk(txtDelta->value() * 2));
}

frmFlowField::~frmFlowField()
{
    if (typedRates_ && FuncGlobals::TypedRate == typedRates_.get())
        FuncGlobals::TypedRate = nullptr;
}

std::vector<GraphScreen::FunctionPart> frmFlowField::functionParts()
{
    return {
        {"dy", "dyTyped", FuncGlobals::RateFamilyCount, {"x", "y"}, shownRates_[0], [this](int i) { mnuDy_Click(i); }},
        {"dx", "dxTyped", FuncGlobals::RateFamilyCount, {"x", "y"}, shownRates_[1], [this](int i) { mnuDx_Click(i); }}};
}

QStringList frmFlowField::typedTexts() const
{
    if (!typedRates_)
        return {};
    return {QString::fromStdString(typedRates_->dy->text()), QString::fromStdString(typedRates_->dx->text())};
}

void frmFlowField::installTyped() { FuncGlobals::TypedRate = typedRates_.get(); }

QString frmFlowField::setTypedRates(const QString& dy, const QString& dx)
{
    const QString dxText = dx.trimmed().isEmpty() ? QStringLiteral("1") : dx.trimmed();
    std::string error;
    auto made = FuncGlobals::TypedRates::make(dy.toStdString(), dxText.toStdString(), error);
    if (!made)
        return i18n::words(error);
    typedRates_ = std::move(made);
    installTyped();
    lbldy->setText(QStringLiteral("dy = ") + dy.trimmed());
    lbldx->setText(QStringLiteral("dx = ") + dxText);
    ShowDyDx();
    rememberTyped(QStringLiteral("dy = %1, dx = %2").arg(dy.trimmed(), dxText),
                  [this, dy, dxText] { setTypedRates(dy, dxText); });
    return QString();
}

void frmFlowField::mnuTypeFunction_Click()
{
    TypedEntryLayout entry;
    entry.title = Plotto::tr("Type the rates dy and dx");
    entry.fields = {QStringLiteral("dy ="), QStringLiteral("dx =")};
    entry.initial = {typedRates_ ? QString::fromStdString(typedRates_->dy->text()) : QString(),
                     typedRates_ ? QString::fromStdString(typedRates_->dx->text()) : QStringLiteral("1")};
    entry.examples = {{QStringLiteral("x - y^2"), QStringLiteral("1")},
                      {QStringLiteral("-x"), QStringLiteral("y")},
                      {QStringLiteral("A*y*(1 - y/B)"), QStringLiteral("1")},
                      {QStringLiteral("sin(x*y)"), QStringLiteral("1")},
                      {QStringLiteral("x + y"), QStringLiteral("x - y")}};
    entry.names = typedNamesHelp(Plotto::tr("x and y"), Plotto::tr("A to F")) +
                  Plotto::tr(" With dx = 1 the field is the slope field of dy/dx = dy.");
    entry.check = [](const QStringList& texts, QString& preview) {
        std::string error;
        const QString dx = texts.value(1).trimmed().isEmpty() ? QStringLiteral("1") : texts.value(1);
        const auto rates = FuncGlobals::TypedRates::make(texts.value(0).toStdString(), dx.toStdString(), error);
        if (!rates)
            return i18n::words(error);
        preview =
            Plotto::tr("Understood: dy = %1,  dx = %2")
                .arg(QString::fromStdString(rates->dy->understood()), QString::fromStdString(rates->dx->understood()));
        return QString();
    };
    runTypedEntry(entry, [this](const QStringList& texts) { return setTypedRates(texts.value(0), texts.value(1)); });
}

void frmFlowField::Form_MouseMove(int, int, double X, double Y)
{
    using rt::Chk;
    if (!insideGraph(X, Y)) {
        lblPos->setText(noStart());
        return;
    }
    const double W = Chk(txtXmax->value() - txtXmin->value()), H = Chk(txtYmax->value() - txtYmin->value());
    CurrentX = rt::Int(Chk(Chk(X - graph.XOrigin) * W) / 64) / 100;
    CurrentY = rt::Int(Chk(Chk(graph.YOrigin - Y) * H) / 64) / 100;
    lblPos->setText(Plotto::tr("Start( %1 , %2 ) ").arg(shownTrimStr(CurrentX), shownTrimStr(CurrentY)));
}

void frmFlowField::lblPos_Click()
{
    double x =
        rt::Val(InputBox(Plotto::tr("Enter x coordinate:"), QStringLiteral("X ="), QStringLiteral("3"), 4000, 4000)
                    .toStdString());
    double y =
        rt::Val(InputBox(Plotto::tr("Enter y coordinate:"), QStringLiteral("Y ="), QStringLiteral("4"), 4000, 4000)
                    .toStdString());
    lblPos->setText(Plotto::tr("Start( %1 , %2 ) ").arg(shownTrimStr(x), shownTrimStr(y)));
    PointCounter = 0;
    FollowCurveForward(x, y);
}

void frmFlowField::cmdPlotto_Click()
{
    using rt::Chk;
    MethodColour = checkedMethod().colour;
    const double W = Chk(txtXmax->value() - txtXmin->value());
    const float sx = rt::CSng(rt::Div(Chk(txtHorShift->value() * GraphWindow::Side), W));
    const float sy = rt::CSng(rt::Div(Chk(-txtVerShift->value() * GraphWindow::Side), W));
    auto press = [&](double X, double Y) {
        const double px = rt::CSng(X), py = rt::CSng(Y);
        Form_MouseDown(LeftButton, 1, px, py);
        if (chkBiDirect->isChecked())
            Form_MouseDown(RightButton, 1, px, py);
    };
    // Curves from every 320 twips along each axis.
    for (int X0 = graph.firstColumn(); X0 < graph.right(); X0 += 320)
        press(X0 + static_cast<double>(sx), graph.YOrigin + static_cast<double>(sy));
    for (int Y0 = GraphWindow::Top + 1; Y0 <= GraphWindow::Bottom - 1; Y0 += 320)
        press(graph.XOrigin + static_cast<double>(sx), Y0 + static_cast<double>(sy));
}

void frmFlowField::cmdSetDefault_Click()
{
    writeDefaultLimits();
    txtDelta->assign(QStringLiteral("0.1"));
    CleanGraph();
    cmdPlotto_Click();
}

void frmFlowField::cmdZoomIn_Click()
{
    write(txtDelta, txtDelta->value() / 2);
    zoomLimits();
    CleanGraph();
    cmdPlotto_Click();
}

void frmFlowField::optApprox_Click()
{
    lblDeltaX->setText(Plotto::tr("Delta x="));
    txtCurvePoints->assign(QStringLiteral("4"));
    txtDelta->assign(QStringLiteral(".5"));
}

void frmFlowField::optCurve_Click()
{
    lblDeltaX->setText(Plotto::tr("Delta Vmag="));
    txtCurvePoints->assign(QStringLiteral("1000"));
    txtDelta->assign(QStringLiteral(".02"));
    optEuler->select();
}

void frmFlowField::optEuler_Click() { MethodColour = 5; }

void frmFlowField::refuseMethod()
{
    if (!optCurve->isChecked())
        return;
    MsgBox(Plotto::tr("In the curve option, Euler is the only method for calculating points."), Plotto::tr("Sorry"));
    optEuler->select();
}

void frmFlowField::optRunga2_Click()
{
    refuseMethod();
    MethodColour = 3;
}

void frmFlowField::optRunga4_Click()
{
    refuseMethod();
    MethodColour = 4;
}

void frmFlowField::txtCurvePoints_Change()
{
    if (txtCurvePoints->value() >= 10000) {
        MsgBox(Plotto::tr("The maximum for the points graphed is 10000"), Plotto::tr("Max Points Met-Plus"));
        txtCurvePoints->assign(QStringLiteral("10000"));
    }
}

void frmFlowField::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "Slope Fields, Integral Curves, or Approximations"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "This screen allows you to see Slope Fields, see integral curves, or to use various methods to find "
             "approximations.")},
        {QT_TRANSLATE_NOOP("Plotto", "Graph Slope Fields"),
         QT_TRANSLATE_NOOP("Plotto", "Select dx and dy functions from the menus.  Select the values of the "
                                     "coefficients.  Click on [Graph Slope "
                                     "Fields] to see the slopes at all the integral values of the -10 by 10 screen.  "
                                     "You may resize the screen.  "
                                     "The vectors start at the integers so you can determine the direction from where "
                                     "it is supposed to start.")},
        {QT_TRANSLATE_NOOP("Plotto", "Left or Right Click in the Graphing screen"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Clicking on the graphing part of the screen will start the plot of an integral curve or can be used to "
             "find "
             "the endpoint approximation from that initial point.  The graph will follow the slope field smoothly or "
             "acording to the Delta x from left to right.  If the curve leaves the area, the curve will not come back "
             "onto the screen.  If you right click the slope field will go in the opposite direction.  You may select "
             "the "
             "number of points to plot and the change in x(Delta x) for the Method used in the computation of "
             "approximation.  The number of points and Delta x are used by the Plotto button also.")},
        {QT_TRANSLATE_NOOP("Plotto", "Purpose? - Find an endpoint or See the curve"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "The purpose may be confusing to some.  The best way to deal with this is a circle dy/dx = -x/y.  If you "
             "started at (4,3) and wanted a y value at x=6 using 3 steps, you would get a value.  If you followed the "
             "slope field you shouldn't get there since the radius is 5.  The circle would not have an x=6.  Finding "
             "the "
             "approximation is achieved since you do not hit a vertical slope and delta x stays positive making the "
             "slope "
             "change orientation(it goes up-right instead of down-left).  This should graph a 'V' or non-differential "
             "point.  The smooth curve is achieved by using dy and dx separately in a vector plot.  The delta x is no "
             "longer the change in x.  Delta x is the length of each the vector used in plotting the curve.")},
        {QT_TRANSLATE_NOOP("Plotto", "I want an exact point to Start?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "You may not be able to move the cursor to the point you want.  You may click on the Start(___,___) label "
             "box "
             "to enter your points.  As soon as you enter the y coordinate the graph will show your plot and the "
             "endpoint "
             "will show the final value.  If your plot goes off the graph window the program at that point for your "
             "endpoint.  Change the window so it will fit.")},
        {QT_TRANSLATE_NOOP("Plotto", "Plotto!"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Clicking on [Plotto] will set in motion the plotting of the integral curves from 20 points on the x-axis "
             "and "
             "20 points on the y-axis.  These would be at the integer points for the default -10 by 10 screen.  You "
             "may "
             "shift these points by entering a value in the Horizontal Shift or Vertical Shift boxes at the right.  "
             "You "
             "may also make the plotting Bi-Directional by checking that box.  You may have to wait for the screen to "
             "change since it will graph all at once.")},
    });
}

void frmFlowField::describeResults(QStringList& lines) const
{
    const OptionButton* method = this->*checkedMethod().option;
    // The rates as printed above the graph, with the coefficients' values walked in.
    const auto& k = FuncGlobals::Coefficients;
    const std::string dyCaption = FuncGlobals::DyCaption(FuncGlobals::DyFuncId);
    const std::string dxCaption = FuncGlobals::DxCaption(FuncGlobals::DxFuncId);
    auto withValues = [](const std::string& caption, const char* letters, const std::array<double, 3>& values) {
        return QString::fromStdString(
                   FormulaWithCoefficients(std::string_view(caption).substr(std::min<std::size_t>(5, caption.size())),
                                           letters, values))
            .trimmed();
    };
    if (typedRates_)
        lines << Plotto::tr("Typed rates: %1; %2.").arg(lbldy->text(), lbldx->text());
    else
        lines << Plotto::tr("Rates: %1, that is dy = %2; %3, that is dx = %4.")
                     .arg(lbldy->text(), withValues(dyCaption, "ABC", {k.A, k.B, k.C}), lbldx->text(),
                          withValues(dxCaption, "DEF", {k.D, k.E, k.F}));
    lines << (optApprox->isChecked() ? Plotto::tr("Purpose: approximation by %1, %2 %3.")
                                           .arg(spoken(method->text()), spoken(lblDeltaX->text()), txtDelta->text())
                                     : Plotto::tr("Purpose: smooth curves."));
    lines << lblPos->text().trimmed() << lblEndpt->text().trimmed();
}
