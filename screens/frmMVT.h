// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mean value theorem: the secant over [a, b], the tangent at any point of the interval by
// slider or typed x, and a scan that lists the points c whose slope matches the secant's.
#include <QGroupBox>

#include "graphwin/GraphScreen.h"

class frmMVT : public GraphScreen {
    Q_OBJECT
public:
    frmMVT();

    QGroupBox *fraMVTSet = nullptr, *fraFindPt = nullptr;
    ClickLabel *lblX1 = nullptr, *lblX2 = nullptr;
    TextBox *txtX1 = nullptr, *txtX2 = nullptr;
    QPushButton* cmdApplyMVT = nullptr;
    ClickLabel *lblPt1 = nullptr, *lblto = nullptr, *lblPt2 = nullptr, *lblSlope1 = nullptr;
    ClickLabel* lblSlideIt = nullptr;
    ScrollBar* HscMVT = nullptr;
    ClickLabel *lbl1 = nullptr, *lbl2 = nullptr, *lblFindc = nullptr, *lblSlope2 = nullptr;
    Grid* gridC = nullptr;
    QPushButton* cmdAnimateIt = nullptr;

    // The slope of the last secant drawn; 0 until the first.
    double SecantSlope = 0;

    void SetColWidth();
    void cmdApplyMVT_Click();
    void HscMVT_Change();
    void lblFindc_Click();
    void cmdAnimateIt_Click();
    void txtX1_Change();
    void txtX2_Change();
    void cmdPlotto_Click() override;
    void Form_Load() override;
    void mnuAbout_Click() override;

    // The interval's ends a and b, dragged along the curve.
    std::vector<DragHandle> dragHandles() override;

private:
    void applyMVT();
    void slideTangent();
    void findC();
    // The secant's ends as its step read them, and the drawing of its circles and dotted line.
    struct SecantAB {
        bool known = false;
        double a = 0, fa = 0, b = 0, fb = 0;
    };
    void drawSecantAB(SecantAB& secant);
    // The scan for the points c on [a, b] whose slope matches `secantSlope` to thousandths, marking
    // each and, when `fillGrid`, listing it.
    void scanC(double a, double b, double last, double secantSlope, bool fillGrid);
    void keepInWindow(TextBox* box, ClickLabel* echo);
    template <class Y>
    void dotLine(int first, int last, FirstUseColour& colour, Y y);

protected:
    void describeResults(QStringList& lines) const override;
};
