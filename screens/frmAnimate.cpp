// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmAnimate.h"

#include "funclib/FuncGlobals.h"
#include "graphwin/Language.h"
#include "runtime/CountedLoop.h"
#include "runtime/Numbers.h"

namespace {

GraphScreen::Config animateConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Animate Classes of Functions");
    c.surfaceWidth = 13920;
    c.zoom = GraphScreen::Zoom::TowardsOrigin;
    return c;
}

constexpr double kPanel = 11220, kPanelWidth = 2580, kInner = 2340;

}  // namespace

frmAnimate::frmAnimate() : GraphScreen(animateConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double P = kPanel, W = kPanelWidth, I = kInner;
    // clang-format off
    form::buildForm(surface, {
        // name             kind           caption                place                  handlers / look
        {FORM_NAME(lblChoice),        Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Animation"),           {P, 60, W, 300},       {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(fraHow),           Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Continuous/Steps"),    {P, 360, W, 1560}, {}, {}, {
            {FORM_NAME(optSteps),     Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Steps"),               {120,  300, I, 300},   {.Click = on(&frmAnimate::optSteps_Click)}},
            {FORM_NAME(optStepErase), Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Steps+Erase"),         {120,  600, I, 300},   {.Click = on(&frmAnimate::optStepErase_Click)}},
            {FORM_NAME(optCont),      Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Continuous"),          {120,  900, I, 300},   {.Click = on(&frmAnimate::optCont_Click)}, {.checked = true}},
            {FORM_NAME(optContErase), Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Continuous+Erase"),    {120, 1200, I, 300},   {.Click = on(&frmAnimate::optContErase_Click)}},
        }},
        {FORM_NAME(fraRange),         Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Variable Range"),      {P, 2040, W, 1380}, {}, {}, {
            {FORM_NAME(lblStart),     Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Start:"),              {120,   300, 900, 300}},
            {FORM_NAME(txtStart),     Kind::Box,     "-2",                  {1080,  300, 1380, 300}},
            {FORM_NAME(lblEnd),       Kind::Label, QT_TRANSLATE_NOOP("Plotto", "End:"),                {120,   660, 900, 300}},
            {FORM_NAME(txtEnd),       Kind::Box,     "2",                   {1080,  660, 1380, 300}},
            {FORM_NAME(lblSteps),     Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Steps:"),              {120,  1020, 900, 300}},
            {FORM_NAME(txtSteps),     Kind::Box,     "41",                  {1080, 1020, 1380, 300}, {.Change = on(&frmAnimate::txtSteps_Change)}},
        }},
        {FORM_NAME(fraVariable),      Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Which Variable?"),     {P, 3540, 1500, 1980}, {}, {}, {
            {FORM_NAME(chkA),         Kind::Check,   "A",                   {240,  300, 1000, 300}, {.Click = on(&frmAnimate::chkA_Click)}, {.checked = true}},
            {FORM_NAME(chkB),         Kind::Check,   "B",                   {240,  630, 1000, 300}, {.Click = on(&frmAnimate::chkB_Click)}},
            {FORM_NAME(chkC),         Kind::Check,   "C",                   {240,  960, 1000, 300}, {.Click = on(&frmAnimate::chkC_Click)}},
            {FORM_NAME(chkD),         Kind::Check,   "D",                   {240, 1290, 1000, 300}, {.Click = on(&frmAnimate::chkD_Click)}},
            {FORM_NAME(chkE),         Kind::Check,   "E",                   {240, 1620, 1000, 300}, {.Click = on(&frmAnimate::chkE_Click)}},
        }},
        {FORM_NAME(vscStep),          Kind::VScroll, "",                    {P + 1620, 3600, 255, 1920},
            {.Change = on(&frmAnimate::vscStep_Change), .Scroll = on(&frmAnimate::vscStep_Scroll),
             .Spoken = [this] { return tickedLetters() + QStringLiteral(" = ") + lblSlide->text(); }},
            {.name = QT_TRANSLATE_NOOP("Plotto", "Animation frame"), .bar = {.min = 0, .max = 41, .small = 1, .large = 1}}},
        {FORM_NAME(lblSlide),         Kind::Label,   "-2",                  {P + 1920, 4380, 660, 300}},
        {FORM_NAME(lblClickAnimate),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Select Variable(s)"),  {P, 5580, W, 300},     {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(cmdAnimate),       Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Animate It!"),        {P, 5940, W, 420},     {.Click = on(&frmAnimate::cmdAnimate_Click)}},
        {FORM_NAME(cmdClearIt),       Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Erase Graph"),         {P, 6480, W, 420},     {.Click = on(&frmAnimate::cmdClearIt_Click)},
                                                                                         {.name = QT_TRANSLATE_NOOP("Plotto", "Erase Graph, animation panel")}},
    });
    // clang-format on
    Form_Load();
}

std::int16_t frmAnimate::steps() const
{
    const std::int16_t n = rt::CInt(rt::Int(txtSteps->value()));
    return n == 0 ? 1 : n;
}

void frmAnimate::showValue(double value) { lblSlide->setText(shownTrimStr(rt::Int(rt::Chk(value * 1000)) / 1000)); }

void frmAnimate::setTickedCoefficients(double value)
{
    auto& k = FuncGlobals::Coefficients;
    double* const targets[] = {&k.A, &k.B, &k.C, &k.D, &k.E};
    const CheckBox* const checks[] = {chkA, chkB, chkC, chkD, chkE};
    for (int i = 0; i < 5; ++i)
        if (checks[i]->isChecked())
            *targets[i] = value;
}

void frmAnimate::cmdAnimate_Click()
{
    using rt::Chk;
    const std::int16_t n = steps();
    const double end = rt::CDbl(i18n::typedDecimals(txtEnd->text()).toStdString());
    // The difference goes through its text and back before the division.
    const double inc = rt::Div(rt::Val(rt::Str(Chk(end - txtStart->value()))), n);
    if (continuous()) {
        rt::For16(0, n, 1, [&](std::int16_t i) {
            const double value = Chk(txtStart->value() + Chk(i * inc));
            showValue(value);
            vscStep->setValueChecked(i);
            setTickedCoefficients(value);
            if (optContErase->isChecked())
                CleanGraph();
            cmdPlotto_Click();
            surface->refreshNow();
        });
    }
    copyCoefficients();
}

double frmAnimate::scrollValue() const
{
    using rt::Chk;
    const double inc = rt::Div(Chk(txtEnd->value() - txtStart->value()), steps());
    return Chk(txtStart->value() + Chk(vscStep->value() * inc));
}

void frmAnimate::vscStep_Change()
{
    const double value = scrollValue();
    if (!continuous()) {
        setTickedCoefficients(value);
        if (optStepErase->isChecked())
            CleanGraph();
        cmdPlotto_Click();
    }
    showValue(value);
    copyCoefficients();
}

void frmAnimate::vscStep_Scroll() { showValue(scrollValue()); }

void frmAnimate::txtSteps_Change() { vscStep->setMax(rt::CInt(txtSteps->value())); }

void frmAnimate::UpdateStatus()
{
    const bool any =
        chkA->isChecked() || chkB->isChecked() || chkC->isChecked() || chkD->isChecked() || chkE->isChecked();
    if (!any)
        lblClickAnimate->setText(Plotto::tr("Select Variable(s)"));
    else if (continuous())
        lblClickAnimate->setText(Plotto::tr("OK to Click Animate"));
    else
        lblClickAnimate->setText(Plotto::tr("Use Scroll Bar Above"));
}

void frmAnimate::chkA_Click() { UpdateStatus(); }
void frmAnimate::chkB_Click() { UpdateStatus(); }
void frmAnimate::chkC_Click() { UpdateStatus(); }
void frmAnimate::chkD_Click() { UpdateStatus(); }
void frmAnimate::chkE_Click() { UpdateStatus(); }
void frmAnimate::optSteps_Click() { UpdateStatus(); }
void frmAnimate::optStepErase_Click() { UpdateStatus(); }
void frmAnimate::optCont_Click() { UpdateStatus(); }
void frmAnimate::optContErase_Click() { UpdateStatus(); }

void frmAnimate::cmdClearIt_Click() { CleanGraph(); }

void frmAnimate::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "Graph a Function"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  "
             "Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change. "
             " "
             "You may also animate the change.")},
        {QT_TRANSLATE_NOOP("Plotto", "Animate It!"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Animate the function selected by checking one or more variables at the right, selecting the range of the "
             "variable, and clicking [Animate It!]")},
        {QT_TRANSLATE_NOOP("Plotto", "Make conjectures about coefficients"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each "
             "coefficient changes the graph.")},
        {QT_TRANSLATE_NOOP("Plotto", "Left and Right Clicking Labels"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to "
             "increase and right clicking to decrease.")},
        {QT_TRANSLATE_NOOP("Plotto", "Change the Graphing Window"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Clicking on the < or > labels next to the graphing window ranges will increase or decrease them by one "
             "also.")},
        {QT_TRANSLATE_NOOP("Plotto", "Clicking Labels"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks.")},
        {QT_TRANSLATE_NOOP("Plotto", "Window limit changes < , >"),
         QT_TRANSLATE_NOOP("Plotto", "Notice the < and > green labels next to the window limits.  Clicking on the "
                                     "Arrows will increase or decrease "
                                     "the window limit by one.  Double clicking will increase or decrease it by 5.")},
    });
}

QString frmAnimate::tickedLetters() const
{
    const CheckBox* checks[] = {chkA, chkB, chkC, chkD, chkE};
    QStringList letters;
    for (const CheckBox* check : checks)
        if (check->isChecked())
            letters << check->text();
    return letters.join(QStringLiteral(", "));
}

void frmAnimate::describeResults(QStringList& lines) const
{
    const OptionButton* options[] = {optSteps, optStepErase, optCont, optContErase};
    QString mode;
    for (const OptionButton* option : options)
        if (option->isChecked())
            mode = option->text();
    lines << Plotto::tr("Animating %1 of %2 from %3 to %4 in %5 steps, %6.")
                 .arg(tickedLetters().isEmpty() ? Plotto::tr("no coefficient") : tickedLetters(), describeFamily(),
                      txtStart->text(), txtEnd->text(), txtSteps->text(), mode);
    lines << Plotto::tr("Frame value %1; %2.").arg(lblSlide->text(), lblClickAnimate->text());
}
