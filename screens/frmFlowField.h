// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPointF>
// Slope fields of a pair of rates dy and dx, integral curves from a pressed or typed point, Euler and
// Runge-Kutta approximations of an end point, and forty curves at once from the plot button.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QGroupBox>
#include <QMenu>

#include "graphwin/GraphScreen.h"
#include "runtime/BoundedArray.h"
#include "screens/IntegralCurves.h"
#include "screens/RateFormula.h"

class frmFlowField : public GraphScreen {
    Q_OBJECT
public:
    frmFlowField();

    QGroupBox *fraPurpose = nullptr, *fraMethod = nullptr, *fraPlotto = nullptr;
    OptionButton *optApprox = nullptr, *optCurve = nullptr;
    OptionButton *optRunga4 = nullptr, *optRunga2 = nullptr, *optEuler = nullptr;
    TextBox *txtHorShift = nullptr, *txtVerShift = nullptr, *txtCurvePoints = nullptr, *txtDelta = nullptr;
    ClickLabel *lblHorShift = nullptr, *lblVerShift = nullptr, *lblplots = nullptr, *lblDeltaX = nullptr;
    CheckBox* chkBiDirect = nullptr;
    QPushButton* cmdShowFlow = nullptr;
    ClickLabel *lblEndpt = nullptr, *lblPos = nullptr, *lblIntegral = nullptr;
    ClickLabel *lbldy = nullptr, *lbldx = nullptr;
    QWidget* shpDyDx = nullptr;
    QAction *mnuSelectdy = nullptr, *mnuseldx = nullptr;
    std::vector<QAction*> mnuDy, mnuDx;  // index 0 is the design entry; 1 to RateFamilyCount the families

    // The method options, each with the step method it selects (a key of funclib/StepMethods.h) and
    // the colour number the plot button gives its approximations.
    struct MethodOption {
        OptionButton* frmFlowField::*option;
        const char* method;
        std::int16_t colour;
    };
    static const std::array<MethodOption, 3> kMethodOptions;
    // The selected option (one always is; the last one if none were).
    const MethodOption& checkedMethod() const;

    // The colour number of the segments (the method's number).
    std::int16_t MethodColour = 5;
    // The current point in window units, the step of the last press and the segment counter.
    double CurrentX = 0, CurrentY = 0;
    double StepH = 0;
    std::int16_t PointCounter = 0;
    // Captions of the rate families by number (0 is empty).
    rt::BoundedArray<std::string, 0, FuncGlobals::RateFamilyCount> DyCaptions, DxCaptions;
    std::int16_t FamilyCount = FuncGlobals::RateFamilyCount;
    // The table of how fast each step method converges (menu Convergence, Ctrl+T).
    class ConvergenceWindow* convergence = nullptr;

    void cmdShowFlow_Click();
    void ShowDyDx();
    void mnuDy_Click(int Index);
    void mnuDx_Click(int Index);
    void lbldy_MouseDown(int Button, int Shift, double X, double Y);
    void lbldx_MouseDown(int Button, int Shift, double X, double Y);
    void lblplots_MouseDown(int Button, int Shift, double X, double Y);
    void lblHorShift_MouseDown(int Button, int Shift, double X, double Y);
    void lblVerShift_MouseDown(int Button, int Shift, double X, double Y);
    void lblDeltaX_MouseDown(int Button, int Shift, double X, double Y);
    void Form_MouseDown(int Button, int Shift, double X, double Y);
    void Form_MouseMove(int Button, int Shift, double X, double Y);
    void FollowCurveForward(double& x, double& y);
    void FollowCurveBackward(double& x, double& y);
    void lblPos_Click();
    void optApprox_Click();
    void optCurve_Click();
    void optEuler_Click();
    void optRunga2_Click();
    void optRunga4_Click();
    void txtCurvePoints_Change();

    void cmdPlotto_Click() override;
    void cmdSetDefault_Click() override;
    void cmdZoomIn_Click() override;
    void CleanGraph() override;
    void Form_Load() override;
    void Form_Activate() override;
    void mnuAbout_Click() override;

protected:
    void coefficientChanged(int index) override;
    void describeResults(QStringList& lines) const override;

public:
    ~frmFlowField() override;
    // Typed rates (Tools › Type the Rates..., Ctrl+E): dy and dx in x, y and A to F; an empty dx is 1.
    // Returns "" when taken, else the reason (naming dy or dx and the place), changing nothing.
    QString setTypedRates(const QString& dy, const QString& dx);
    void mnuTypeFunction_Click() override;
    bool typedInUse() const override { return typedRates_ != nullptr; }
    // For a lesson: {"dy": n, "dx": m} (the families the labels show) or {"dyTyped": .., "dxTyped": ..}.
    std::vector<FunctionPart> functionParts() override;
    QStringList typedTexts() const override;
    QString setTypedTexts(const QStringList& texts) override { return setTypedRates(texts.value(0), texts.value(1)); }

protected:
    void installTyped() override;

private:
    std::shared_ptr<const FuncGlobals::TypedRates> typedRates_;
    std::array<int, 2> shownRates_{};  // the dy and dx families the labels show
    // A curve from a press, guarded: with typed rates a curve that meets an undefined rate stops and
    // the end point label says so.
    void startCurve(int Button, double X, double Y);
    void followGuarded(double& x, double& y, bool backward);
    void fieldArrows();

private:
    IntegralCurves::Settings settings() const;
    // A curve as it was started: the button, whether the press was in the graph, the world start
    // point, the first step's h, the box's step, the method's colour and the settings.
    struct CurveRun {
        int button;
        bool inside;
        double x0, y0, h, delta;
        std::int16_t colour;
        IntegralCurves::Settings settings{};
        bool known = false;  // the settings were read by the first drawing
    };
    // Draws a started curve: the first segment (from the press, or from the mapped start point when
    // it is drawn again at a new window) and its continuation.
    void drawCurve(CurveRun& run, std::optional<QPointF> press);
    // Notes the curve just drawn for the trace and the walk.
    void noteCurve(int Button);
    // The continuation of a curve with its step, colour and settings.
    struct FollowRun {
        double h;
        std::int16_t colour;
        IntegralCurves::Settings settings;
    };
    void followCurve(double& x, double& y, bool backward, const FollowRun& run);
    bool insideGraph(double X, double Y) const;
    void refuseMethod();

    QLineEdit *startX_ = nullptr, *startY_ = nullptr, *endX_ = nullptr, *stepH_ = nullptr;
    QMenu* dyMenu_ = nullptr;
    QMenu* dxMenu_ = nullptr;
    // The points of the curve being drawn, in the world, for the trace and the walk.
    std::vector<audio::Point> curvePoints_;
};
