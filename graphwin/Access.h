// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the program tells assistive tools, and what it lets a person take out of it: the spoken form
// of captions, the label that names a control, names that tell controls apart, the accessible
// interfaces of the stepper labels and scroll bars, and copies to the clipboard.
#include <vector>

#include <QImage>
#include <QString>

class QLabel;
class QWidget;

// A caption as a screen reader should say it: no mnemonic marks, no trailing "=" or ":".
QString spoken(QString text);

// The label that names a control: the nearest one on its left in the same row, else the nearest one
// above it, in the same parent; nullptr when none is close.
QLabel* labelFor(QWidget* control);

// Makes the accessible names of `controls` unique: a name that repeats gets the title of its frame
// where that tells the controls apart, else the kind of control, else its place in the list.
void makeNamesUnique(const std::vector<QWidget*>& controls);

// The name of a QBColor colour number (0 to 15), as a description says it.
QString colourName(int number);

// Plotto's own accessible interfaces: stepper and other answering labels are buttons that an
// assistive tool can press, scroll bars say what their position means. Installed once.
void installAccessibleInterfaces();

// Puts an image (offered as PNG among other formats) and its description as plain text on the
// clipboard, or plain text alone.
void copyToClipboard(const QImage& image, const QString& text);
void copyToClipboard(const QString& text);
