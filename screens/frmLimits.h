// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Limits by epsilon and delta: f near a point a, a proposed limit L (typed, or estimated from both
// sides by Find L), the band L +- epsilon and the largest delta whose band a +- delta the graph stays
// inside; halving epsilon adds a row (epsilon, delta, delta/epsilon) to the table, and where no delta
// works the screen says so. Holes and points off the limit are marked at a. The numbers come from
// funclib/EpsilonDelta.
#include <vector>

#include "funclib/EpsilonDelta.h"
#include "graphwin/GraphScreen.h"

class frmLimits : public GraphScreen {
    Q_OBJECT
public:
    frmLimits();

    ClickLabel *lblLimits = nullptr, *lblPoint = nullptr, *lblLimit = nullptr, *lblEpsilon = nullptr;
    TextBox *txtPoint = nullptr, *txtLimit = nullptr, *txtEpsilon = nullptr;
    QPushButton *cmdFindL = nullptr, *cmdFindDelta = nullptr, *cmdHalve = nullptr;
    ClickLabel *lblResult = nullptr, *lblStatus = nullptr;
    Grid* grdHalvings = nullptr;

    // The rows of the table, oldest first (at most kRows - 1 are shown: the latest).
    int rows() const { return static_cast<int>(rows_.size()); }
    static constexpr int kRows = 41;

    void cmdFindL_Click();
    void cmdFindDelta_Click();
    void cmdHalve_Click();
    void cmdPlotto_Click() override;
    // Left button: epsilon halves; right button: epsilon doubles. Either looks for delta again.
    void lblEpsilon_MouseDown(int Button, int Shift, double X, double Y);
    // Left button: a goes up by one; right button: down by one.
    void lblPoint_MouseDown(int Button, int Shift, double X, double Y);
    void Form_Load() override;
    void Form_Activate() override;
    void mnuAbout_Click() override;

    // The point a, dragged along the x axis at height L: delta looked for again about the new a.
    std::vector<DragHandle> dragHandles() override;

protected:
    void functionReplaced() override;
    void describeResults(QStringList& lines) const override;

private:
    // Looks for delta with the boxes' a, L and epsilon, draws the bands and adds a row to the table
    // (a new table when f, a or L changed since its last row).
    void showDelta();
    // Draws f with the marks at a, and the bands of `found` when given.
    void draw(const limits::DeltaSearch* found);
    limits::Values values() const;
    void fillGrid();
    void clearTable();
    struct Picture {
        double a = 0, L = 0, eps = 0, fa = 0;
        bool haveA = false, haveL = false;
        limits::DeltaSearch search;
        bool searched = false;
    };
    void drawPicture(const Picture& p, const FuncGlobals::ExplicitSnapshot& f);

    struct Row {
        double eps;
        limits::DeltaSearch search;
    };
    std::vector<Row> rows_;
    QString tableKey_;  // the function, a and L the rows belong to
    bool shown_ = false;  // a delta (or its absence) is shown for the boxes' values
};
