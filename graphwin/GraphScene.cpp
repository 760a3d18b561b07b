// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/GraphScene.h"

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "graphwin/DrawingSurface.h"
#include "runtime/Random.h"
#include "runtime/RuntimeError.h"

namespace {

// Everything of the module that a drawing step reads besides its own captures: the families, the
// coefficients, the typed functions in use and the random generator.
struct ModuleState {
    std::int16_t function, dx, dy, xt, yt;
    FuncGlobals::CoefficientSet coefficients;
    const FuncGlobals::TypedFunction* typedExplicit;
    const FuncGlobals::TypedRates* typedRate;
    const FuncGlobals::TypedCurve* typedParametric;
    std::uint32_t random;

    static ModuleState now()
    {
        using namespace FuncGlobals;
        return {FunctionId,   DxFuncId,      DyFuncId,  XtFuncId,        YtFuncId,
                Coefficients, TypedExplicit, TypedRate, TypedParametric, rt::rndState()};
    }
    void install() const
    {
        using namespace FuncGlobals;
        FunctionId = function;
        DxFuncId = dx;
        DyFuncId = dy;
        XtFuncId = xt;
        YtFuncId = yt;
        Coefficients = coefficients;
        TypedExplicit = typedExplicit;
        TypedRate = typedRate;
        TypedParametric = typedParametric;
        rt::setRndState(random);
    }
};

}  // namespace

struct GraphScene::Step {
    QString what, kind;
    std::function<void()> draw;
    ModuleState state;
    std::shared_ptr<const void> keep;
};

std::size_t GraphScene::operations() const { return surface_.keptOperations(); }

bool GraphScene::current() const { return clear_ == surface_.clears(); }

void GraphScene::restart()
{
    steps_.clear();
    clear_ = surface_.clears();
    expected_ = operations();
    complete_ = true;
}

void GraphScene::record(const QString& what, std::function<void()> draw, std::shared_ptr<const void> keep,
                        const QString& kind)
{
    if (!current()) {
        // Cleared without a new start: what stands on the surface now is nobody's step.
        restart();
        complete_ = false;
    }
    if (operations() != expected_)
        complete_ = false;  // something was drawn between the steps
    auto step = std::make_shared<Step>(Step{what, kind, std::move(draw), ModuleState::now(), std::move(keep)});
    steps_.push_back(step);
    try {
        step->draw();
    } catch (...) {
        expected_ = operations();
        throw;
    }
    expected_ = operations();
}

void GraphScene::settle()
{
    if (current())
        expected_ = operations();
}

bool GraphScene::complete() const { return current() && complete_ && operations() == expected_; }

GraphScene::Steps GraphScene::release()
{
    Steps out;
    if (current())
        out.swap(steps_);
    return out;
}

GraphScene::Steps GraphScene::without(const Steps& steps, const QString& kind)
{
    Steps out;
    for (const auto& step : steps)
        if (step->kind != kind)
            out.push_back(step);
    return out;
}

QStringList GraphScene::replay(Steps steps)
{
    const ModuleState present = ModuleState::now();
    QStringList failed;
    steps_ = std::move(steps);
    clear_ = surface_.clears();
    for (const auto& step : steps_) {
        step->state.install();
        try {
            step->draw();
        } catch (const rt::RuntimeError& error) {
            failed << step->what + QStringLiteral(" (") + QString::fromUtf8(error.what()) + QLatin1Char(')');
        }
    }
    present.install();
    expected_ = operations();
    complete_ = true;
    return failed;
}
