// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The entry of a typed function (Tools › Type..., Ctrl+E): one or two lines of text, a live preview
// of what the program understood (and the exact derivative where the screen uses one), examples to
// pick, and for a text that cannot be taken the reason and its place. OK is refused until every
// line is valid; nothing on the screen changes until OK.
#include <functional>
#include <optional>

#include <QString>
#include <QStringList>
#include <QVector>

class QWidget;

struct TypedEntryLayout {
    QString title;  // the window title
    QStringList fields;  // the caption before each line: "y =", or "dy =" and "dx =", ...
    QStringList initial;  // the text each line starts with
    QVector<QStringList> examples;  // each a text for every line
    QString names;  // the names and operators the lines may use, in words
    // Checks the lines: returns "" and fills `preview` when they can be taken, else the reason.
    std::function<QString(const QStringList& texts, QString& preview)> check;
};

// Shows the entry modally; the lines on OK, nothing on Cancel. With a dialog script set (tests, the
// random walk) the entry is recorded as (title, the fields' captions) and each line is answered from
// the script, a box for each line; no answer at all is Cancel.
std::optional<QStringList> openTypedEntry(QWidget* parent, const TypedEntryLayout& entry);

// The words every entry shows about what may be typed; `variables` names the screen's own letters.
QString typedNamesHelp(const QString& variables, const QString& coefficients);
