// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lessons: an ordered list of steps a teacher prepares, each naming a screen, the state of every
// control the teacher can set on it (boxes, ticks, options, scroll bars, the family or typed
// function) and the buttons to press on arrival. A lesson is a JSON document, read and written only
// when the teacher asks; opening a step sets the controls through the same handlers a person's
// typing and clicking reach, so that every rule of the screen applies as if done by hand.
#include <optional>
#include <vector>

#include <QJsonObject>
#include <QString>

class GraphScreen;

namespace lesson {

// The file format's name and the newest version this program reads and writes.
inline constexpr const char* kFormat = "plotto-lesson";
inline constexpr int kVersion = 2;
// The file name extension offered by the dialogs and registered with the desktop.
inline constexpr const char* kExtension = "plotto";

// What a step does on arrival: press a button, or choose a menu entry of the screen (the
// convergence table, say), `times` times.
struct Action {
    QString click;  // a button's object name ("cmdPlotto", "cmdApply")
    int times = 1;
    QString menu;  // or a menu entry's object name ("mnuConvergenceTable")
};

struct Step {
    QString screen;  // "grapher", "animation", "sums", "newton", "slope-field", "tangent", "mvt", "parametric"
    QJsonObject function;  // as GraphScreen::functionState gives it
    // A control's object name ("txtGuess") -> text (a box), true/false (a tick or option), number (a
    // scroll bar).
    QJsonObject controls;
    std::vector<Action> actions;
    QString note{};  // what the teacher says of the step (its worksheet's text), "" for none
};

struct Lesson {
    std::vector<Step> steps;
    int version = kVersion;  // as read; upgrade() brings an older lesson's steps to this version's keys
    QString title{};  // "" for none (a worksheet then takes the file's name)
};

// The key of a screen in a lesson ("sums" for the sums screen), "" for an unknown class.
QString screenKey(const GraphScreen& screen);
// The screens' keys, in the launcher's teaching order.
const std::vector<QString>& screenKeys();

// Brings a step of a first-version lesson to today's keys: its controls named by their spoken names
// and its buttons and menu entries by their captions become their object names on `screen`.
void upgrade(Step& step, GraphScreen& screen);
// The key of the button of `screen` whose caption (without '&') is `caption`, "" when none has it:
// for what a teacher types when adding a step.
QString buttonKey(GraphScreen& screen, const QString& caption);

// The state of `screen` now, as a step without actions.
Step capture(GraphScreen& screen);
// Whether `step` can be opened on `screen` (every control it names exists and takes its value,
// every button it presses exists, the function can be taken): "" or the reason, in words.
QString check(const Step& step, GraphScreen& screen);
// Opens `step` on `screen`, which is shown (activated) already: the function, the ticks and
// options, the boxes in the form's order, the scroll bars, then the buttons. A step comes from a
// file and may hold values for which a screen's handler raises a classic run-time error: the first
// such error stops the step, the controls it set go back to what they were, and its number is
// returned, with no report and the program carrying on; 0 when the step was applied whole.
[[nodiscard]] int apply(const Step& step, GraphScreen& screen);
// Activates `screen` (as showing it does) and applies `step` there, an error of either refused as
// apply() refuses it: how a lesson moves to a step.
[[nodiscard]] int open(const Step& step, GraphScreen& screen);
// The words that refuse step `number` (counted from 1) for the run-time error `error`:
// "Step 4 cannot be shown: its values overflow (run-time error 6)."
QString refusal(int number, int error);

// The lesson as its JSON text, and back: a lesson, or the reason the text is not one (with the
// step it concerns).
QByteArray toJson(const Lesson& lesson);
struct Read {
    std::optional<Lesson> lesson;
    QString error;
};
Read fromJson(const QByteArray& text);

// Writes the file through a temporary file that replaces it at the end (no half-written lesson is
// ever left): "" or the reason it could not. Reads a file: the lesson or the reason.
QString save(const Lesson& lesson, const QString& path);
Read load(const QString& path);

}  // namespace lesson
