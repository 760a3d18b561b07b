// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmAnimate.h"

#include "funclib/FuncGlobals.h"
#include "runtime/CountedLoop.h"
#include "runtime/Numbers.h"

namespace {

GraphScreen::Config animateConfig()
{
    GraphScreen::Config c;
    c.caption = QStringLiteral("Animate Classes of Functions");
    c.surfaceWidth = 13920;
    c.zoom = GraphScreen::Zoom::TowardsOrigin;
    return c;
}

constexpr double kPanel = 11220, kPanelWidth = 2580, kInner = 2340;

}  // namespace

frmAnimate::frmAnimate() : GraphScreen(animateConfig())
{
    lblChoice = makeLabel(QStringLiteral("Animation"), kPanel, 60, kPanelWidth, 300);
    lblChoice->setAlignment(Qt::AlignCenter);

    fraHow = new QGroupBox(QStringLiteral("Continuous/Steps"), surface);
    placeTwips(fraHow, kPanel, 360, kPanelWidth, 1560);
    OptionButton** options[] = {&optSteps, &optStepErase, &optCont, &optContErase};
    const char* captions[] = {"Steps", "Steps+Erase", "Continuous", "Continuous+Erase"};
    for (int i = 0; i < 4; ++i) {
        *options[i] = new OptionButton(fraHow, QString::fromLatin1(captions[i]));
        placeTwips(*options[i], 120, 300 + 300 * i, kInner, 300);
    }
    optCont->setChecked(true);

    fraRange = new QGroupBox(QStringLiteral("Variable Range"), surface);
    placeTwips(fraRange, kPanel, 2040, kPanelWidth, 1380);
    auto row = [this](const char* caption, const char* text, double top, ClickLabel*& label) {
        label = new ClickLabel(fraRange, QString::fromLatin1(caption));
        placeTwips(label, 120, top, 900, 300);
        auto* box = new TextBox(fraRange, QString::fromLatin1(text));
        placeTwips(box, 1080, top, 1380, 300);
        return box;
    };
    txtStart = row("Start:", "-2", 300, lblStart);
    txtEnd = row("End:", "2", 660, lblEnd);
    txtSteps = row("Steps:", "41", 1020, lblSteps);

    fraVariable = new QGroupBox(QStringLiteral("Which Variable?"), surface);
    placeTwips(fraVariable, kPanel, 3540, 1500, 1980);
    CheckBox** checks[] = {&chkA, &chkB, &chkC, &chkD, &chkE};
    for (int i = 0; i < 5; ++i) {
        *checks[i] = new CheckBox(fraVariable, QString(QChar::fromLatin1(static_cast<char>('A' + i))));
        placeTwips(*checks[i], 240, 300 + 330 * i, 1000, 300);
    }
    chkA->setChecked(true);

    vscStep = new ScrollBar(Qt::Vertical, surface);
    vscStep->setMin(0);
    vscStep->setMax(41);
    vscStep->setSingleStep(1);
    vscStep->setPageStep(1);
    placeTwips(vscStep, kPanel + 1620, 3600, 255, 1920);
    lblSlide = makeLabel(QStringLiteral("-2"), kPanel + 1920, 4380, 660, 300);
    lblClickAnimate = makeLabel(QStringLiteral("Select Variable(s)"), kPanel, 5580, kPanelWidth, 300);
    lblClickAnimate->setAlignment(Qt::AlignCenter);
    cmdAnimate = makeButton(surface, QStringLiteral("&Animate It!"), [this] { cmdAnimate_Click(); });
    placeTwips(cmdAnimate, kPanel, 5940, kPanelWidth, 420);
    cmdClearIt = makeButton(surface, QStringLiteral("Erase Graph"), [this] { cmdClearIt_Click(); });
    placeTwips(cmdClearIt, kPanel, 6480, kPanelWidth, 420);

    optSteps->Click = [this] { optSteps_Click(); };
    optStepErase->Click = [this] { optStepErase_Click(); };
    optCont->Click = [this] { optCont_Click(); };
    optContErase->Click = [this] { optContErase_Click(); };
    chkA->Click = [this] { chkA_Click(); };
    chkB->Click = [this] { chkB_Click(); };
    chkC->Click = [this] { chkC_Click(); };
    chkD->Click = [this] { chkD_Click(); };
    chkE->Click = [this] { chkE_Click(); };
    txtSteps->Change = [this] { txtSteps_Change(); };
    vscStep->Change = [this] { vscStep_Change(); };
    vscStep->Scroll = [this] { vscStep_Scroll(); };
    vscStep->Spoken = [this] { return tickedLetters() + QStringLiteral(" = ") + lblSlide->text(); };
    vscStep->setAccessibleName(QStringLiteral("Animation frame"));
    cmdClearIt->setAccessibleName(QStringLiteral("Erase Graph, animation panel"));
    Form_Load();
}

std::int16_t frmAnimate::steps() const
{
    const std::int16_t n = rt::CInt(rt::Int(txtSteps->value()));
    return n == 0 ? 1 : n;
}

void frmAnimate::showValue(double value) { lblSlide->setText(qTrimStr(rt::Int(rt::Chk(value * 1000)) / 1000)); }

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
    const double end = rt::CDbl(txtEnd->text().toStdString());
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
        lblClickAnimate->setText(QStringLiteral("Select Variable(s)"));
    else if (continuous())
        lblClickAnimate->setText(QStringLiteral("OK to Click Animate"));
    else
        lblClickAnimate->setText(QStringLiteral("Use Scroll Bar Above"));
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
        {"Graph a Function",
         "Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  "
         "Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change.  "
         "You may also animate the change."},
        {"Animate It!",
         "Animate the function selected by checking one or more variables at the right, selecting the range of the "
         "variable, and clicking [Animate It!]"},
        {"Make conjectures about coefficients",
         "You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each "
         "coefficient changes the graph."},
        {"Left and Right Clicking Labels",
         "Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to "
         "increase and right clicking to decrease."},
        {"Change the Graphing Window",
         "Clicking on the < or > labels next to the graphing window ranges will increase or decrease them by one "
         "also."},
        {"Clicking Labels",
         "Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks."},
        {"Window limit changes < , >",
         "Notice the < and > green labels next to the window limits.  Clicking on the Arrows will increase or decrease "
         "the window limit by one.  Double clicking will increase or decrease it by 5."},
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
    lines << QStringLiteral("Animating %1 of %2 from %3 to %4 in %5 steps, %6.")
                 .arg(tickedLetters().isEmpty() ? QStringLiteral("no coefficient") : tickedLetters(), describeFamily(),
                      txtStart->text(), txtEnd->text(), txtSteps->text(), mode);
    lines << QStringLiteral("Frame value %1; %2.").arg(lblSlide->text(), lblClickAnimate->text());
}
