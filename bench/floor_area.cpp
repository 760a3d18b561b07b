// SPDX-License-Identifier: GPL-3.0-or-later
// The floor of the area screen's Find Crossings: the same computation at the same default settings
// (y = x^2 against g(x) = x + 2 on [-2, 3], eight strips), with nothing drawn and no toolkit.
#include <benchmark/benchmark.h>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "screens/AreaBetween.h"

namespace {

void BM_AreaComputationOnly(benchmark::State& state)
{
    using FuncGlobals::ExplicitSnapshot;
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 1;
    std::string error;
    const ExplicitSnapshot f(ExplicitSnapshot::What::Value, nullptr),
        g(ExplicitSnapshot::What::Value, FuncGlobals::TypedFunction::make("x + 2", error));
    const auto values = [](const ExplicitSnapshot& s) {
        return [s](const std::vector<double>& xs) { return s.at(xs); };
    };
    for (auto _ : state) {
        const AreaBetween::Result r = AreaBetween::compute(values(f), values(g), -2, 3, 8);
        benchmark::DoNotOptimize(r.unsignedArea);
    }
}
BENCHMARK(BM_AreaComputationOnly)->Unit(benchmark::kMillisecond);

}  // namespace
