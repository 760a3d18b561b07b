// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Parametric curves x(t), y(t) from two catalogues of twelve families, drawn as points or joined,
// and traced by a t typed into a box or chosen with a slider.
#include <array>
#include <string>
#include <vector>

#include <QGroupBox>

#include "graphwin/GraphScreen.h"
#include "runtime/BoundedArray.h"

class frmParam : public GraphScreen {
    Q_OBJECT
public:
    frmParam();

    QAction *mnuSelectX = nullptr, *mnuSelectY = nullptr;
    std::vector<QAction*> mnuXFunc, mnuYFunc;  // index 0 is the design entry; 1 to ParametricFamilyCount the families
    ClickLabel *lblXPar = nullptr, *lblYPar = nullptr, *lblInstruct = nullptr;
    QGroupBox *fraSetup = nullptr, *fraTrace = nullptr;
    ClickLabel *lblT0 = nullptr, *lblFinalT = nullptr, *lblTstep = nullptr, *lbltTrace = nullptr;
    TextBox *txtT0 = nullptr, *txtTn = nullptr, *txtTstep = nullptr, *txtT = nullptr;
    OptionButton *optCont = nullptr, *optPoints = nullptr;
    ClickLabel *lblXY = nullptr, *lblTslide = nullptr, *lblTmin = nullptr, *lblTmax = nullptr;
    ScrollBar* HscT = nullptr;
    QPushButton* cmdZout = nullptr;

    // Captions of the families by number (0 is empty) and the size of each catalogue.
    rt::BoundedArray<std::string, 0, 12> XCaptions, YCaptions;
    std::int16_t XFuncCount = FuncGlobals::ParametricFamilyCount, YFuncCount = FuncGlobals::ParametricFamilyCount;

    void mnuXFunc_Click(int Index);
    void mnuYFunc_Click(int Index);
    void lblXPar_MouseDown(int Button, int Shift, double X, double Y);
    void lblYPar_MouseDown(int Button, int Shift, double X, double Y);
    void lblT0_MouseDown(int Button, int Shift, double X, double Y);
    void lblFinalT_MouseDown(int Button, int Shift, double X, double Y);
    void lblTstep_MouseDown(int Button, int Shift, double X, double Y);
    void lbltTrace_MouseDown(int Button, int Shift, double X, double Y);
    // The traced point, dragged along the curve: t follows the pointer.
    std::vector<DragHandle> dragHandles() override;
    void txtT0_Change();
    void txtTn_Change();
    void txtTstep_Change();
    void HscT_Change();
    void txtT_Change();
    void cmdZout_Click();
    void cmdPlotto_Click() override;
    void Form_Load() override;
    void mnuAbout_Click() override;

private:
    bool inside(double column, double row) const
    {
        return GraphWindow::rowInside(row) && graph.Left < column && column < graph.right();
    }
    QMenu* xMenu_ = nullptr;
    QMenu* yMenu_ = nullptr;

protected:
    void describeResults(QStringList& lines) const override;

public:
    ~frmParam() override;
    // A typed curve (Tools › Type the Curve..., Ctrl+E): x(t) and y(t) in t and A to F. Returns "" when
    // taken, else the reason (naming x(t) or y(t) and the place), changing nothing.
    QString setTypedCurve(const QString& xt, const QString& yt);
    void mnuTypeFunction_Click() override;
    bool typedInUse() const override { return typedCurve_ != nullptr; }
    // For a lesson: {"x": n, "y": m} (the families the captions show) or {"xTyped": .., "yTyped": ..}.
    std::vector<FunctionPart> functionParts() override;
    QStringList typedTexts() const override;
    QString setTypedTexts(const QStringList& texts) override { return setTypedCurve(texts.value(0), texts.value(1)); }

protected:
    void installTyped() override;

private:
    std::shared_ptr<const FuncGlobals::TypedCurve> typedCurve_;
    std::array<int, 2> shownCurve_{4, 5};  // the x and y families the captions show
    static constexpr std::size_t kCurveBlock = 256;  // the points of a curve computed together
    // The curve's plot over t: `at(ts, m, columns, rows, mapped)` gives the twip points of m values of
    // t, counting in `mapped` those done before a run-time error (which then comes after they are
    // drawn, at the same point as point by point), and a connected segment (or the first point) is
    // drawn only where `from` holds for its start.
    template <class At, class From>
    void plotCurve(At at, From from);
    void dragTrace(double toX, double toY);
    // The figure of n steps of dt from t0, as points or joined, noted for the trace as `name`.
    template <class At, class From>
    void drawCurve(At at, From from, float t0, std::int16_t n, float dt, bool points,
                   const QString& name);
};
