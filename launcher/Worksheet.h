// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A lesson as a printed worksheet: one PDF with the lesson's title and, for each step, its note, its
// graph (vector shapes, from the screen the step opens) and its numbers (the screen's results as
// lines and its tables as tables), on A4 pages numbered "Page k of n". A blank worksheet leaves every
// number of the results and tables as an empty box for the students to fill in; its answers are the
// same worksheet filled in, written beside it.
#include <functional>

#include <QString>

#include "screens/Lesson.h"

class GraphScreen;

namespace worksheet {

// The answers beside a blank worksheet: "week3.pdf" -> "week3-answers.pdf".
QString answersPath(const QString& path);

// What a step of the worksheet shows, taken from its screen once the step is opened there.
struct StepContent {
    QString heading;  // "Step 2 of 4: Newton's Method"
    QString note;  // the lesson's note, or what the screen shows
    QStringList setting;  // the window and what is drawn
    QStringList results;  // the screen's results, a line each
    QString given;  // the function as the step sets it (never left blank)
    std::vector<std::vector<QStringList>> tables;  // each table's rows of cells (the first: headings)
    QStringList problems;  // what could not be shown, in words
};

// Opens every step on the screen `screenFor` gives for its key (with no dialog shown: anything a step
// would say in a box is written on its page) and writes the worksheet to `path` through a temporary
// file: "" or what went wrong, in words. `title` heads the first page. With `blank`, the numbers are
// boxes, and the answers are written to answersPath(path).
QString write(const lesson::Lesson& lesson, const QString& title, const QString& path, bool blank,
              const std::function<GraphScreen&(const QString& key)>& screenFor);

// A line of results with its numbers left as blanks (U+FFFC, drawn as a box to write in): each number
// written as a result, after '=' or ':' and not itself the label of a list ("1:"). `given` (the
// function and its coefficients, as the step sets them) stays as it is. With `blank` false, the line.
QString blanked(const QString& line, bool blank, const QString& given);

}  // namespace worksheet
