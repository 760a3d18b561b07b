#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes docs/performance.md from the Google Benchmark JSON reports of one run of
scripts/performance.sh: the handlers (bench/, a process with the toolkit started) and their floors
(bench/floors.cpp, a separate process that never starts it), in rounds that alternate the two
processes. Usage: performance.py HANDLERS.json[,...] FLOORS.json[,...] OUT.md, one pair per round.

Each round gives a time per benchmark (the median of its repetitions) and, for each handler, its
ratio to the floor measured in the same round. The page shows the median over the rounds of each:
a burst of load on a shared machine slows one round's processes, not the others."""
import json
import platform
import statistics
import sys

# (title, handler, floor, target ratio)
PAIRS = [
    ("Function grapher: Plotto! (6399 columns, parabola)", "BM_GrapherPlot/1", "BM_BareYFunc/1", 2),
    ("Function grapher: Plotto! (6399 columns, sine)", "BM_GrapherPlot/5", "BM_BareYFunc/5", 2),
    ("Sums: Graph Partitions, all seven methods at 32000", "BM_GraphPartitionsAllMethods", "BM_SevenSumsWithoutDrawing", 4),
    ("Mean value theorem: Find c scan (200,001 points)", "BM_FindCScan", "BM_BareDerivativeLoop", 2),
    ("Mean value theorem: one slider tangent (6401 columns)", "BM_SliderTangent", "BM_BareTangentColumns", 2),
    ("Slope fields: forty bi-directional curves, 10000 points", "BM_FortyBidirectionalCurves", "BM_SameCurvesWithoutDrawing", 2),
    ("Parametric plot, 32000 steps, separate points", "BM_ParametricPlot32000/0", "BM_Bare64000ParametricEvaluations", 2),
    ("Parametric plot, 32000 steps, connected", "BM_ParametricPlot32000/1", "BM_Bare64000ParametricEvaluations", 2),
    ("Animation: default continuous run, 42 frames", "BM_ContinuousAnimation42Frames", "BM_Bare42PlotsOfEvaluations", 2),
    ("Taylor polynomials: Remove a Term and Add a Term on sin x at degree 7 (two steps; budget 16 ms each)", "BM_TaylorRemoveAndAddTerm", "BM_TaylorEvaluationsOnly", None),
    ("Limits: Halve ε at the default settings (x² at 1, two bands drawn; budget 16 ms)", "BM_LimitsHalveEpsilon", "BM_LimitsDeltaSearch", None),
    ("Area between curves: find crossings + areas (default settings)", "BM_AreaFindCrossings/8", "BM_AreaComputationOnly", None),
    ("Convergence table of the sums, n up to 32768", "BM_SumsTableTo32000", "BM_SumsTableEvaluationsOnly", None),
    ("Convergence table of the step methods, h to h/64", "BM_StepTableToHOver64", "BM_StepTableFinestRowOnly", None),
]

# Typed functions: (title, typed handler, the same handler with the equivalent family, target ratio),
# both timed in the handlers' process, in the same round.
TYPED = [
    ("Grapher: Plotto!, A*sin(B*x + C) + D*x + E against family 5", "BM_TypedGrapherPlot", "BM_GrapherPlot/5", 1.5),
    ("Sums: all seven at 32000, A*x^2 + B*x + C against family 2", "BM_TypedGraphPartitionsAllMethods", "BM_GraphPartitionsAllMethods", 1.5),
    ("Mean value theorem: Find c scan, typed against family 5", "BM_TypedFindCScan", "BM_FindCScan", 1.5),
    ("Slope fields: forty curves, typed A*x + B*y + C, D*x + E*y + F against family 1", "BM_TypedFortyBidirectionalCurves", "BM_FortyBidirectionalCurves", 1.5),
    ("Parametric plot, 32000 points, typed against families 4 and 5", "BM_TypedParametricPlot32000/0", "BM_ParametricPlot32000/0", 1.5),
    ("Parametric plot, 32000 connected, typed against families 4 and 5", "BM_TypedParametricPlot32000/1", "BM_ParametricPlot32000/1", 1.5),
]


# The view's scenes (bench/bench_view.cpp, in its order) and their budget per step in milliseconds.
VIEW = [
    ("Grapher: ten curves", 16),
    ("Sums: all seven methods, 100 partitions", 16),
    ("Newton's method: the curve, its derivative and six steps", 16),
    ("Slope fields: the forty curves", 16),
    ("Sums: all seven methods, 32000 partitions", 100),
    ("Slope fields: the forty curves and the three approximations", 100),
]


def medians(report):
    out = {}
    for b in report["benchmarks"]:
        if b.get("aggregate_name") == "median":
            unit = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}[b["time_unit"]]
            out[b["run_name"]] = (b["real_time"] * unit, b.get("dirty"))
    return out


def cpu_model():
    try:
        for line in open("/proc/cpuinfo"):
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    except OSError:
        pass
    return platform.processor() or "unknown"


def dirty(value):
    if value is None:
        return ""
    return "not reported" if value < 0 else ("dirty" if value >= 0.5 else "clean")


def over_rounds(rounds, name):
    """The median over the rounds of a benchmark's time, and its state in the first round."""
    return statistics.median(r[name][0] for r in rounds), rounds[0][name][1]


def main():
    handler_reports = [json.load(open(p)) for p in sys.argv[1].split(",")]
    floor_reports = [json.load(open(p)) for p in sys.argv[2].split(",")]
    hs, fs = [medians(r) for r in handler_reports], [medians(r) for r in floor_reports]
    h = {name: over_rounds(hs, name) for name in hs[0] if all(name in r for r in hs)}
    f = {name: over_rounds(fs, name) for name in fs[0] if all(name in r for r in fs)}

    def ratio(side, handler, floor):
        """The median over the rounds of the handler's time over its floor's in the same round."""
        return statistics.median(hr[handler][0] / fr[floor][0] for hr, fr in zip(side, fs))

    ctx = handler_reports[0]["context"]
    lines = [
        "# Performance",
        "",
        "Each heavy handler is timed in a process that runs the toolkit, and compared with its floor (the",
        "same evaluations, nothing drawn) timed in a separate process that never starts the toolkit, in the",
        f"same run of `scripts/performance.sh`, in {len(hs)} rounds that alternate the two processes. A time is the",
        "median over the rounds of the median of a round's repetitions, in milliseconds; a ratio is the median",
        "over the rounds of the handler's time over the floor's of the same round. The",
        "state columns say whether the upper halves of the AVX registers were in use when the hot loop",
        "started (read with XGETBV; the handler's is the state it found before clearing it at the boundary).",
        "A ratio target holds for a handler of 1 ms or more; one that takes less is done at once whatever",
        "its ratio (marked \"under 1 ms\" where the ratio is above the target).",
        "",
        f"CPU: {cpu_model()}, {ctx.get('num_cpus')} CPUs at {ctx.get('mhz_per_cpu')} MHz; build: the `default` preset.",
        "",
        "| handler | time (ms) | floor (ms) | ratio | target | handler state | floor state |",
        "|---|---:|---:|---:|---:|---|---|",
    ]
    for title, handler, floor, target in PAIRS:
        if handler in h and floor in f:
            (t, hd), (b, fd) = h[handler], f[floor]
            q = ratio(hs, handler, floor)
            # The targets hold for handlers of a millisecond or more: a click under one is done at once.
            within = ""
            if target is not None:
                within = f"{target}x" + ("" if q <= target else " (under 1 ms)" if t < 1 else " (missed)")
            lines.append(f"| {title} | {t:.3f} | {b:.3f} | {q:.2f} | {within} | {dirty(hd)} | {dirty(fd)} |")
        elif handler in f and floor in f:
            (t, hd), (b, fd) = f[handler], f[floor]
            lines.append(f"| {title} | {t:.3f} | {b:.3f} | {ratio(fs, handler, floor):.2f} | | {dirty(hd)} | {dirty(fd)} |")
    if "BM_ResizeWithEightyCurves" in h:
        lines.append(f"| Slope fields: resize with the eighty curves (redrawn) | {h['BM_ResizeWithEightyCurves'][0]:.3f} | | | 100 ms | | |")
    lines += [
        "",
        "## The view: a wheel step and a pan step",
        "",
        "A zoom or a pan draws the whole kept picture again at the new window. Each step is timed against",
        "the same picture drawn directly by the screen's handlers after a clear (what a redraw cannot do",
        "with less), both in the handlers' process; the budget is one frame for a usual scene and 100 ms for",
        "the heaviest.",
        "",
        "| scene | wheel step (ms) | pan step (ms) | drawn directly (ms) | wheel / direct | budget |",
        "|---|---:|---:|---:|---:|---:|",
    ]
    for index, (title, budget) in enumerate(VIEW):
        wheel, pan, direct = (f"BM_ViewWheelStep/{index}", f"BM_ViewPanStep/{index}", f"BM_ViewDirectDrawing/{index}")
        if wheel in h and pan in h and direct in h:
            q = statistics.median(r[wheel][0] / r[direct][0] for r in hs)
            worst = max(h[wheel][0], h[pan][0])
            within = f"{budget} ms" + ("" if worst <= budget else " (missed)")
            lines.append(f"| {title} | {h[wheel][0]:.3f} | {h[pan][0]:.3f} | {h[direct][0]:.3f} | {q:.2f} | {within} |")
    lines += [
        "",
        "## Typed functions",
        "",
        "Each handler with a typed function against the same handler with the family of the same formula,",
        "both in the handlers' process; the ratio is the median over the rounds of the two times of one round.",
        "",
        "| handler | typed (ms) | family (ms) | ratio | target |",
        "|---|---:|---:|---:|---:|",
    ]
    for title, typed, family, target in TYPED:
        if typed in h and family in h:
            q = statistics.median(r[typed][0] / r[family][0] for r in hs)
            within = f"{target}x" + ("" if q <= target else " (missed)")
            lines.append(f"| {title} | {h[typed][0]:.3f} | {h[family][0]:.3f} | {q:.2f} | {within} |")
    lines += [
        "",
        "Reproduce with:",
        "",
        "    bash scripts/performance.sh",
        "",
        "which builds both benchmark programs, runs them in alternating rounds (`ROUNDS=5` for more) with",
        "repetitions and rewrites this page. The machines are shared and their CPUs differ; the ratios,",
        "each measured within one round, vary less than the times.",
        "",
    ]
    open(sys.argv[3], "w").write("\n".join(lines))


main()
