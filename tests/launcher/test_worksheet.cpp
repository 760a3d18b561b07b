// SPDX-License-Identifier: GPL-3.0-or-later
// Lessons as worksheets: the program run from the command line with no display (its pages, its
// blanks and answers, what it says of files it cannot read or write), and the menu entry that runs it.
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "graphwin/Dialogs.h"
#include "launcher/Worksheet.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/frmRiemann.h"
#include "tests/Pictures.h"
#include "tests/screens/ScreenFixture.h"

namespace {

const QString kBox = QString(QChar(0xFFFC));

struct Outcome {
    int status;
    QString out, err;
};

// The program itself, with no display: DISPLAY and WAYLAND_DISPLAY unset and no platform chosen.
Outcome plotto(const QStringList& arguments)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(PLOTTO_BINARY), arguments);
    p.waitForFinished(120000);
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}

QString tool(const char* name, const QStringList& arguments)
{
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
    return path.isEmpty() ? QString() : toolOutput(path, arguments);
}

int pages(const QString& pdf)
{
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(tool("pdfinfo", {pdf}));
    return m.hasMatch() ? m.captured(1).toInt() : -1;
}

QString example(const char* name) { return QStringLiteral(PLOTTO_SOURCE_DIR "/examples/") + QLatin1String(name); }

}  // namespace

// plotto LESSON --worksheet OUT.pdf with no display: a page a step (the Newton lesson's four), its
// numbers as text; --blank leaves them out and writes them to the answers beside it.
TEST(Worksheet, WrittenFromTheCommandLineWithoutADisplay)
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("newton.pdf"));
    const QString newton = example("newtons-method.plotto");
    const Outcome full = plotto({newton, QStringLiteral("--worksheet"), out});
    ASSERT_EQ(full.status, 0) << full.err.toStdString();
    if (tool("pdfinfo", {out}).isEmpty())
        GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
    const QString text = tool("pdftotext", {out, QStringLiteral("-")});
    // The third step applies Newton's method to x^3 - 2x - 5 from 2 three times: a page's setting, its
    // results and its table of guesses.
    for (const char* seen :
         {"Step 3 of 4", "Page 4 of 4", "Window: x from", "Guesses: 1: 2; 2: 2.1; 3: 2.09456812110419", "Guess #"})
        EXPECT_TRUE(text.contains(QLatin1String(seen))) << seen;
    // Each page holds its own step: the first under the lesson's title, the others under the title
    // written small at the right.
    for (int page = 1; page <= 4; ++page) {
        const QString number = QString::number(page);
        const QStringList lines = tool("pdftotext", {"-f", number, "-l", number, "-layout", out, "-"})
                                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        ASSERT_GE(lines.size(), 2) << page;
        EXPECT_TRUE(lines[0].trimmed().startsWith(QLatin1String("Newton's method on x"))) << page;
        EXPECT_EQ(lines[0].startsWith(QLatin1Char('N')), page == 1) << page << ": the title's place";
        EXPECT_TRUE(lines[1].startsWith(QStringLiteral("Step %1 of 4").arg(page))) << lines[1].toStdString();
    }

    const QString sheet = dir.filePath(QStringLiteral("students.pdf"));
    const Outcome blank = plotto({newton, QStringLiteral("--worksheet"), sheet, QStringLiteral("--blank")});
    ASSERT_EQ(blank.status, 0) << blank.err.toStdString();
    const QString students = tool("pdftotext", {sheet, QStringLiteral("-")});
    const QString answersPdf = dir.filePath(QStringLiteral("students-answers.pdf"));
    const QString answers = tool("pdftotext", {answersPdf, QStringLiteral("-")});
    EXPECT_FALSE(students.contains(QStringLiteral("2.09456812110419")));
    EXPECT_TRUE(students.contains(QStringLiteral("x^3 - 2*x - 5"))) << "the function stays";
    EXPECT_TRUE(answers.contains(QStringLiteral("2.09456812110419")));
    EXPECT_EQ(pages(sheet), pages(answersPdf));

    // What the students get, page by page side by side: the title, each step's graph, the lines with
    // their boxes to fill in and the table of guesses (poppler draws the pages).
    if (const QString why = pictures::whyNotComparable(); !why.isEmpty())
        GTEST_SKIP() << why.toStdString();
    tool("pdftoppm", {"-r", "40", "-png", sheet, dir.filePath(QStringLiteral("page"))});
    QImage pages(4 * 331, 468, QImage::Format_RGB32);
    pages.fill(Qt::gray);
    QPainter painter(&pages);
    for (int page = 1; page <= 4; ++page)
        painter.drawImage((page - 1) * 331, 0, QImage(dir.filePath(QStringLiteral("page-%1.png").arg(page))));
    painter.end();
    QProcess version;
    version.setProcessChannelMode(QProcess::MergedChannels);
    version.start(QStandardPaths::findExecutable(QStringLiteral("pdftoppm")), {QStringLiteral("-v")});
    version.waitForFinished(30000);
    const QString poppler = QString::fromUtf8(version.readAll()).section(QLatin1Char('\n'), 0, 0);
    pictures::expectPicture(pages, QStringLiteral("worksheet-blank"), {{QStringLiteral("poppler"), poppler}});
}

// What goes wrong is said, with a status a script can test: 1 for a file, 2 for the command line.
TEST(Worksheet, WhatGoesWrongIsSaidWithItsStatus)
{
    QTemporaryDir dir;
    QFile broken(dir.filePath(QStringLiteral("broken.plotto")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{\"format\": \"plotto-lesson\", \"version\": 2, \"steps\": [");
    broken.close();
    const QString out = dir.filePath(QStringLiteral("w.pdf")), worksheet = QStringLiteral("--worksheet");
    const QString newton = example("newtons-method.plotto");
    // clang-format off
    const struct { const char* name; QStringList arguments; int status; const char* says; } cases[] = {
        {"no such lesson", {dir.filePath(QStringLiteral("none.plotto")), worksheet, out}, 1, "Cannot read the lesson"},
        {"not a lesson", {broken.fileName(), worksheet, out}, 1, "This is not a lesson"},
        {"no folder to write in", {newton, worksheet, dir.filePath(QStringLiteral("no/w.pdf"))}, 1, "Could not write"},
        {"no lesson", {worksheet, out}, 2, "needs a lesson"},
        {"blank alone", {newton, QStringLiteral("--blank")}, 2, "--blank goes with"}};
    // clang-format on
    for (const auto& c : cases) {
        const Outcome r = plotto(c.arguments);
        EXPECT_EQ(r.status, c.status) << c.name;
        EXPECT_TRUE(r.err.contains(QLatin1String(c.says))) << c.name << ": " << r.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(out)) << "nothing is left under the name";
}

// The menu entry hands the open lesson to a separate run of the program, which leaves the screens on
// show as they are; without a program to run, or a lesson, it says so.
TEST(Worksheet, TheMenuEntryWritesTheOpenLesson)
{
    ScriptedDialogs script;
    frmGraphingCalc launcher;
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("sheet.pdf"));
    script.answers = {out, QStringLiteral("yes")};
    frmGraphingCalc::worksheetProgram = QStringLiteral(PLOTTO_BINARY);
    launcher.mnuExportWorksheet_Click();  // no lesson yet
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_TRUE(script.shown[0].second.contains(QStringLiteral("no lesson"))) << script.shown[0].second.toStdString();

    // On the lesson's first screen, from its Tools menu, as a teacher would.
    frmRiemann& sums = launcher.riemannScreen();
    QString before, after;
    whileShown(sums, [&] {
        before = sums.txtParts->text() + sums.lblLeftE->text();
        script.shown.clear();
        sums.mnuExportWorksheet->trigger();
        after = sums.txtParts->text() + sums.lblLeftE->text();
    });
    launcher.openLesson(example("the-definite-integral.plotto"));
    EXPECT_TRUE(QFile::exists(out) && QFile::exists(dir.filePath(QStringLiteral("sheet-answers.pdf"))));
    EXPECT_FALSE(before.isEmpty());
    EXPECT_EQ(after, before) << "the screen on show keeps what it holds";
    ASSERT_EQ(script.shown.size(), 2u) << "the file and the question, and no message";

    frmGraphingCalc::worksheetProgram.clear();
    script.shown.clear();
    launcher.mnuExportWorksheet_Click();
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_TRUE(script.shown[0].second.contains(QStringLiteral("cannot start")));
}
