#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks Plotto through the desktop accessibility interface (AT-SPI), as a screen reader sees it.

Run by scripts/accessibility.sh inside a private X server and session bus. Opens every screen from
the launcher with the keyboard, performs its main action, and checks that the graph's description
names the function and the results, that the result labels read what the screen shows, that every
focusable control has a name of its own, and that Tab leaves every grid. It prints what a screen
reader would read (the transcript) and exits non-zero on the first failed check.
"""
import os
import subprocess
import sys
import time

import pyatspi

failures = []


def check(ok, what):
    print(("  ok    " if ok else "  FAIL  ") + what)
    if not ok:
        failures.append(what)


def key(*keys, pause=0.4):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)
    time.sleep(pause)


def walk(node, depth=0):
    yield node, depth
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None:
            yield from walk(child, depth + 1)


def app():
    for _ in range(50):
        for a in pyatspi.Registry.getDesktop(0):
            if a is not None and a.name == "Plotto":
                return a
        time.sleep(0.2)
    sys.exit("Plotto did not appear on the accessibility bus")


LAUNCHER = "Plotto!   Calculus Calculator"


def window(title):
    """The showing window of that title; with no title, the showing window that is not the launcher."""
    for _ in range(50):
        for w in app():
            if w is not None and w.getState().contains(pyatspi.STATE_SHOWING) and (
                    w.name == title if title else w.name != LAUNCHER):
                return w
        time.sleep(0.2)
    sys.exit("no window %s" % (title or "besides the launcher"))


def find(win, name, role=None):
    roles = role if isinstance(role, tuple) else (role,)
    for node, _ in walk(win):
        if node.name == name and (role is None or node.getRole() in roles):
            return node
    sys.exit("no control named %r in %s" % (name, win.name))


def press(win, name):
    """Moves the focus to a control by its accessible name and presses Space, as a keyboard user."""
    find(win, name, (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON)).queryComponent().grabFocus()
    time.sleep(0.2)
    key("space")


def type_into(win, name, text):
    box = find(win, name, pyatspi.ROLE_TEXT)
    box.queryComponent().grabFocus()
    key("ctrl+a")
    subprocess.run(["xdotool", "type", "--delay", "30", "--", text], check=True)
    time.sleep(0.4)


def labels(win):
    return [n.name for n, _ in walk(win) if n.getRole() == pyatspi.ROLE_LABEL and n.name]


def graph(win):
    return find(win, "Graph")


def check_names_and_grids(win):
    names = {}
    for node, _ in walk(win):
        state = node.getState()
        if not (state.contains(pyatspi.STATE_FOCUSABLE) and state.contains(pyatspi.STATE_SHOWING)):
            continue
        if node.getRole() in (pyatspi.ROLE_TABLE_CELL, pyatspi.ROLE_TABLE_COLUMN_HEADER, pyatspi.ROLE_MENU_ITEM,
                              pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_BAR):
            continue
        names.setdefault(node.name, []).append(node.getRoleName())
    nameless = names.get("", [])
    check(not nameless, "every focusable control has a name (nameless: %s)" % nameless)
    repeated = {n: r for n, r in names.items() if n and len(r) > 1}
    check(not repeated, "no two focusable controls share a name (repeated: %s)" % repeated)
    for node, _ in walk(win):
        if node.getRole() == pyatspi.ROLE_TABLE and node.getState().contains(pyatspi.STATE_SHOWING):
            # Tab until the grid has the focus (a keyboard user's way in), then once more.
            for _ in range(80):
                if node.getState().contains(pyatspi.STATE_FOCUSED):
                    break
                key("Tab", pause=0.15)
            check(node.getState().contains(pyatspi.STATE_FOCUSED), "Tab reaches the grid %r" % node.name)
            key("Tab")
            focused = [(n.getRoleName(), n.name) for n, _ in walk(win) if n.getState().contains(pyatspi.STATE_FOCUSED)]
            check(not node.getState().contains(pyatspi.STATE_FOCUSED),
                  "Tab leaves the grid %r (focus now on %s)" % (node.name, focused))
            headers = [node.queryTable().getColumnDescription(c) for c in range(node.queryTable().nColumns)]
            check(all(headers), "the grid's columns have headers: %s" % headers)


def read_screen(win, transcript):
    if transcript:
        print("  --- what a screen reader reads ---")
        for node, depth in walk(win):
            if node.getRole() in (pyatspi.ROLE_LABEL, pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TEXT,
                                  pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_SCROLL_BAR):
                extra = ""
                if node.getRole() == pyatspi.ROLE_TEXT:
                    t = node.queryText()
                    extra = " = " + t.getText(0, t.characterCount)
                elif node.getRole() == pyatspi.ROLE_PUSH_BUTTON and node.queryAction().nActions > 1:
                    try:
                        extra = " value " + node.queryValue().currentValue.__str__()
                    except NotImplementedError:
                        pass
                print("    %s %s%s" % (node.getRoleName(), node.name, extra))
        print("    graph: " + graph(win).description.replace("\n", "\n           "))


def screen(button, title, act, expect, transcript=False, menu_letter=None):
    launcher = window(LAUNCHER)
    if menu_letter:  # an added screen: its entry in More Demonstrations, by the keyboard
        launcher.queryComponent().grabFocus()
        time.sleep(0.2)
        key("alt+d")
        key(menu_letter)
    else:
        find(launcher, button, pyatspi.ROLE_PUSH_BUTTON).queryComponent().grabFocus()
        time.sleep(0.2)
        key("Return")  # Enter presses the focused launcher button
    win = window(title)
    print("%s:" % win.name)
    checked.add(button)
    act(win)
    time.sleep(0.5)
    description = graph(win).description
    shown = labels(win)
    for text in expect(win):
        check(text in description, "the description names %r" % text)
    for text in [t for t in shown if t.startswith(RESULT_PREFIXES)]:
        check(text.strip() in description, "result label %r is read and described" % text)
    check_names_and_grids(win)
    read_screen(win, transcript)
    key("Escape")


checked = set()  # the launcher buttons whose screens were checked
RESULT_PREFIXES = ("= ", "EndPt", "y = ", "slope = ", "Slope =", "x = ", "( ")


def sums(win):
    for method in ("Left Endpoint", "Right Endpoint", "Midpoint", "Trapezoidal", "Simpson's"):
        press(win, method)
    type_into(win, "Number of Partitions", "4")
    press(win, "Graph Partitions")


def field(win):
    find(win, "Graph").queryComponent().grabFocus()
    time.sleep(0.2)
    key("Right", "Right", "Up", "Return")


def mvt(win):
    type_into(win, "Left endpt", "0")
    type_into(win, "Right endpt", "2")
    press(win, "Apply to Graph")
    press(win, "Find c")


def newton(win):
    type_into(win, "Guess", "3")
    press(win, "Apply Newton's")
    press(win, "Apply Newton's")


def grapher(win):
    a = find(win, "raise or lower A")
    action = a.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    print("    stepper actions: %s" % names)
    check("Increase" in names and "Decrease" in names, "the stepper label offers increase and decrease")
    action.doAction(names.index("Increase"))
    time.sleep(0.3)
    check(find(win, "A", pyatspi.ROLE_TEXT).queryText().getText(0, -1) == "2", "the stepper raised A to 2")
    press(win, "Plotto!")
    key("ctrl+c")  # the focus is on the plot button: the graph and its description are copied
    clip = ["xclip", "-selection", "clipboard", "-o"]
    targets = subprocess.run(clip + ["-t", "TARGETS"], capture_output=True, text=True, timeout=10).stdout.split()
    check("image/png" in targets, "Ctrl+C offers the graph as image/png (targets: %s)" % " ".join(targets))
    text = subprocess.run(clip + ["-t", "UTF8_STRING"], capture_output=True, text=True, timeout=10).stdout
    check("y = A * (Bx - C)^2 + D with A = 2" in text, "Ctrl+C offers the description as text: %r" % text[:120])
    walk_along(win)


def said(win):
    """What the walk along a curve said last: the line after the title in the graph's description."""
    lines = graph(win).description.split("\n")
    return lines[1] if len(lines) > 1 else ""


def walk_along(win):
    """Walks along y = x^2 with the arrow keys, then finds the nearest root of x^2 - 4 from near 3."""
    type_into(win, "A", "1")
    press(win, "Erase Graph")
    press(win, "Plotto!")
    graph(win).queryComponent().grabFocus()
    time.sleep(0.3)
    last = None
    for step in range(4):
        key("Right", pause=0.3)
        words = said(win)
        print("    walk: " + words)
        try:
            x, y = [float(part.split("= ")[1]) for part in words.split(", ")[:2]]
        except (IndexError, ValueError):
            check(False, "a step along y = x^2 is said as 'x = .., y = ..': %r" % words)
            return
        check(abs(y - x * x) <= 0.01 + 0.02 * abs(x) and (last is None or x > last),
              "step %d along y = x^2 is announced: %r" % (step + 1, words))
        last = x
    key("shift+ctrl+h")
    print("    trace: " + said(win))
    check(said(win).startswith(("Playing ", "No sound device")), "the audio trace answers: %r" % said(win))
    type_into(win, "D", "-4")
    press(win, "Plotto!")
    graph(win).queryComponent().grabFocus()
    time.sleep(0.3)
    key("ctrl+Right", pause=0.2)
    while True:
        key("Right", pause=0.05)
        words = said(win)
        if not words.startswith("x = ") or float(words.split(", ")[0][4:]) >= 3:
            break
    print("    walk: " + words)
    key("n")
    print("    nearest: " + said(win))
    check(said(win) == "Root at x = 2, y = 0", "from near 3 the nearest root of x^2 - 4 is announced: %r" % said(win))


def lesson_place():
    """Opens the first example lesson from the launcher by the keyboard: the place of its step is a label
    of the window's tree, and moving to the next step is said."""
    launcher = window(LAUNCHER)
    launcher.queryComponent().grabFocus()
    time.sleep(0.2)
    key("alt+l")
    key("e")
    key("Return", pause=1.0)
    win = window(None)
    print("%s (a lesson):" % win.name)
    places = [n.name for n, _ in walk(win) if n.getRole() == pyatspi.ROLE_LABEL and n.name.startswith("Step ")]
    check(len(places) == 1 and places[0].startswith("Step 1 of "), "the lesson's place is in the tree: %s" % places)
    key("Next", pause=1.0)
    places = [n.name for n, _ in walk(win) if n.getRole() == pyatspi.ROLE_LABEL and n.name.startswith("Step ")]
    check(len(places) == 1 and places[0].startswith("Step 2 of "), "the next step's place is read: %s" % places)
    check("Step 2 of " in graph(win).description, "the step's place is said when it opens")
    key("Escape")


def main():
    app()
    screen("Graph Classes of Functions", "Graphing Classes of Functions", grapher,
           lambda w: ["y = A * (Bx - C)^2 + D with A = 1, B = 1, C = 0, D = -4", "Drawn:", "Root at x = 2, y = 0"])
    screen("Riemann Sums + Others", "Riemann and Other Sums", sums,
           lambda w: ["y = Ax^2 + Bx + C", "with 4 partitions", "Left Endpoint (ticked): = "], transcript=True)
    screen("Newton's Method", "Newton's Method and Derivatives", newton, lambda w: ["Guesses: 1: 3; 2: "])
    screen("Slope Fields", "Slope Fields", field, lambda w: ["dy = Ax + By + C", "EndPt ("], transcript=True)
    screen("Tangent Line Problem", "The Tangent Line Problem", lambda w: press(w, "Apply to graph"),
           lambda w: ["Secant through ( 1, 1) to ( 2, 4): y = 3x + -2"])
    screen("The Mean Value Theorem", "The Mean Value Theorem", mvt, lambda w: ["on [0, 2]", "Found: c = "])
    screen("Parametric Graphing", "Parametric Equation graphing", lambda w: press(w, "Plotto!"),
           lambda w: ["Parametric curve", "Trace at t = "])
    screen("Animate Graphs", "Animate Classes of Functions", lambda w: press(w, "Animate It!"),
           lambda w: ["Animating A of", "Frame value"])
    # Every other screen of the program's list gets the checks every screen passes.
    listed = subprocess.run([os.environ.get("PLOTTO", "plotto"), "--screens"], capture_output=True, text=True,
                            check=True, timeout=30).stdout.splitlines()
    for key_name, button, entry, kind, letter in [line.split("\t") for line in listed]:
        if button not in checked:
            screen(button, None, lambda w: None, lambda w: [], menu_letter=letter if kind == "addition" else None)
    check(len(checked) == len(listed), "every screen of `plotto --screens` was checked (%d of %d)"
          % (len(checked), len(listed)))
    lesson_place()
    if failures:
        print("%d accessibility check(s) failed" % len(failures))
        sys.exit(1)
    print("accessibility: every check passed")


if __name__ == "__main__":
    main()
