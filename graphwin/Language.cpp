// SPDX-License-Identifier: GPL-3.0-or-later
// Choosing, installing and remembering the program's language, and the decimal separator's rules.
#include "graphwin/Language.h"

#include <memory>

#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QTranslator>

#include "funclib/Words.h"

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

namespace {

// One of funclib's templates, as a pattern that finds its arguments in a text made from it.
struct Template {
    const char* source;
    QRegularExpression pattern;
    std::vector<int> argument;  // the argument number (0-based) each captured group holds
};

const std::vector<Template>& templates()
{
    static const std::vector<Template> all = [] {
        std::vector<Template> out;
        static const QRegularExpression number(QStringLiteral("%([1-9])"));
        for (const char* source : FuncGlobals::words::templates()) {
            const QString text = QString::fromUtf8(source);
            Template t{source, {}, {}};
            QString pattern = QStringLiteral("^");
            qsizetype from = 0;
            std::vector<int> groupOf(9, 0);
            for (auto m = number.globalMatch(text); m.hasNext();) {
                const auto found = m.next();
                pattern += QRegularExpression::escape(text.mid(from, found.capturedStart() - from));
                const int n = found.captured(1).toInt() - 1;
                if (groupOf[n] != 0) {  // the same argument again: the same text again
                    pattern += QStringLiteral("\\%1").arg(groupOf[n]);
                } else {
                    t.argument.push_back(n);
                    groupOf[n] = static_cast<int>(t.argument.size());
                    pattern += QStringLiteral("(.+?)");
                }
                from = found.capturedEnd();
            }
            pattern += QRegularExpression::escape(text.mid(from)) + QStringLiteral("$");
            t.pattern.setPattern(pattern);
            out.push_back(std::move(t));
        }
        return out;
    }();
    return all;
}

bool isNumber(const QString& s)
{
    static const QRegularExpression number(QStringLiteral("^-?(\\d+\\.?\\d*|\\.\\d+)([eE][-+]?\\d+)?$"));
    return number.match(s).hasMatch();
}

}  // namespace

QString words(const std::string& english)
{
    const QString text = QString::fromStdString(english);
    if (currentCode() == QLatin1String("en") || text.isEmpty())
        return text;
    if (isNumber(text))
        return decimals(text);
    for (const Template& t : templates()) {
        const QRegularExpressionMatch m = t.pattern.match(text);
        if (!m.hasMatch())
            continue;
        QStringList args(9);
        for (std::size_t g = 0; g < t.argument.size(); ++g) {
            const QString arg = m.captured(static_cast<int>(g) + 1);
            args[t.argument[g]] = isNumber(arg) ? decimals(arg) : words(arg.toStdString());
        }
        // Filled in one pass, so that a % sign inside an argument stays as it is.
        const QString translated = QCoreApplication::translate("Plotto", t.source);
        QString out;
        for (qsizetype i = 0; i < translated.size(); ++i) {
            const QChar c = translated.at(i);
            if (c == QLatin1Char('%') && i + 1 < translated.size() && translated.at(i + 1) >= QLatin1Char('1') &&
                translated.at(i + 1) <= QLatin1Char('9')) {
                out += args.at(translated.at(++i).unicode() - '1');
            } else {
                out += c;
            }
        }
        return out;
    }
    return text;
}

}  // namespace i18n
