// SPDX-License-Identifier: GPL-3.0-or-later
// What the program does beyond the classic handlers (the description, Ctrl+C, the spoken scroll
// bars, the walk and the trace, lessons, the convergence tables, the typed-function entry,
// projector mode, export and printing) never ends it with a classic run-time error, whatever the
// boxes hold: every box of every screen is filled with a text the classic reading refuses or
// overflows, on a family and on a typed function, and each of those paths is run.
#include <functional>
#include <memory>

#include <QTemporaryDir>

#include "screens/ConvergenceWindow.h"
#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"

#include "ScreenFixture.h"

namespace {

using ScreenRow = screens::Entry;

// Texts the classic reading refuses (Val reads them as 0) or overflows.
const QString hostileTexts[] = {QStringLiteral("1e400"),  QStringLiteral("999999999999999999999999"),
                                QStringLiteral("-1e308"), QString(400, QLatin1Char('9')),
                                QStringLiteral("abc"),    QString()};

struct Path {
    const char* name;
    std::function<void(GraphScreen&, const ScreenRow&)> run;
};

const std::vector<Path>& additionPaths()
{
    static const std::vector<Path> paths{
        {"description, Ctrl+C, spoken scroll bars, projector mode on and off",
         [](GraphScreen& s, const ScreenRow&) {
             s.refreshDescription();
             EXPECT_TRUE(s.describe().contains(s.windowTitle()));
             s.copyGraph();
             for (ScrollBar* bar : s.surface->findChildren<ScrollBar*>())
                 (void)bar->meaning();
             s.mnuProjector_Click();
             s.mnuProjector_Click();
         }},
        {"walk and trace",
         [](GraphScreen& s, const ScreenRow&) {
             for (int key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_N, Qt::Key_End, Qt::Key_Up, Qt::Key_Down})
                 s.exploreKey(key, Qt::ShiftModifier);
             (void)s.tracePoints();
             (void)s.traceSamples();
             s.mnuHearCurve_Click();
         }},
        {"lesson step captured",
         [](GraphScreen& s, const ScreenRow&) { EXPECT_FALSE(lesson::toJson({{lesson::capture(s)}}).isEmpty()); }},
        {"graph exported and printed, convergence table computed and exported",
         [](GraphScreen& s, const ScreenRow& row) {
             const QTemporaryDir dir;
             graphexport::Options small;
             small.dpi = graphexport::kMinDpi;
             for (const char* name : {"g.svg", "g.pdf", "g.png"})
                 EXPECT_EQ(s.exportGraph(dir.filePath(QLatin1String(name)), small), QString()) << name;
             s.mnuPrintPreview_Click();
             if (ConvergenceWindow* window = row.convergence ? row.convergence(s) : nullptr) {
                 window->recompute();
                 EXPECT_FALSE(window->summary()->text().isEmpty());
                 EXPECT_EQ(window->exportTable(dir.filePath(QStringLiteral("t.csv"))), QString());
             }
         }},
        {"typed function entered",
         [](GraphScreen& s, const ScreenRow& row) { EXPECT_EQ(row.typeExample(s), QString()); }},
    };
    return paths;
}

}  // namespace

TEST(Additions, NoPathBeyondTheClassicHandlersRaisesAClassicErrorWhateverTheBoxesHold)
{
    for (const ScreenRow& row : screens::all())  // with its typed example and its convergence table
        for (bool typed : {false, true})
            for (const QString& text : hostileTexts) {
                ScriptedDialogs script;
                const std::unique_ptr<GraphScreen> s = row.make();
                s->Form_Activate();
                ASSERT_TRUE(!typed || row.typeExample(*s).isEmpty()) << row.key;
                s->cmdPlotto->click();  // something drawn, with the defaults
                ASSERT_TRUE(script.errors.empty()) << row.key;
                // Every box of the screen and of its convergence window, without the boxes' own handlers
                // (whose classic errors belong to a person's typing).
                for (QLineEdit* box : s->findChildren<QLineEdit*>())
                    setQuietly(box, text);
                for (const Path& path : additionPaths()) {
                    const std::string where = std::string(row.key) + (typed ? ", typed, " : ", family, ") + path.name +
                                              ", every box holding \"" + text.left(32).toStdString() + '"';
                    try {
                        path.run(*s, row);
                    } catch (const rt::RuntimeError& error) {
                        ADD_FAILURE() << "run-time error " << error.number() << ": " << where;
                    }
                    EXPECT_TRUE(script.errors.empty()) << where;
                    script.errors.clear();
                }
            }
}

// A table the convergence window cannot compute says which box holds what, in words, and shows no
// rows (nor any figure from a number it could not read).
TEST(Additions, AConvergenceTableNamesTheBoxThatHoldsNoNumber)
{
    for (const auto& [key, box, says] :
         {std::tuple("sums", "txtLBound", "Left Boundary holds 1e400, which is not a number."),
          {"slope-field", "txtXmax", "Xmax holds 1e400, which is not a number."}}) {
        ScriptedDialogs script;
        const ScreenRow& row = *screens::find(QString::fromLatin1(key));
        const std::unique_ptr<GraphScreen> s = row.make();
        s->Form_Activate();
        setQuietly(s->findChild<QLineEdit*>(QLatin1String(box)), QStringLiteral("1e400"));
        ConvergenceWindow* window = row.convergence(*s);
        window->recompute();
        EXPECT_EQ(window->summary()->text(), QString::fromUtf8(says)) << key;
        EXPECT_EQ(window->grid()->rowCount(), 0) << key;
        EXPECT_TRUE(script.errors.empty()) << key;
    }
}
