// SPDX-License-Identifier: GPL-3.0-or-later
// The launcher's part in lessons: the Lessons menu, the commands every screen's Tools menu runs, and
// the moves from step to step, across screens.
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>

#include "graphwin/Dialogs.h"
#include "graphwin/GraphExport.h"
#include "graphwin/Language.h"
#include "launcher/Worksheet.h"
#include "launcher/frmGraphingCalc.h"

namespace {

// Turns what the teacher typed ("Plotto!, Apply Newton's*4") into the step's actions.
std::vector<lesson::Action> parseActions(const QString& text)
{
    std::vector<lesson::Action> actions;
    for (QString part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        part = part.trimmed();
        lesson::Action a{part, 1, {}};
        const int star = part.lastIndexOf(QLatin1Char('*'));
        bool ok = false;
        const int times = star > 0 ? part.mid(star + 1).trimmed().toInt(&ok) : 0;
        if (ok) {
            a.click = part.left(star).trimmed();
            a.times = times;
        }
        if (!a.click.isEmpty())
            actions.push_back(a);
    }
    return actions;
}

}  // namespace

QStringList frmGraphingCalc::exampleLessons()
{
    // Installed beside the program (/usr/bin/plotto -> /usr/share/plotto/lessons), or in the source
    // tree this program was built from.
    QStringList found;
    const QString dirs[] = {QCoreApplication::applicationDirPath() + QStringLiteral("/../share/plotto/lessons"),
#ifdef PLOTTO_EXAMPLES_DIR
                            QStringLiteral(PLOTTO_EXAMPLES_DIR)
#endif
    };
    for (const QString& d : dirs) {
        const QDir dir(d);
        for (const QString& name : dir.entryList({QStringLiteral("*.plotto")}, QDir::Files, QDir::Name))
            found << dir.absoluteFilePath(name);
        if (!found.isEmpty())
            break;
    }
    return found;
}

void frmGraphingCalc::buildLessonMenu()
{
    QMenu* menu = menuBar->addMenu(Plotto::tr("&Lessons"));
    mnuLessons = menu->menuAction();
    mnuOpenLesson = menu->addAction(Plotto::tr("&Open Lesson..."));
    mnuOpenLesson->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    onTriggered(mnuOpenLesson, [this] { chooseLesson(); });
    mnuStartLesson = menu->addAction(Plotto::tr("S&tart the Lesson"));
    onTriggered(mnuStartLesson, [this] { goToStep(0); });
    mnuSaveLesson = menu->addAction(Plotto::tr("&Save Lesson..."));
    mnuSaveLesson->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    onTriggered(mnuSaveLesson, [this] { saveLesson(); });
    mnuExportWorksheet = menu->addAction(Plotto::tr("Export Lesson as &Worksheet..."));
    NAME_AS_MEMBER(mnuExportWorksheet);
    onTriggered(mnuExportWorksheet, [this] { mnuExportWorksheet_Click(); });
    const QStringList examples = exampleLessons();
    if (!examples.isEmpty()) {
        QMenu* shipped = menu->addMenu(Plotto::tr("&Examples"));
        for (const QString& path : examples) {
            QAction* a =
                shipped->addAction(QFileInfo(path).completeBaseName().replace(QLatin1Char('-'), QLatin1Char(' ')));
            onTriggered(a, [this, path] { openLesson(path); });
        }
    }
    GraphScreen::setLessonCommands({
        .add = [this](GraphScreen& screen) { addStep(screen); },
        .save = [this] { saveLesson(); },
        .open = [this] { chooseLesson(); },
        .next = [this] { goToStep(step_ + 1); },
        .previous = [this] { goToStep(step_ - 1); },
        .worksheet = [this] { mnuExportWorksheet_Click(); },
        .place =
            [this] {
                return step_ >= 0 && !lesson_.steps.empty()
                           ? Plotto::tr("Step %1 of %2").arg(step_ + 1).arg(lesson_.steps.size())
                           : QString();
            },
    });
}

void frmGraphingCalc::openLesson(const QString& path)
{
    lesson::Read read = lesson::load(path);
    if (!read.lesson) {
        MsgBox(read.error, Plotto::tr("Open Lesson"));
        return;
    }
    if (read.lesson->version < lesson::kVersion) {  // an older lesson names what it sets in the older way
        for (lesson::Step& step : read.lesson->steps)
            lesson::upgrade(step, screen(*screens::find(step.screen)));
        read.lesson->version = lesson::kVersion;
    }
    // Every step is checked before anything changes: a lesson that cannot be shown whole is refused.
    for (std::size_t i = 0; i < read.lesson->steps.size(); ++i) {
        const lesson::Step& step = read.lesson->steps[i];
        const QString refusal = lesson::check(step, screen(*screens::find(step.screen)));
        if (!refusal.isEmpty()) {
            MsgBox(Plotto::tr("%1: step %2 (%3): %4.").arg(path).arg(i + 1).arg(step.screen, refusal),
                   Plotto::tr("Open Lesson"));
            return;
        }
    }
    lesson_ = *read.lesson;
    step_ = -1;
    goToStep(0);
}

void frmGraphingCalc::goToStep(int index)
{
    if (index < 0 || index >= static_cast<int>(lesson_.steps.size()))
        return;  // before the first step or after the last: nothing to move to
    GraphScreen& target = screen(*screens::find(lesson_.steps[static_cast<std::size_t>(index)].screen));
    if (shown_ == &target) {
        step_ = index;
        GraphScreen::refreshLessonPlaces();
        applyStep(target);
        return;
    }
    pendingStep_ = index;
    if (shown_) {
        pending_ = &target;
        shown_->hide();  // its exec returns, and showScreen shows the target
        return;
    }
    showScreen(target);
}

void frmGraphingCalc::applyStep(GraphScreen& screen)
{
    if (const int error = lesson::open(lesson_.steps[static_cast<std::size_t>(step_)], screen))
        MsgBox(lesson::refusal(step_ + 1, error), screen.windowTitle());
    else
        screen.announceLessonPlace();
}

void frmGraphingCalc::addStep(GraphScreen& screen)
{
    lesson::Step step = lesson::capture(screen);
    const QString text =
        InputBox(Plotto::tr("Buttons to press when this step opens, by their captions, separated by commas "
                            "(a button pressed more than once: Apply Newton's*4). Leave empty for none."),
                 Plotto::tr("Add to the Lesson"), Plotto::tr("Plotto!"));
    step.actions = parseActions(text);
    for (lesson::Action& a : step.actions)  // the captions typed become the buttons' keys
        if (const QString key = lesson::buttonKey(screen, a.click); !key.isEmpty())
            a.click = key;
    if (const QString refusal = lesson::check(step, screen); !refusal.isEmpty()) {
        MsgBox(Plotto::tr("The step was not added: %1.").arg(refusal), Plotto::tr("Add to the Lesson"));
        return;
    }
    lesson_.steps.push_back(std::move(step));
    step_ = static_cast<int>(lesson_.steps.size()) - 1;
    GraphScreen::refreshLessonPlaces();
}

void frmGraphingCalc::chooseLesson()
{
    const QStringList examples = exampleLessons();
    const QString path = FileBox(false, Plotto::tr("Open Lesson"),
                                 examples.isEmpty() ? QDir::homePath() : QFileInfo(examples.front()).absolutePath());
    if (!path.isEmpty())
        openLesson(path);
}

void frmGraphingCalc::saveLesson()
{
    if (lesson_.steps.empty()) {
        MsgBox(Plotto::tr("The lesson has no steps yet: add a screen with Tools, Add This Screen to the Lesson."),
               Plotto::tr("Save Lesson"));
        return;
    }
    const QString path = FileBox(true, Plotto::tr("Save Lesson"), QDir::homePath());
    if (path.isEmpty())
        return;
    if (const QString error = lesson::save(lesson_, path); !error.isEmpty())
        MsgBox(error, Plotto::tr("Save Lesson"));
}

QString frmGraphingCalc::writeWorksheet(const QString& lessonPath, const QString& out, bool blank)
{
    lesson::Read read = lesson::load(lessonPath);
    if (!read.lesson)
        return Plotto::tr("Cannot read the lesson %1: %2").arg(lessonPath, read.error);
    if (read.lesson->version < lesson::kVersion)
        for (lesson::Step& step : read.lesson->steps)
            lesson::upgrade(step, screen(*screens::find(step.screen)));
    const QString title = !read.lesson->title.isEmpty()
                              ? read.lesson->title
                              : QFileInfo(lessonPath).completeBaseName().replace(QLatin1Char('-'), QLatin1Char(' '));
    return worksheet::write(*read.lesson, title, out, blank,
                            [this](const QString& key) -> GraphScreen& { return screen(*screens::find(key)); });
}

void frmGraphingCalc::mnuExportWorksheet_Click()
{
    const QString title = Plotto::tr("Export Lesson as Worksheet");
    if (lesson_.steps.empty()) {
        MsgBox(Plotto::tr("There is no lesson to export: open one with Lessons, Open Lesson, or add a screen with "
                          "Tools, Add This Screen to the Lesson."),
               title);
        return;
    }
    if (worksheetProgram.isEmpty()) {
        MsgBox(Plotto::tr("Worksheets are written by the plotto program, which this run cannot start."), title);
        return;
    }
    const QString out =
        FileBox(true, title, graphexport::lastFolder(), Plotto::tr("PDF document (*.pdf)"), QStringLiteral("pdf"));
    if (out.isEmpty())
        return;
    graphexport::rememberFolder(out);
    const bool blank = YesNoBox(Plotto::tr("Leave the results blank, as boxes for the students to fill in? The "
                                           "answers then go to a second file, %1.")
                                    .arg(QFileInfo(worksheet::answersPath(out)).fileName()),
                                title);
    // The lesson as it stands, saved where the separate run reads it.
    QTemporaryDir dir;
    const QString lessonPath = dir.filePath(QStringLiteral("lesson.plotto"));
    if (const QString error = lesson::save(lesson_, lessonPath); !dir.isValid() || !error.isEmpty()) {
        MsgBox(Plotto::tr("The lesson could not be handed over: %1").arg(error), title);
        return;
    }
    // In the language on show (which --lang may have chosen for this run only).
    QStringList arguments{lessonPath, QStringLiteral("--worksheet"), out, QStringLiteral("--lang"), i18n::current()};
    if (blank)
        arguments << QStringLiteral("--blank");
    QProcess run;
    run.start(worksheetProgram, arguments);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool finished = run.waitForFinished(120000);
    QApplication::restoreOverrideCursor();
    if (!finished || run.exitStatus() != QProcess::NormalExit || run.exitCode() != 0) {
        const QString said = QString::fromLocal8Bit(run.readAllStandardError()).trimmed();
        MsgBox(Plotto::tr("The worksheet was not written: %1")
                   .arg(said.isEmpty() ? run.errorString() : said.section(QLatin1Char('\n'), 0, 0)),
               title);
    }
}
