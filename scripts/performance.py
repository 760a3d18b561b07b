#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes docs/performance.md from a Google Benchmark JSON report of bench/ (median of repetitions)."""
import json
import sys

PAIRS = [
    ("Function grapher: Plotto! (6399 columns, parabola)", "BM_GrapherPlot/1", "BM_BareYFunc/1", 3),
    ("Sums: Graph Partitions, all seven methods at 32000", "BM_GraphPartitionsAllMethods", "BM_SevenSumsWithoutDrawing", 10),
    ("Mean value theorem: Find c scan (200,001 points)", "BM_FindCScan", "BM_BareDerivativeLoop", 2),
    ("Slope fields: forty bi-directional curves, 10000 points", "BM_FortyBidirectionalCurves", "BM_SameCurvesWithoutDrawing", 5),
    ("Parametric plot, 32000 steps, separate points", "BM_ParametricPlot32000/0", "BM_Bare64000ParametricEvaluations", 3),
    ("Parametric plot, 32000 steps, connected", "BM_ParametricPlot32000/1", "BM_Bare64000ParametricEvaluations", 3),
    ("Animation: default continuous run, 42 frames", "BM_ContinuousAnimation42Frames", "BM_Bare42PlotsOfEvaluations", 3),
]


def medians(report):
    out = {}
    for b in report["benchmarks"]:
        if b.get("aggregate_name") == "median":
            unit = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}[b["time_unit"]]
            out[b["run_name"]] = b["real_time"] * unit
    return out


def main():
    report = json.load(open(sys.argv[1]))
    times = medians(report)
    ctx = report["context"]
    lines = [
        "# Performance",
        "",
        "Each heavy handler is timed against the bare evaluations it is built on (the floor), measured in the",
        "same run of `bench/`. Times are medians of the repetitions, in milliseconds.",
        "",
        f"Machine: {ctx.get('num_cpus')} CPUs at {ctx.get('mhz_per_cpu')} MHz; build: the `default` preset.",
        "",
        "| handler | time (ms) | floor (ms) | ratio | target |",
        "|---|---:|---:|---:|---:|",
    ]
    for title, handler, floor, target in PAIRS:
        if handler in times and floor in times:
            t, f = times[handler], times[floor]
            lines.append(f"| {title} | {t:.3f} | {f:.3f} | {t / f:.2f} | {target} |")
    if "BM_SliderTangent" in times:
        lines.append(f"| Mean value theorem: one slider tangent (6401 columns) | {times['BM_SliderTangent']:.3f} | | | |")
    lines += [
        "",
        "Reproduce with:",
        "",
        "    bash scripts/performance.sh",
        "",
        "which builds the benchmarks, runs them with repetitions and rewrites this page. The machine is",
        "shared and virtual, so single runs vary; the ratios, measured in one run, vary less.",
        "",
    ]
    open(sys.argv[2], "w").write("\n".join(lines))


main()
