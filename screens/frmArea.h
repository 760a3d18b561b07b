// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The area between two curves: f is the screen's function (a family with A to E, or typed with
// Tools, Type a Function), g is typed in a box of its own (in x and A to E). Find Crossings lists
// where they cross in [a, b], shades the region between them column by column (one colour where f
// is above, another where g is), and fills a grid with the five strip rules' signed and unsigned
// sums over n strips beside the areas by adaptive integration. Where a curve has a gap in [a, b] it
// says where, and claims no area. The numbers come from screens/AreaBetween.
#include <memory>
#include <optional>

#include "graphwin/GraphScreen.h"
#include "screens/AreaBetween.h"

class frmArea : public GraphScreen {
    Q_OBJECT
public:
    frmArea();

    ClickLabel *lblArea = nullptr, *lblG = nullptr, *lblLeft = nullptr, *lblRight = nullptr, *lblStrips = nullptr;
    TextBox *txtG = nullptr, *txtLeft = nullptr, *txtRight = nullptr, *txtStrips = nullptr;
    QPushButton *cmdDouble = nullptr, *cmdCrossings = nullptr;
    ClickLabel *lblLegend = nullptr, *lblCrossings = nullptr, *lblStatus = nullptr;
    Grid* grdAreas = nullptr;
    // The table of how fast each rule approaches the signed area (menu Convergence, Ctrl+T).
    class ConvergenceWindow* convergence = nullptr;

    // The last result of Find Crossings, or none (nothing found yet, or the boxes were refused).
    const std::optional<AreaBetween::Result>& result() const { return result_; }

    void cmdCrossings_Click();
    void cmdDouble_Click();
    void cmdPlotto_Click() override;
    void lblLeft_MouseDown(int Button, int Shift, double X, double Y);
    void lblRight_MouseDown(int Button, int Shift, double X, double Y);
    void lblStrips_MouseDown(int Button, int Shift, double X, double Y);
    void Form_Load() override;
    void Form_Activate() override;
    void mnuAbout_Click() override;

    // The ends a and b, dragged along the x axis: the region found again.
    std::vector<DragHandle> dragHandles() override;

protected:
    void functionReplaced() override;
    void describeResults(QStringList& lines) const override;

private:
    // The boxes read: a, b, n and g, or the reason in words they cannot be used.
    struct Inputs {
        double a = 0, b = 0;
        std::int32_t n = 0;
        std::shared_ptr<const FuncGlobals::TypedFunction> g;
    };
    std::optional<Inputs> readInputs(QString& why) const;
    // Finds everything again from the boxes, draws it and fills the grid and labels.
    void findAll();
    void draw(const Inputs& in);
    void fillResults();
    void clearResults(const QString& status);
    void stepBoundary(TextBox* box, int Button);
    // What a gap of the result is in words ("g(x) = sqrt(x) is not defined from x = -1 to x = 0").
    QString gapWords(const AreaBetween::Gap& gap) const;

    std::optional<AreaBetween::Result> result_;
    std::optional<Inputs> inputs_;
};
