// SPDX-License-Identifier: GPL-3.0-or-later
// Choosing, installing and remembering the program's language, and the decimal separator's rules.
#include "graphwin/Language.h"

#include <memory>

#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QTranslator>

namespace i18n {

namespace {

QString& currentCode()
{
    static QString code = QStringLiteral("en");
    return code;
}

std::unique_ptr<QTranslator>& translator()
{
    static std::unique_ptr<QTranslator> t;
    return t;
}

}  // namespace

const std::vector<Language>& languages()
{
    // A new language is one row here and its catalogue translations/plotto_CODE.ts.
    static const std::vector<Language> table = {
        {"en", "English"}, {"es", "Español"}, {"fr", "Français"}, {"de", "Deutsch"}, {"pt_BR", "Português (Brasil)"},
    };
    return table;
}

QString shippedFor(const QString& localeName)
{
    // "de_AT.UTF-8@euro" -> "de_AT"
    QString name = localeName.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    const QString language = name.section(QLatin1Char('_'), 0, 0);
    for (const Language& l : languages())
        if (name == QLatin1String(l.code))
            return name;
    for (const Language& l : languages())
        if (!language.isEmpty() && language == QString::fromLatin1(l.code).section(QLatin1Char('_'), 0, 0))
            return QString::fromLatin1(l.code);
    return {};
}

QString choose(const QString& asked, const QString& remembered, const QStringList& desktop)
{
    for (const QString& candidate : {asked, remembered})
        if (const QString code = shippedFor(candidate); !code.isEmpty())
            return code;
    for (const QString& d : desktop)
        if (const QString code = shippedFor(d); !code.isEmpty())
            return code;
    return QStringLiteral("en");
}

QStringList desktopLanguages()
{
    QStringList list;
    // LANGUAGE is read only where a locale is set, as gettext does: LANG=C means English.
    const QString all = qEnvironmentVariable("LC_ALL"), messages = qEnvironmentVariable("LC_MESSAGES"),
                  lang = qEnvironmentVariable("LANG");
    const QString locale = !all.isEmpty() ? all : !messages.isEmpty() ? messages : lang;
    if (locale != QLatin1String("C") && locale != QLatin1String("POSIX"))
        list << qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (!locale.isEmpty())
        list << locale;
    return list;
}

QString remembered()
{
    return QSettings(QStringLiteral("Plotto"), QStringLiteral("Plotto")).value("language").toString();
}

void remember(const QString& code)
{
    QSettings(QStringLiteral("Plotto"), QStringLiteral("Plotto")).setValue("language", code);
}

bool install(const QString& code)
{
    auto& t = translator();
    if (t) {
        QCoreApplication::removeTranslator(t.get());
        t.reset();
    }
    const QString shipped = shippedFor(code);
    if (shipped.isEmpty() || shipped == QLatin1String("en")) {
        currentCode() = QStringLiteral("en");
        return shipped == QLatin1String("en") || code.isEmpty();
    }
    auto loaded = std::make_unique<QTranslator>();
    // The catalogues are compiled into the program, under :/i18n.
    if (!loaded->load(QStringLiteral(":/i18n/plotto_%1.qm").arg(shipped)))
        return false;
    QCoreApplication::installTranslator(loaded.get());
    t = std::move(loaded);
    currentCode() = shipped;
    return true;
}

QString current() { return currentCode(); }

namespace {

QChar separator()
{
    // The language's own separator, never the system's: English keeps the point wherever it runs.
    if (currentCode() == QLatin1String("en"))
        return QLatin1Char('.');
    const QString point = QLocale(currentCode()).decimalPoint();
    return point.size() == 1 ? point.at(0) : QLatin1Char('.');
}

}  // namespace

QString decimals(const QString& classic)
{
    const QChar sep = separator();
    if (sep == QLatin1Char('.'))
        return classic;
    QString shown = classic;
    for (qsizetype i = 0; i + 1 < shown.size(); ++i)
        if (shown.at(i) == QLatin1Char('.') && shown.at(i + 1).isDigit())
            shown[i] = sep;
    return shown;
}

QString typedDecimals(const QString& typed)
{
    if (separator() != QLatin1Char(','))
        return typed;
    return QString(typed).replace(QLatin1Char(','), QLatin1Char('.'));
}

QString lessonNumber(const QString& typed)
{
    static const QRegularExpression lone(QStringLiteral("^\\s*[-+]?(\\d+,\\d*|,\\d+)([eE][-+]?\\d+)?\\s*$"));
    if (separator() != QLatin1Char(',') || !lone.match(typed).hasMatch())
        return typed;
    return QString(typed).replace(QLatin1Char(','), QLatin1Char('.'));
}

}  // namespace i18n
