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
        {"description",
         [](GraphScreen& s, const ScreenRow&) {
             s.refreshDescription();
             EXPECT_TRUE(s.describe().contains(s.windowTitle()));
         }},
        {"Ctrl+C", [](GraphScreen& s, const ScreenRow&) { s.copyGraph(); }},
        {"spoken scroll bars",
         [](GraphScreen& s, const ScreenRow&) {
             for (ScrollBar* bar : s.surface->findChildren<ScrollBar*>())
                 (void)bar->meaning();
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
         [](GraphScreen& s, const ScreenRow&) {
             const lesson::Step step = lesson::capture(s);
             EXPECT_FALSE(lesson::toJson({{step}}).isEmpty());
         }},
        {"convergence table",
         [](GraphScreen& s, const ScreenRow& row) {
             if (!row.convergence)
                 return;
             ConvergenceWindow* window = row.convergence(s);
             window->recompute();
             EXPECT_FALSE(window->summary()->text().isEmpty());
         }},
        {"graph exported and printed, table exported",
         [](GraphScreen& s, const ScreenRow& row) {
             const QTemporaryDir dir;
             graphexport::Options small;
             small.dpi = graphexport::kMinDpi;
             for (const char* name : {"g.svg", "g.pdf", "g.png"})
                 EXPECT_EQ(s.exportGraph(dir.filePath(QLatin1String(name)), small), QString()) << name;
             s.mnuPrintPreview_Click();
             if (row.convergence) {
                 EXPECT_EQ(row.convergence(s)->exportTable(dir.filePath(QStringLiteral("t.csv"))), QString());
             }
         }},
        {"typed function entered",
         [](GraphScreen& s, const ScreenRow& row) { EXPECT_EQ(row.typeExample(s), QString()); }},
        {"projector mode",
         [](GraphScreen& s, const ScreenRow&) {
             s.mnuProjector_Click();
             s.mnuProjector_Click();
         }},
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
    struct Case {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        std::function<QLineEdit*(GraphScreen&)> box;
        const char* says;
    };
    const std::vector<Case> cases{
        {"sums, left boundary", make<frmRiemann>, [](GraphScreen& s) { return as<frmRiemann>(s).txtLBound; },
         "Left Boundary holds 1e400, which is not a number."},
        {"slope field, Xmax", make<frmFlowField>, [](GraphScreen& s) { return s.txtXmax; },
         "Xmax holds 1e400, which is not a number."},
    };
    for (const Case& c : cases) {
        ScriptedDialogs script;
        const std::unique_ptr<GraphScreen> s = c.make();
        s->Form_Activate();
        setQuietly(c.box(*s), QStringLiteral("1e400"));
        ConvergenceWindow* window = screens::of(*s)->convergence(*s);
        window->recompute();
        EXPECT_EQ(window->summary()->text(), QString::fromUtf8(c.says)) << c.name;
        EXPECT_EQ(window->grid()->rowCount(), 0) << c.name;
        EXPECT_TRUE(script.errors.empty()) << c.name;
    }
}

// The tangent screen's description of a typed function's exact tangent says the box's text when it
// is not a number (the tangent itself, when it is, is checked with the typed functions).
TEST(Additions, TheTangentDescriptionSaysABoxThatIsNotANumberInWords)
{
    ScriptedDialogs script;
    frmTangent s;
    s.Form_Activate();
    ASSERT_EQ(s.setTypedFunction(QStringLiteral("x^2")), QString());
    setQuietly(s.txtX, QStringLiteral("1e400"));
    EXPECT_TRUE(s.describe().contains(QStringLiteral("No exact tangent: x = 1e400 is not a number.")))
        << s.describe().toStdString();
    EXPECT_TRUE(script.errors.empty());
}
