// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The language the program speaks: the shipped catalogues, how one is chosen (--lang, the remembered
// choice, the desktop's language, English), installing it, and the rules for numbers shown to and
// typed by a person in it.
//
// Every text the program shows has one context, "Plotto": `Plotto::tr("Plot")` in code, and
// `QT_TRANSLATE_NOOP("Plotto", "Plot")` where a table holds the English text and the place that shows
// it translates it (form tables, the screen registry, the families' captions). English texts are the
// source; a text missing from a catalogue shows in English.
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class Plotto {
    Q_DECLARE_TR_FUNCTIONS(Plotto)
};

namespace i18n {

struct Language {
    const char* code;  // "de", "pt_BR"; "en" is the source and has no catalogue
    const char* name;  // the language's name in itself, as its menu entry shows it
};

// The languages the program ships, English first.
const std::vector<Language>& languages();

// The shipped language a locale name stands for ("de_AT.UTF-8" -> "de", "pt" -> "pt_BR"), or "" when
// none does ("C", "ja_JP").
QString shippedFor(const QString& localeName);

// The language to start in: `asked` (--lang) when it names a shipped one, else the remembered choice,
// else the first of the desktop's languages (LANGUAGE, a colon-separated list, then LC_ALL,
// LC_MESSAGES, LANG) that is shipped, else English.
QString choose(const QString& asked, const QString& remembered, const QStringList& desktop);
// The desktop's languages in order of preference, read from the environment.
QStringList desktopLanguages();

// The remembered choice (QSettings "Plotto"/"Plotto", key "language"), "" when none.
QString remembered();
void remember(const QString& code);

// Makes `code` the language of every text shown from now on and of the numbers' decimal separator;
// English (or an unknown code) removes any catalogue. False when the catalogue could not be loaded.
bool install(const QString& code);
// The language in use ("en" until another is installed).
QString current();

// A number as the program writes it (classic text, "1.5", " .25", "-3E+20") shown with the language's
// decimal separator: each point that stands before a digit becomes the separator. English is unchanged.
QString decimals(const QString& classic);
// A number typed in a box, made readable by the classic rules: where the language writes a decimal
// comma, a comma is taken as the decimal point too (a point always is). Typed expressions never pass
// here: in them the comma separates a function's arguments.
QString typedDecimals(const QString& typed);
// A box's text as a lesson keeps it: a lone number written with the language's decimal comma
// ("-1,5", "2,5E-3") gets a point, so that the lesson means the same in every language; anything else
// (an expression such as "max(x, 2)", a number already with a point) is kept as typed.
QString lessonNumber(const QString& typed);

// A sentence funclib wrote in English from one of its templates (funclib/Words.h) shown in the
// language: the template's translation with the same arguments, each argument itself a sentence of
// funclib shown in the language, and a number among them (or a text that is just a number) shown
// with the language's separator. A text made from no template is shown as it is.
QString words(const std::string& english);

}  // namespace i18n
