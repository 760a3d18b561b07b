// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Message boxes, input boxes and the program's one report of an uncaught run-time error.
// Everything a person does enters the program through `guarded`, which is where an uncaught
// run-time error is reported and the program ended.
#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include <QString>

#include "runtime/RuntimeError.h"

class QObject;

// A script that stands in for the real dialogs (tests): every box shown is recorded as
// (title, prompt), input boxes are answered from `answers` (empty text once it runs out), and the
// number of every run-time error that reaches the report is recorded instead of ending the program.
struct DialogScript {
    std::vector<std::pair<QString, QString>> shown;
    std::deque<QString> answers;
    std::vector<int> errors;
};

void setDialogScript(DialogScript* script);
// The script in force, or null while the real dialogs are shown.
DialogScript* dialogScript();
// With a script set: records a box as (title, prompt) and gives its next answer ("" once they run
// out), as every scripted box that asks for text does.
QString scriptedAnswer(const QString& title, const QString& prompt);

// A modal message box with an OK button only.
void MsgBox(const QString& prompt, const QString& title);

// A modal question with Yes and No (No the default): true for Yes. With a script set, answered by
// its next answer ("yes" for Yes).
bool YesNoBox(const QString& prompt, const QString& title);
// A modal input box; returns the typed text, or "" on Cancel. A negative position centres it.
QString InputBox(const QString& prompt, const QString& title, const QString& defaultText = QString(),
                 double xTwips = -1, double yTwips = -1);

// A modal file dialog for a lesson (*.plotto): the chosen path, or "" on Cancel. With a script set,
// it is recorded as (title, "file") and answered from `answers` like an input box.
QString FileBox(bool saving, const QString& title, const QString& directory = QString());
// The same for other files: `filter` as the file dialog takes it ("Pictures (*.svg *.png)"), and
// `extension` added to a name saved without one ("" adds none).
QString FileBox(bool saving, const QString& title, const QString& directory, const QString& filter,
                const QString& extension);

// Shows "Run-time error 'N':", a blank line and the message, then ends the program (with a script
// set, records the box and the number and returns).
void reportRuntimeError(const rt::RuntimeError& error);

// While one is alive, a run-time error that would reach the report (or be said in words by an added
// screen) is held instead: the first one's number is kept, nothing is shown and the program carries
// on. Applying a lesson's step uses it, so that a step a colleague's file got wrong is refused in
// words; a person's own clicks outside it keep their classic report. Holds nest: the innermost holds.
class RuntimeErrorHold {
public:
    RuntimeErrorHold();
    ~RuntimeErrorHold();
    RuntimeErrorHold(const RuntimeErrorHold&) = delete;
    RuntimeErrorHold& operator=(const RuntimeErrorHold&) = delete;
    // The number of the first error held, 0 while none was.
    int first() const { return first_; }
    void hold(int number);

private:
    RuntimeErrorHold* outer_;
    int first_ = 0;
};

// The window property by which a screen that is an addition to the classic eight asks that a
// run-time error of a person's action on it be said in words, the program carrying on.
inline constexpr const char* kErrorsInWords = "plottoErrorsInWords";
// The run-time error of an action that came from `source` (a control or a menu entry): said in words
// when its window asks for that, else reported and the program ended as reportRuntimeError does.
void reportRuntimeErrorFrom(const QObject* source, const rt::RuntimeError& error);

// Ends the program at once: every window closes and the event loops return.
void endProgram(int exitCode);

// Replaces what endProgram does (tests); nullptr restores the real ending.
void setProgramEndHandler(std::function<void(int)> handler);

// Runs after each user action has ended, nested ones included (the screens refresh what they tell
// a screen reader there). Several can be registered; each returns its registration for removal.
int addActionEndedHook(std::function<void()> hook);
void removeActionEndedHook(int id);

namespace detail {
// Marks a user action; its end runs the hooks.
struct ActionScope {
    ActionScope();
    ~ActionScope();
};
}  // namespace detail

// The one entry point of every user action: runs the handler and reports an uncaught run-time
// error. Run-time errors never travel through the toolkit's own frames.
template <class Handler>
void guarded(Handler&& handler)
{
    detail::ActionScope scope;
    try {
        handler();
    } catch (const rt::RuntimeError& error) {
        reportRuntimeError(error);
    }
}

// The same for an action that came from `source`, whose window decides how its error is told.
template <class Handler>
void guarded(const QObject* source, Handler&& handler)
{
    detail::ActionScope scope;
    try {
        handler();
    } catch (const rt::RuntimeError& error) {
        reportRuntimeErrorFrom(source, error);
    }
}
