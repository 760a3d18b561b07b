// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Animating the coefficients of an explicit family: the ticked coefficients run from a start to an
// end value, all frames at once ("Continuous") or one frame per scroll-bar step ("Steps").
#include <cstdint>

#include <QGroupBox>

#include "graphwin/GraphScreen.h"

class frmAnimate : public GraphScreen {
    Q_OBJECT
public:
    frmAnimate();

    QGroupBox *fraHow = nullptr, *fraRange = nullptr, *fraVariable = nullptr;
    OptionButton *optSteps = nullptr, *optStepErase = nullptr, *optCont = nullptr, *optContErase = nullptr;
    TextBox *txtStart = nullptr, *txtEnd = nullptr, *txtSteps = nullptr;
    ClickLabel *lblStart = nullptr, *lblEnd = nullptr, *lblSteps = nullptr;
    CheckBox *chkA = nullptr, *chkB = nullptr, *chkC = nullptr, *chkD = nullptr, *chkE = nullptr;
    ScrollBar* vscStep = nullptr;
    ClickLabel *lblSlide = nullptr, *lblClickAnimate = nullptr, *lblChoice = nullptr;
    QPushButton *cmdAnimate = nullptr, *cmdClearIt = nullptr;

    void cmdAnimate_Click();
    void vscStep_Change();
    void vscStep_Scroll();
    void txtSteps_Change();
    void txtStart_Change() { }
    void txtEnd_Change() { }
    void chkA_Click();
    void chkB_Click();
    void chkC_Click();
    void chkD_Click();
    void chkE_Click();
    void optSteps_Click();
    void optStepErase_Click();
    void optCont_Click();
    void optContErase_Click();
    void cmdClearIt_Click();
    void mnuAbout_Click() override;

private:
    // The number of steps of an animation: Int(Val(txtSteps)) as a 16-bit integer, 0 taken as 1.
    std::int16_t steps() const;
    // The value of the frame at scroll position `position`, by the scroll bar's rule.
    double scrollValue() const;
    void showValue(double value);
    void setTickedCoefficients(double value);
    void UpdateStatus();
    bool continuous() const { return optCont->isChecked() || optContErase->isChecked(); }

protected:
    // The ticked coefficients' letters, "A, C".
    QString tickedLetters() const;
    void describeResults(QStringList& lines) const override;
};
