#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when the program's modules include one another in a circle.

Reads every `#include "..."` of the .h and .cpp files in runtime/, funclib/, graphwin/, screens/
and launcher/. A header and the .cpp of the same base name in the same folder are one module
(graphwin/Dialogs.h and graphwin/Dialogs.cpp are `graphwin/Dialogs`); a .cpp without a header of
its name (graphwin/ScreenView.cpp) is a module of its own. Module A depends on module B when a
file of A includes a file of B. Any circle of such dependencies, direct or through other modules,
is printed with the include lines that make it, and the exit status is 1; otherwise 0.

Usage: include_cycles.py [SOURCE_DIR]   (default: the folder above this script)"""
import os
import re
import sys

FOLDERS = ("runtime", "funclib", "graphwin", "screens", "launcher")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def module_of(path):
    return os.path.splitext(path)[0]


def read_edges(root):
    """{module: {included module: (file, line number, included path)}} for the project's own files."""
    files = []
    for folder in FOLDERS:
        base = os.path.join(root, folder)
        if not os.path.isdir(base):
            continue
        for name in sorted(os.listdir(base)):
            if name.endswith((".h", ".cpp")):
                files.append(f"{folder}/{name}")
    known = set(files)
    edges = {module_of(f): {} for f in files}
    for f in files:
        with open(os.path.join(root, f), encoding="utf-8") as text:
            for number, line in enumerate(text, 1):
                match = INCLUDE.match(line)
                if not match:
                    continue
                # Paths are written from the source folder; a bare name is looked up beside the file.
                target = match.group(1)
                if target not in known:
                    target = os.path.normpath(os.path.join(os.path.dirname(f), target))
                if target not in known:
                    continue
                here, there = module_of(f), module_of(target)
                if here != there:
                    edges[here].setdefault(there, (f, number, match.group(1)))
    return edges


def strong_components(edges):
    """Tarjan's algorithm, without recursion: the modules that reach one another, in groups."""
    index, low, on_stack, stack, groups = {}, {}, set(), [], []
    counter = 0
    for start in sorted(edges):
        if start in index:
            continue
        work = [(start, iter(sorted(edges[start])))]
        index[start] = low[start] = counter
        counter += 1
        stack.append(start)
        on_stack.add(start)
        while work:
            node, children = work[-1]
            advanced = False
            for child in children:
                if child not in index:
                    index[child] = low[child] = counter
                    counter += 1
                    stack.append(child)
                    on_stack.add(child)
                    work.append((child, iter(sorted(edges[child]))))
                    advanced = True
                    break
                if child in on_stack:
                    low[node] = min(low[node], index[child])
            if advanced:
                continue
            work.pop()
            if work:
                low[work[-1][0]] = min(low[work[-1][0]], low[node])
            if low[node] == index[node]:
                group = []
                while True:
                    member = stack.pop()
                    on_stack.discard(member)
                    group.append(member)
                    if member == node:
                        break
                groups.append(sorted(group))
    return groups


def circle_in(group, edges):
    """One shortest circle through the group's first module, as a list of modules ending where it began."""
    members = set(group)
    start = group[0]
    came_from = {start: None}
    frontier = [start]
    while frontier:
        following = []
        for node in frontier:
            for child in sorted(edges[node]):
                if child not in members:
                    continue
                if child == start:
                    path = [node]
                    while came_from[path[-1]] is not None:
                        path.append(came_from[path[-1]])
                    return list(reversed(path)) + [start]
                if child not in came_from:
                    came_from[child] = node
                    following.append(child)
        frontier = following
    return [start]


def main(argv):
    root = argv[1] if len(argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    edges = read_edges(root)
    if not edges:
        print(f"include_cycles: no sources found under {root}", file=sys.stderr)
        return 2
    circles = [group for group in strong_components(edges) if len(group) > 1]
    for group in circles:
        path = circle_in(group, edges)
        print(f"Include circle among {len(group)} modules: {', '.join(group)}")
        for here, there in zip(path, path[1:]):
            f, number, target = edges[here][there]
            print(f"  {here} -> {there}   ({f}:{number} includes \"{target}\")")
    if circles:
        return 1
    print(f"include_cycles: {len(edges)} modules, no circle")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
