// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Newton's method one step per click, drawn on the graph and listed in a grid, and the graph of the
// derivative.
#include <cstdint>

#include "graphwin/GraphScreen.h"

class frmNewton : public GraphScreen {
    Q_OBJECT
public:
    frmNewton();

    Grid* grdGuess = nullptr;
    QPushButton *cmdApply = nullptr, *cmdDeriv = nullptr;
    TextBox* txtGuess = nullptr;
    ClickLabel *lblGuess = nullptr, *lblNewtonMethod = nullptr;

    // True when the next application starts a new sequence of guesses.
    bool NewSequence = true;
    // The number of the next guess in the sequence.
    std::int16_t GuessNumber = 1;

    void cmdApply_Click();
    void cmdDeriv_Click();
    void txtGuess_Click();
    void Form_Load() override;
    void Form_Activate() override;
    void mnuFunc_Click(int Index) override;
    void mnuAbout_Click() override;

protected:
    void coefficientChanged(int index) override;
    void functionReplaced() override;
    void describeResults(QStringList& lines) const override;

private:
    // One step from guess x: the tangent to the axis, the next guess and the guess's row.
    void applyNewton(double x);
};
