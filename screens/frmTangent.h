// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tangent line as the limit of secants: the secant through (x, f(x)) and (x + dx, f(x + dx)),
// drawn across the window, with its points and equation; Delta x halved or swept with a slider.
#include <QGroupBox>

#include "graphwin/GraphScreen.h"

class frmTangent : public GraphScreen {
    Q_OBJECT
public:
    frmTangent();

    ClickLabel *lblTan = nullptr, *lblXat = nullptr, *lblDeltaX = nullptr, *lblSlide = nullptr;
    TextBox *txtX = nullptr, *txtDeltaX = nullptr;
    QPushButton *cmdApply = nullptr, *cmdHalfDx = nullptr;
    ScrollBar* hscDx = nullptr;
    ClickLabel *lblxminuDx = nullptr, *lblHsc = nullptr, *lblXaddDx = nullptr;
    QGroupBox* fraApply = nullptr;
    ClickLabel *lblPoints = nullptr, *lblTLine = nullptr;

    void DrawSecant(double dx);
    void cmdApply_Click();
    void cmdHalfDx_Click();
    void hscDx_Change();
    void txtX_Change();
    void lblXat_MouseDown(int Button, int Shift, double X, double Y);
    void lblDeltaX_MouseDown(int Button, int Shift, double X, double Y);
    void mnuAbout_Click() override;

protected:
    void describeResults(QStringList& lines) const override;

    // The point of tangency, dragged along the curve: the box takes its x and the secant is drawn
    // again from there, as Apply It draws it.
    std::vector<DragHandle> dragHandles() override;

private:
    void drawSecant(double dx);
    // The secant through (x1, f(x1)) and (x1 + dx, f(x1 + dx)) and its two lines on the graph (the
    // chord, and the line across the window); x2 == x1 draws nothing.
    struct Secant {
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0, m = 0, b = 0;
    };
    Secant secantLines(double x1, double dx);
    // What the slider's position means: the Delta x it gives.
    QString spokenDeltaX() const;
};
