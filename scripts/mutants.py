#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Mutation check: how many small faults in the code the test suite notices.

Makes single, compilable changes to the code in runtime/, funclib/, graphwin/, screens/ and
launcher/ (a relational operator flipped, + and - swapped, an integer constant changed by one, a
condition negated, a statement removed), on a reproducible sample spread over every layer. Each
mutant is built incrementally (ccache) in a separate work tree and the test suite runs against it
with a time limit; a failing or timed-out suite kills the mutant. A mutant that does not compile is
replaced by the next candidate of its layer. Writes a Markdown report: per file and per layer, the
mutants made, killed and surviving, and every survivor with its place and change.

Not part of CI: a developer's tool (scripts/mutants.sh runs it). The whole sample of 150 takes
roughly an hour and a half on a 2-core machine; --count makes it smaller.
"""
import argparse
import json
import os
import datetime
import random
import resource
import signal
import re
import subprocess
import sys
import time
from collections import defaultdict

LAYERS = ["runtime", "funclib", "graphwin", "screens", "launcher"]

# (name, pattern, replacement) applied to one match in a code line.
OPERATORS = [
    ("relational <= to <", re.compile(r"(?<![<>=!])<=(?!=)"), "<"),
    ("relational < to <=", re.compile(r"(?<![<>=!-])<(?![<=])(?=\s)"), "<="),
    ("relational >= to >", re.compile(r"(?<![<>=!])>=(?!=)"), ">"),
    ("relational > to >=", re.compile(r"(?<![<>=!-])>(?![>=])(?=\s)"), ">="),
    ("== to !=", re.compile(r"(?<![=!<>])==(?!=)"), "!="),
    ("!= to ==", re.compile(r"!=(?!=)"), "=="),
    ("+ to -", re.compile(r"(?<=\s)\+(?=\s)"), "-"),
    ("- to +", re.compile(r"(?<=\s)-(?=\s)"), "+"),
    ("constant + 1", re.compile(r"(?<![\w.])(\d+)(?![\w.])"), None),
    ("condition negated", re.compile(r"\b(if|while) \((.*)\)(\s*\{?)\s*$"), None),
]

TEST_PROGRAMS = ["runtime_tests", "funclib_tests", "graphwin_tests", "screens_tests", "launcher_tests",
                 "robustness_tests", "plotto"]  # the program itself: its command line is tested

STATEMENT = re.compile(r"^\s+[A-Za-z_][\w:>.\-\[\]]*(\(|\s*[+\-*/]?=\s)[^;{}]*;\s*$")


def code_lines(path):
    """Yields (number, line) of the lines that hold code (no comments, includes or strings)."""
    in_block = False
    for number, line in enumerate(open(path, encoding="utf-8"), 1):
        stripped = line.strip()
        if in_block:
            if "*/" in stripped:
                in_block = False
            continue
        if stripped.startswith("/*"):
            in_block = "*/" not in stripped
            continue
        if not stripped or stripped.startswith(("//", "#")):
            continue
        if '"' in line or "'" in line or "template" in line or "operator" in line:
            continue
        yield number, line.split("//")[0].rstrip("\n")


def candidates(root):
    """Every possible mutant: (layer, file, line number, operator name, new line)."""
    out = []
    for layer in LAYERS:
        for name in sorted(os.listdir(os.path.join(root, layer))):
            if not name.endswith((".cpp", ".h")):
                continue
            rel = os.path.join(layer, name)
            for number, line in code_lines(os.path.join(root, rel)):
                for op, pattern, replacement in OPERATORS:
                    for m in pattern.finditer(line):
                        if op == "constant + 1":
                            new = line[: m.start()] + str(int(m.group(1)) + 1) + line[m.end():]
                        elif op == "condition negated":
                            new = line[: m.start()] + "%s (!(%s))%s" % (m.group(1), m.group(2), m.group(3))
                        else:
                            new = line[: m.start()] + replacement + line[m.end():]
                        out.append((layer, rel, number, op, new))
                if STATEMENT.match(line) and not line.strip().startswith(("return", "const ", "auto ", "static ")):
                    out.append((layer, rel, number, "statement removed", re.sub(r"\S.*", ";", line, count=1)))
    return out


def sample(all_candidates, count, seed):
    """A reproducible sample, spread over the layers in proportion to their candidates, at least a
    fifth of the sample's share to each."""
    rng = random.Random(seed)
    by_layer = defaultdict(list)
    for c in all_candidates:
        by_layer[c[0]].append(c)
    for layer in by_layer:
        rng.shuffle(by_layer[layer])
    total = len(all_candidates)
    quota = {layer: max(count // (5 * len(by_layer)), round(count * len(c) / total)) for layer, c in by_layer.items()}
    return by_layer, quota


def limit_memory():
    """A mutant that makes a test allocate without end fails at 6 GB instead of taking the machine."""
    resource.setrlimit(resource.RLIMIT_AS, (6 << 30, 6 << 30))


def run(cmd, cwd, timeout=None):
    """The command's exit code, or "timeout"; on a timeout its whole process group is killed, so that
    no test program of a hanging mutant lives on."""
    proc = subprocess.Popen(cmd, cwd=cwd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                            start_new_session=True, preexec_fn=limit_memory if timeout else None)
    try:
        return proc.wait(timeout=timeout)
    except subprocess.TimeoutExpired:
        os.killpg(proc.pid, signal.SIGKILL)
        proc.wait()
        return "timeout"


def failing_tests(tree, timeout):
    """The test cases that fail in the whole suite (no stop at the first failure), for the kill map."""
    proc = subprocess.Popen(["ctest", "--preset", "default", "-j2", "--output-on-failure", "-E", "robustness_fresh_seed"],
                            cwd=tree, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            start_new_session=True, preexec_fn=limit_memory)
    try:
        out, _ = proc.communicate(timeout=timeout)
    except subprocess.TimeoutExpired:
        os.killpg(proc.pid, signal.SIGKILL)
        proc.communicate()
        return ["(the suite ran out of time)"]
    names = sorted(set(re.findall(r"^\[  FAILED  \] (\w+\.\w+)", out, re.M)))
    return names or ["(a test program failed without a failed case: crash or time limit)"]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--count", type=int, default=150, help="mutants to run (default 150)")
    parser.add_argument("--seed", type=int, default=None,
                        help="the sample's seed (default: today's date as YYYYMMDD, so that each report is of a "
                             "fresh sample, never the one the tests were last written against)")
    parser.add_argument("--tree", default="build/mutants/tree", help="work tree for the mutants")
    parser.add_argument("--out", default="build/mutants/report.md", help="the report")
    parser.add_argument("--test-timeout", type=int, default=90,
                        help="seconds for the test suite (unmutated it takes about ten); longer counts as killed")
    parser.add_argument("--rev", default="HEAD", help="the commit to mutate (default HEAD)")
    parser.add_argument("--list", action="store_true", help="only show the sample, build nothing")
    parser.add_argument("--recheck", metavar="REPORT.json",
                        help="run again only the mutants that an earlier run (its .json beside the report) "
                             "killed, on the same sample; its survivors are carried over as survivors, since "
                             "tests taken away cannot kill them (a lower bound when tests were also added)")
    parser.add_argument("--survivors", metavar="REPORT.json",
                        help="run again only the mutants that an earlier run survived, on today's code (each found "
                             "by its changed line wherever that line has moved); its killed mutants are carried over "
                             "as killed, so that the tests added since are counted")
    parser.add_argument("--again", metavar="REPORT.json",
                        help="run every mutant of an earlier run again on today's code, killed and survived alike: "
                             "after tests were merged or shortened it shows whether they still kill what they "
                             "killed, and which of the survivors the tests added since kill")
    parser.add_argument("--kill-map", action="store_true",
                        help="for every killed mutant, also list the test cases that fail: a case that alone "
                             "kills a mutant is one a consolidation must keep (slower)")
    args = parser.parse_args()
    earlier_run = args.recheck or args.survivors or args.again
    if args.seed is None and not earlier_run:
        args.seed = int(datetime.date.today().strftime("%Y%m%d"))
    if args.seed is not None:
        print("sample seed %d" % args.seed, flush=True)
    root = os.path.abspath(os.path.join(os.path.dirname(__file__), ".."))
    tree = os.path.abspath(args.tree)
    if args.list:
        by_layer, quota = sample(candidates(root), args.count, args.seed)
        for layer in LAYERS:
            pool = by_layer.get(layer, [])
            print("%-8s %5d candidates, %3d in the sample" % (layer, len(pool), quota.get(layer, 0)))
            for _, rel, number, op, new in pool[-3:]:
                print("    %s:%d %s: %s" % (rel, number, op, new.strip()))
        return

    # A clean copy of HEAD to mutate, configured once; every mutant builds incrementally there.
    if not os.path.isdir(tree):
        os.makedirs(os.path.dirname(tree), exist_ok=True)
        subprocess.run(["git", "worktree", "add", "--detach", tree, "HEAD"], cwd=root, check=True)
    subprocess.run(["git", "checkout", "--detach", "-f", subprocess.check_output(["git", "rev-parse", args.rev], cwd=root, text=True).strip()],
                   cwd=tree, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    # Only the test programs are built, at -O1 without debug information: a mutant's rebuild is what
    # the run spends its time on, and the suite needs neither the program nor the symbols. The standard
    # library checks its subscripts, standing in for the sanitizer build that the test command also
    # runs (a read past an array's end fails there; a sanitizer rebuild per mutant would take hours).
    env_build = ["cmake", "--build", "--preset", "default", "--target"] + TEST_PROGRAMS
    subprocess.run(["cmake", "--preset", "default", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DPLOTTO_BUILD_BENCH=OFF",
                    "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -g0 -DNDEBUG -D_GLIBCXX_ASSERTIONS"], cwd=tree, check=True, stdout=subprocess.DEVNULL)
    if run(env_build, tree) != 0:
        sys.exit("the unmutated tree does not build")
    tests = ["ctest", "--preset", "default", "-j2", "--stop-on-failure", "-E", "robustness_fresh_seed"]
    if run(tests, tree, args.test_timeout) != 0:
        sys.exit("the unmutated tree fails its tests")

    results = []  # (layer, file, line, op, new, outcome, failing cases)
    started = time.time()
    if earlier_run:
        # --recheck runs the earlier run's killed mutants again, --survivors its survivors (the rest
        # are carried over), --again all of them. Every mutant is found again in today's code (the
        # line as it was at the earlier run's commit, nearest to where it was, with the same change),
        # so that this run's results all refer to today's lines.
        earlier = json.load(open(earlier_run))
        args.seed = earlier["seed"]
        current = candidates(tree)
        todo = {layer: [] for layer in LAYERS}
        for layer, rel, number, op, new, verdict, killers in reversed(earlier["results"]):
            was = subprocess.check_output(["git", "show", "%s:%s" % (earlier["rev"], rel)], cwd=root, text=True)
            text = was.split("\n")[number - 1]
            lines = [n for n, line in enumerate(open(os.path.join(tree, rel), encoding="utf-8").read().split("\n"), 1)
                     if line == text]
            same = [c for c in current if c[1] == rel and c[3] == op and c[4] == new and c[2] in lines]
            if verdict == "gone" or not same:  # the line went with the code around it
                results.append((layer, rel, number, op, new, "gone", []))
            elif not args.again and (verdict == "survived") != bool(args.survivors):
                results.append((layer, rel, min(same, key=lambda c: abs(c[2] - number))[2], op, new, verdict, killers))
            else:
                todo[layer].append(min(same, key=lambda c: abs(c[2] - number)))
        quota = {layer: len(todo[layer]) for layer in LAYERS}
        by_layer = todo
    else:
        by_layer, quota = sample(candidates(tree), args.count, args.seed)
    for layer in LAYERS:
        pool = by_layer.get(layer, [])
        made = 0
        while made < quota.get(layer, 0) and pool:
            _, rel, number, op, new = pool.pop()
            path = os.path.join(tree, rel)
            original = open(path, encoding="utf-8").read().split("\n")
            mutated = list(original)
            mutated[number - 1] = new
            open(path, "w", encoding="utf-8").write("\n".join(mutated))
            try:
                if run(env_build, tree) != 0:
                    continue  # not compilable: the next candidate of the layer instead
                outcome = run(tests, tree, args.test_timeout)
                verdict = "killed" if outcome != 0 else "survived"
                killers = failing_tests(tree, args.test_timeout) if verdict == "killed" and args.kill_map else []
                results.append((layer, rel, number, op, new, verdict, killers))
                made += 1
                print("%3d %-8s %s:%d %s" % (len(results), verdict, rel, number, op), flush=True)
            finally:
                open(path, "w", encoding="utf-8").write("\n".join(original))
    run(env_build, tree)

    lines = ["# Mutation check", "",
             "Sample: %d mutants, seed %d, on %s; %.0f minutes%s." % (len(results), args.seed,
             subprocess.check_output(["git", "rev-parse", "--short", "HEAD"], cwd=tree, text=True).strip(),
             (time.time() - started) / 60, "; the survivors of %s carried over, its killed mutants run again"
             % os.path.basename(args.recheck) if args.recheck else "; the killed mutants of %s carried over, its "
             "survivors run again" % os.path.basename(args.survivors) if args.survivors else "; every mutant of %s run "
             "again" % os.path.basename(args.again) if args.again else ""), "",
             "| layer / file | mutants | killed | survived | score |", "|---|---:|---:|---:|---:|"]
    def row(name, rs):
        rs = [r for r in rs if r[5] != "gone"]  # a mutant of code that no longer exists counts for nothing
        k = sum(1 for r in rs if r[5] == "killed")
        return "| %s | %d | %d | %d | %.0f%% |" % (name, len(rs), k, len(rs) - k, 100.0 * k / max(1, len(rs)))
    for layer in LAYERS:
        rs = [r for r in results if r[0] == layer]
        lines.append(row("**%s**" % layer, rs))
        for f in sorted({r[1] for r in rs}):
            lines.append(row(f, [r for r in rs if r[1] == f]))
    lines.append(row("**total**", results))
    lines += ["", "## Survivors", ""]
    def was(r):  # the line as the code has it (a removed statement shows only ";")
        return open(os.path.join(tree, r[1]), encoding="utf-8").read().split("\n")[r[2] - 1].strip()
    lines += ["- `%s:%d` %s: `%s` (was `%s`)" % (r[1], r[2], r[3], r[4].strip(), was(r))
              for r in results if r[5] == "survived"]
    gone = [r for r in results if r[5] == "gone"]
    if gone:
        lines += ["", "## Gone from the code (left out of the counts)", ""]
        lines += ["- `%s:%d` %s: `%s`" % (r[1], r[2], r[3], r[4].strip()) for r in gone]
    if args.kill_map:
        lines += ["", "## Kill map", "", "The test cases that fail for each killed mutant; a mutant with one killer "
                  "is caught by that case alone.", ""]
        lines += ["- `%s:%d` %s: %s" % (r[1], r[2], r[3], ", ".join(r[6])) for r in results if r[5] == "killed"]
        alone = sorted({r[6][0] for r in results if r[5] == "killed" and len(r[6]) == 1})
        lines += ["", "## Cases that alone kill a mutant", ""] + ["- " + name for name in alone]
    os.makedirs(os.path.dirname(os.path.abspath(args.out)), exist_ok=True)
    open(args.out, "w").write("\n".join(lines) + "\n")
    # The same results for a later --recheck.
    json.dump({"seed": args.seed, "rev": subprocess.check_output(["git", "rev-parse", "HEAD"], cwd=tree, text=True).strip(),
               "results": results}, open(os.path.splitext(args.out)[0] + ".json", "w"), indent=0)
    print("\n".join(lines[:12 + 2 * len(LAYERS)]))


if __name__ == "__main__":
    main()
