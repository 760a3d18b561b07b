// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <utility>
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
    // View, Zoom to the Steps: a window around the last steps, where the default window shows them all
    // on top of the root (an addition of this program's own menu; the seed's controls are unchanged).
    QAction* mnuZoomSteps = nullptr;
    void mnuZoomSteps_Click();
    // The guesses of the sequence shown, in order: the grid's numbers, then the next guess in the box.
    std::vector<double> guesses() const;

    // The first guess of the sequence shown (the guess box before any), dragged along the x-axis:
    // the sequence is drawn again from there with as many steps.
    std::vector<DragHandle> dragHandles() override;
    void dragGuess(double x);

protected:
    void coefficientChanged(int index) override;
    void functionReplaced() override;
    void describeResults(QStringList& lines) const override;

private:
    // One step from guess x: the tangent to the axis, the next guess and the guess's row.
    void applyNewton(double x);
    // One step's drawing: the vertical line from the axis to the curve at the guess (and "x1" at a
    // sequence's start), and the tangent from there to the axis, returning the slope and the next
    // guess (no line where the slope is 0).
    void drawGuess(double x, bool first);
    std::pair<double, double> drawTangent(double x);
};
