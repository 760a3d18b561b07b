// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QFont>
#include <QStringList>
#include <QTimer>

#include "graphwin/Dialogs.h"
#include "graphwin/Language.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/ScreenRegistry.h"

namespace {

// The options that Qt itself takes from the command line (QGuiApplication's and the X11 platform's);
// they are left to Qt, so they must not count as unknown here.
const char* const kQtOptions[][2] = {{"platform", "name"},
                                     {"platformpluginpath", "path"},
                                     {"platformtheme", "name"},
                                     {"plugin", "name"},
                                     {"qwindowgeometry", "geometry"},
                                     {"qwindowicon", "icon"},
                                     {"qwindowtitle", "title"},
                                     {"reverse", nullptr},
                                     {"session", "id"},
                                     {"style", "style"},
                                     {"stylesheet", "file"},
                                     {"widgetcount", nullptr},
                                     {"display", "name"},
                                     {"geometry", "geometry"},
                                     {"title", "title"},
                                     {"name", "name"},
                                     {"visual", "visual"},
                                     {"ncols", "count"},
                                     {"cmap", nullptr},
                                     {"nograb", nullptr},
                                     {"dograb", nullptr},
                                     {"sync", nullptr},
                                     {"qmljsdebugger", "options"},
                                     {"fontengine", "engine"},
                                     {"im", "server"}};

// What the command line asks the program to open once the launcher is up.
struct Opening {
    QString lesson;  // a lesson's path, or ""
    const screens::Entry* screen = nullptr;  // a screen to show, or none
    QString worksheet;  // the lesson written as a worksheet to this PDF, with no window shown, or ""
    bool blank = false;  // the worksheet's results left blank, the answers beside it
    QString language;  // --lang's code, or "" to follow the remembered choice and the desktop
};

// Qt's command-line parser writes its own words (the usage line, the headings, its options) in its
// context; the catalogues carry them, so that --help is whole in the language without Qt's own
// catalogues installed.
[[maybe_unused]] constexpr const char* kParserWords[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Arguments:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help on commandline options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help including Qt specific options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays version information."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
};

// The value of --lang (also -lang, --lang=CODE) among the arguments, or "": read before the options
// are parsed, so that --help and --screens answer in the language.
QString askedLanguage(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        if ((a == QLatin1String("--lang") || a == QLatin1String("-lang")) && i + 1 < argc)
            return QString::fromLocal8Bit(argv[i + 1]);
        if (a.startsWith(QLatin1String("--lang=")) || a.startsWith(QLatin1String("-lang=")))
            return a.section(QLatin1Char('='), 1);
    }
    return {};
}

// Answers --help, --version and --screens, or an unknown option or screen, before any window exists
// (so that they work without a display). Returns the exit status to end with, or -1 to start the
// program with `opening`.
int answerCommandLine(int argc, char* argv[], Opening& opening)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Plotto::tr("Calculus demonstrations for the classroom. %1\n"
                                                "Qt's standard options (-platform, -style, ...) are accepted.")
                                         .arg(screens::summary()));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    //: the name of the command line's argument in `plotto --help`
    parser.addPositionalArgument(Plotto::tr("lesson"), Plotto::tr("A lesson to open (a .plotto file)."),
                                 Plotto::tr("[lesson]"));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption list(QStringLiteral("screens"),
                                  Plotto::tr("Lists the demonstration screens, one a line in teaching order, "
                                             "separated by tabs: key, button, menu entry, classic or addition "
                                             "(an addition opens from More Demonstrations), the entry's Alt letter."));
    parser.addOption(list);
    QStringList keys;
    for (const screens::Entry* e : screens::inTeachingOrder())
        keys << QString::fromLatin1(e->key);
    const QCommandLineOption screen(QStringLiteral("screen"),
                                    Plotto::tr("Opens a screen at the start: %1.").arg(keys.join(QStringLiteral(", "))),
                                    //: the value of --screen in `plotto --help`
                                    Plotto::tr("name"));
    parser.addOption(screen);
    const QCommandLineOption worksheet(QStringLiteral("worksheet"),
                                       Plotto::tr("Writes the lesson as a worksheet to a PDF file, one step a "
                                                  "page, and ends, with no window shown."),
                                       Plotto::tr("file.pdf"));
    parser.addOption(worksheet);
    const QCommandLineOption blank(QStringLiteral("blank"),
                                   Plotto::tr("With --worksheet: leaves the results as boxes to fill in, and "
                                              "writes the answers to a second file (NAME-answers.pdf)."));
    parser.addOption(blank);
    QStringList codes;
    for (const i18n::Language& l : i18n::languages())
        codes << QString::fromLatin1(l.code);
    const QCommandLineOption lang(QStringLiteral("lang"),
                                  Plotto::tr("Shows the program in a language: %1 (English is the default; "
                                             "without this, the language chosen in Tools, Language, else "
                                             "the desktop's).")
                                      .arg(codes.join(QStringLiteral(", "))),
                                  //: the value of --lang in `plotto --help`
                                  Plotto::tr("code"));
    parser.addOption(lang);
    for (const auto& [name, value] : kQtOptions) {
        QCommandLineOption qt(QString::fromLatin1(name), QString(), value ? QString::fromLatin1(value) : QString());
        qt.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(qt);
    }
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    // No application object exists yet to name the program in the usage line.
    const QString usage = parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("plotto"));
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "plotto: %s\n\n%s", qPrintable(parser.errorText()), qPrintable(usage));
        return 2;
    }
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) {
        std::fputs(qPrintable(usage), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::printf("%s %s\n", qPrintable(QCoreApplication::applicationName()),
                    qPrintable(QCoreApplication::applicationVersion()));
        return 0;
    }
    if (parser.isSet(list)) {
        for (const screens::Entry* e : screens::inTeachingOrder()) {
            const QString entry = Plotto::tr(e->entry);
            const qsizetype letter = entry.indexOf(QLatin1Char('&')) + 1;
            //: a screen's kind in `plotto --screens`: one of the seed's eight, or one added since
            const QString kind =
                e->kind == screens::Entry::Kind::Addition ? Plotto::tr("addition") : Plotto::tr("classic");
            std::printf("%s\t%s\t%s\t%s\t%s\n", e->key, qPrintable(Plotto::tr(e->button).remove(QLatin1Char('&'))),
                        qPrintable(QString(entry).remove(QLatin1Char('&'))), qPrintable(kind),
                        qPrintable(letter > 0 ? entry.mid(letter, 1).toLower() : QString()));
        }
        return 0;
    }
    if (parser.positionalArguments().size() > 1) {  // one lesson at a time
        std::fprintf(stderr, "plotto: unexpected argument '%s'\n\n%s", qPrintable(parser.positionalArguments().at(1)),
                     qPrintable(usage));
        return 2;
    }
    if (parser.isSet(screen)) {
        opening.screen = screens::find(parser.value(screen));
        if (!opening.screen) {
            std::fprintf(stderr, "plotto: no screen '%s' (the screens are %s)\n", qPrintable(parser.value(screen)),
                         qPrintable(keys.join(QStringLiteral(", "))));
            return 2;
        }
    }
    if (parser.isSet(lang)) {
        opening.language = i18n::shippedFor(parser.value(lang));
        if (opening.language.isEmpty()) {
            std::fprintf(stderr, "plotto: no language '%s' (the languages are %s)\n", qPrintable(parser.value(lang)),
                         qPrintable(codes.join(QStringLiteral(", "))));
            return 2;
        }
    }
    opening.lesson = parser.positionalArguments().value(0);
    if (parser.isSet(blank) && !parser.isSet(worksheet)) {
        std::fprintf(stderr, "plotto: --blank goes with --worksheet\n\n%s", qPrintable(usage));
        return 2;
    }
    if (parser.isSet(worksheet)) {
        if (opening.lesson.isEmpty()) {
            std::fprintf(stderr, "plotto: --worksheet needs a lesson: plotto LESSON --worksheet OUT.pdf\n");
            return 2;
        }
        opening.worksheet = parser.value(worksheet);
        opening.blank = parser.isSet(blank);
    }
    return -1;
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("plotto"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PLOTTO_VERSION));
    Opening opening;
    {
        // The language first, by the rules the program follows, so that --help and --screens answer
        // in it; a translator needs an application object, this one only for the command line.
        // Named "plotto", as the usage line names the program wherever it was started from.
        char name[] = "plotto";
        char* coreArgv[] = {name, nullptr};
        int coreArgc = 1;
        const QCoreApplication core(coreArgc, coreArgv);
        i18n::install(i18n::choose(askedLanguage(argc, argv), i18n::remembered(), i18n::desktopLanguages()));
        if (const int status = answerCommandLine(argc, argv, opening); status >= 0)
            return status;
    }
    // A worksheet is written without a window: Qt's offscreen platform needs no display.
    if (!opening.worksheet.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Plotto"));
    // One typeface for everything the program shows, menus and message boxes included (Debian's
    // metric-compatible Liberation Serif stands in where Times New Roman is not installed).
    QApplication::setFont(QFont(QStringLiteral("Times New Roman"), 10));
    frmGraphingCalc::worksheetProgram = QCoreApplication::applicationFilePath();
    i18n::install(i18n::choose(opening.language, i18n::remembered(), i18n::desktopLanguages()));
    frmGraphingCalc launcher;
    if (!opening.worksheet.isEmpty()) {
        const QString error = launcher.writeWorksheet(opening.lesson, opening.worksheet, opening.blank);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "plotto: %s\n", qPrintable(error));
            return 1;
        }
        return 0;
    }
    launcher.show();
    // A lesson named on the command line (or opened from the file manager), or a screen asked for by
    // --screen, opens once the launcher is up.
    if (!opening.lesson.isEmpty())
        QTimer::singleShot(0, &launcher,
                           [&launcher, path = opening.lesson] { guarded([&] { launcher.openLesson(path); }); });
    else if (opening.screen)
        QTimer::singleShot(0, &launcher,
                           [&launcher, entry = opening.screen] { guarded([&] { launcher.openScreen(*entry); }); });
    return QApplication::exec();
}
