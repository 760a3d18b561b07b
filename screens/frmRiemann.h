// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Riemann and other sums: the area under the selected explicit function between two boundaries,
// approximated by up to seven methods at once, each drawn in its own colour.
#include <array>
#include <cstdint>
#include <vector>

#include <QGroupBox>

#include "graphwin/GraphScreen.h"
#include "screens/RiemannSums.h"

class frmRiemann : public GraphScreen {
    Q_OBJECT
public:
    frmRiemann();

    // This screen's names for the shared controls.
    QPushButton*& cmdGraphNow = cmdPlotto;
    QPushButton*& cmdReset = cmdSetDefault;
    QPushButton*& cmdErase = cmdClean;
    ClickLabel*& lblFunction = lblFunc;
    QAction*& mnuFunction = mnuSelect;

    QPushButton *cmdCleanParts = nullptr, *cmdDouble = nullptr, *cmdParts = nullptr;
    TextBox *txtRBound = nullptr, *txtLBound = nullptr, *txtParts = nullptr;
    QGroupBox* fraSums = nullptr;
    CheckBox *chkSimpson = nullptr, *chkRiemann = nullptr, *chkRandom = nullptr, *chkTrap = nullptr;
    CheckBox *chkMid = nullptr, *chkRight = nullptr, *chkLeft = nullptr;
    ClickLabel *lblSimpson = nullptr, *lblRiemann = nullptr, *lblRnd = nullptr, *lblTrap = nullptr;
    ClickLabel *lblMid = nullptr, *lblRightE = nullptr, *lblLeftE = nullptr;
    ClickLabel *lblAreas = nullptr, *lblRBound = nullptr, *lblLBound = nullptr, *lblPartitions = nullptr;
    QWidget*& shpRect = shpSquare;
    // The table of how fast each sum converges (menu Convergence, Ctrl+T).
    class ConvergenceWindow* convergence = nullptr;

    // The number of partitions n, 1 to 32000.
    std::int32_t PartitionCount = 1;
    // The division points of the last random-width run.
    RiemannSums::RandomPointArray RandomPoints;

    void cmdParts_Click();
    void cmdGraphNow_Click();
    void cmdCleanParts_Click();
    void cmdErase_Click();
    void cmdReset_Click();
    void cmdDouble_Click();
    void txtParts_Change();
    void txtLBound_Change();
    void txtRBound_Change();
    void lblPartitions_MouseDown(int Button, int Shift, double X, double Y);
    void lblLBound_MouseDown(int Button, int Shift, double X, double Y);
    void lblRBound_MouseDown(int Button, int Shift, double X, double Y);

    void cmdPlotto_Click() override { cmdGraphNow_Click(); }
    void cmdSetDefault_Click() override { cmdReset_Click(); }
    void cmdZoomIn_Click() override;
    void mnuFunc_Click(int Index) override;
    void Form_Load() override;
    void mnuAbout_Click() override;

    // The sums, one row each: the caption and tip of the check box that shows its partitions, the
    // check box and the label of its area, the colour of its partitions, and what it computes and
    // draws. The panel, the click, the reset of the areas and the description all read this table;
    // a new sum is a new row.
    struct Parts;  // one click's interval, function and drawing
    struct Method {
        const char* caption;
        const char* tip;
        CheckBox* frmRiemann::*check;
        ClickLabel* frmRiemann::*result;
        const char* checkName;  // the two members' names, the controls' object names
        const char* resultName;
        int colour;
        RiemannSums::Result (*sum)(Parts& parts, DrawingSurface::Batch& batch);
        bool clearedByNewFunction;  // its area goes back to "Area=" when another function is chosen
    };
    // The panel's frame grows with the number of rows.
    static const std::vector<Method> kMethods;

private:
    void buildSumsPanel();
    void showResult(ClickLabel* label, const RiemannSums::Result& result);
    void resetAreas();

protected:
    void describeResults(QStringList& lines) const override;
    void functionReplaced() override;
};
