// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Taylor polynomials term by term: f, the polynomial P_n about a centre a of the degree shown, the
// one a degree below faintly, and the part of the x axis where |f - P_n| is below a tolerance; a grid
// lists each degree's new term with exact coefficients, P_n and the error at a chosen x, and the
// Lagrange bound when ticked. The coefficients come from funclib/TaylorSeries.
#include <optional>
#include <string>
#include <vector>

#include "funclib/TaylorSeries.h"
#include "graphwin/GraphScreen.h"

class frmTaylor : public GraphScreen {
    Q_OBJECT
public:
    frmTaylor();

    ClickLabel *lblTaylor = nullptr, *lblCentre = nullptr, *lblTolerance = nullptr, *lblAtX = nullptr;
    TextBox *txtCentre = nullptr, *txtTolerance = nullptr, *txtAtX = nullptr;
    QPushButton *cmdAddTerm = nullptr, *cmdRemoveTerm = nullptr;
    CheckBox* chkLagrange = nullptr;
    ClickLabel *lblDegree = nullptr, *lblStatus = nullptr;
    Grid* grdTerms = nullptr;

    // The degree shown, -1 before the first term.
    int degree() const { return degree_; }

    void cmdAddTerm_Click();
    void cmdRemoveTerm_Click();
    void cmdPlotto_Click() override;
    void lblCentre_MouseDown(int Button, int Shift, double X, double Y);
    void txtAtX_Change();
    void chkLagrange_Click();
    void Form_Load() override;
    void Form_Activate() override;
    void mnuAbout_Click() override;

    // The centre, dragged along the x axis: the polynomial of the same degree about the new centre.
    std::vector<DragHandle> dragHandles() override;

protected:
    void functionReplaced() override;
    void describeResults(QStringList& lines) const override;

private:
    // Shows degree `n` (clamped to 0..kMaxDegree): the terms worked out, the picture drawn again and
    // the grid filled.
    void showDegree(int n);
    // The series of the function in use about the centre box's value, made anew when either changed.
    FuncGlobals::TaylorSeries* series();
    void draw();
    void fillGrid();
    // The picture's step: f, P_(n-1) faintly, P_n and the band where |f - P_n| < tolerance.
    struct Picture {
        std::vector<double> now, before;  // the coefficients of P_n and P_(n-1) (empty: not drawn)
        double centre = 0, tolerance = 0;
    };
    void drawPicture(const Picture& p, const FuncGlobals::ExplicitSnapshot& f);

    int degree_ = -1;
    std::optional<FuncGlobals::TaylorSeries> series_;
    QString seriesKey_;
    QString status_;
};
