// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A screen under test: real widgets, scripted dialogs, the drawing recorded.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>

#include <set>

#include <QAbstractButton>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSignalBlocker>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "runtime/QBColor.h"
#include "screens/frmAnimate.h"
#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmMVT.h"
#include "screens/frmNewton.h"
#include "screens/frmParam.h"
#include "screens/frmRiemann.h"
#include "screens/frmTangent.h"
#include "tests/TestSupport.h"

// Readable failure messages for texts.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

// The texts of labels, boxes or buttons joined by '|', so that a row of them is checked in one line.
inline QString texts(std::initializer_list<QWidget*> widgets)
{
    QStringList out;
    for (QWidget* w : widgets) {
        if (auto* label = qobject_cast<QLabel*>(w))
            out << label->text();
        else if (auto* box = qobject_cast<QLineEdit*>(w))
            out << box->text();
        else if (auto* button = qobject_cast<QAbstractButton*>(w))
            out << button->text();
    }
    return out.join(QLatin1Char('|'));
}

// The window's four limits as their boxes show them: Xmin|Xmax|Ymin|Ymax.
inline QString windowLimits(const GraphScreen& s) { return texts({s.txtXmin, s.txtXmax, s.txtYmin, s.txtYmax}); }

// A box's text set as a program would set it, without running the box's own handlers.
inline void setQuietly(QLineEdit* box, const QString& text)
{
    const QSignalBlocker quiet(box);
    box->setText(text);
}

// Types the '|'-separated texts into the boxes, one each, in order, as a person's edits.
inline void type(std::initializer_list<QLineEdit*> boxes, const char* joined)
{
    const QStringList parts = QString::fromUtf8(joined).split(QLatin1Char('|'));
    int i = 0;
    for (QLineEdit* box : boxes)
        box->setText(parts.value(i++));
}

// The cells of rows r0..r1 and columns c0..c1 of a grid, row by row, joined by '|'.
inline QString cells(const Grid* grid, int r0, int r1, int c0, int c1)
{
    QStringList out;
    for (int r = r0; r <= r1; ++r)
        for (int c = c0; c <= c1; ++c)
            out << grid->cell(r, c);
    return out.join(QLatin1Char('|'));
}

// Sets a screen's function: "#n" chooses family n with the coefficients it has, any other text is typed.
inline void setFunction(GraphScreen& s, const char* f)
{
    if (f[0] == '#')
        s.mnuFunc_Click(std::atoi(f + 1));
    else
        EXPECT_EQ(s.setTypedFunction(QString::fromUtf8(f)), QString()) << f;
}

// Back to the families, whatever a test typed, so that the next test starts as a fresh run does.
inline void forgetTypedFunctions()
{
    FuncGlobals::TypedExplicit = nullptr;
    FuncGlobals::TypedRate = nullptr;
    FuncGlobals::TypedParametric = nullptr;
}

// A whole file's bytes (empty when it cannot be read, which the comparison then shows).
inline QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What a command-line tool prints to its standard output.
inline QString toolOutput(const QString& tool, const QStringList& arguments)
{
    QProcess p;
    p.start(tool, arguments);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// Whether two recordings draw the same shapes in the same colours, each coordinate within `within`
// twips (by default a millionth: a curve drawn again from its world start point maps back to the
// press's twips up to the last bits of a double); `first` says where they part, or the counts.
inline bool sameOps(const std::vector<DrawOp>& a, const std::vector<DrawOp>& b, std::string& first,
                    double within = 1e-6)
{
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        if (a[i].kind != b[i].kind || std::fabs(a[i].x1 - b[i].x1) > within || std::fabs(a[i].y1 - b[i].y1) > within ||
            std::fabs(a[i].x2 - b[i].x2) > within || std::fabs(a[i].y2 - b[i].y2) > within ||
            a[i].color != b[i].color) {
            first = "operation " + std::to_string(i) + " differs";
            return false;
        }
    first = "counts " + std::to_string(a.size()) + " and " + std::to_string(b.size());
    return a.size() == b.size();
}

// A screen of the program by its own type, and a fresh one of a type, for tables of screens.
template <class S>
S& as(GraphScreen& s)
{
    return static_cast<S&>(s);
}
template <class S>
std::unique_ptr<GraphScreen> make()
{
    return std::make_unique<S>();
}
// An action written for a screen of type S, for a table whose actions take any screen.
template <class S, class F>
std::function<void(GraphScreen&)> on(F act)
{
    return [act](GraphScreen& s) { act(static_cast<S&>(s)); };
}

// Runs `inside` once the screen is shown modally (by the launcher's button, menu entry or lesson that
// the test then uses), then leaves it by its Exit button.
inline void whileShown(GraphScreen& screen, std::function<void()> inside)
{
    QTimer::singleShot(0, &screen, [&screen, inside] {
        inside();
        screen.cmdExit->click();
    });
}

// Scripted dialogs for one test, put back however the test ends (a failed ASSERT included), with the
// coefficients as a fresh run has them.
struct ScriptedDialogs : DialogScript {
    ScriptedDialogs()
    {
        setDialogScript(this);
        FuncGlobals::Coefficients = {};
    }
    ~ScriptedDialogs() { setDialogScript(nullptr); }
};

template <class Screen>
struct ScreenFixture : ::testing::Test {
    DialogScript script;
    std::unique_ptr<Screen> screen;

    void SetUp() override
    {
        setDialogScript(&script);
        FuncGlobals::Coefficients = {};
        screen = std::make_unique<Screen>();
        screen->surface->setRecording(true);
        screen->Form_Activate();
    }
    void TearDown() override
    {
        screen.reset();
        setDialogScript(nullptr);
        forgetTypedFunctions();
    }

    // One row of a table of actions: on a freshly loaded screen, `act` acts as a person would and
    // returns what the screen then shows (texts joined by '|'), compared with `shows`.
    struct Case {
        const char* name;
        std::function<QString(Screen&)> act;
        const char* shows;
    };
    void run(const std::vector<Case>& cases)
    {
        for (const Case& c : cases) {
            TearDown();
            SetUp();
            EXPECT_EQ(c.act(*screen), QString::fromUtf8(c.shows)) << c.name;
        }
    }

    // What a screen reader gets after an action: the graph's description names the window, `mention`
    // and the text of every result label; each label reads as it shows; every focusable control has a
    // name of its own.
    void expectDescribed(const char* mention, std::initializer_list<QLabel*> results = {})
    {
        screen->show();  // as a screen reader meets it
        screen->refreshDescription();
        const auto spoken = [](QWidget* w, QAccessible::Text t) {
            return QAccessible::queryAccessibleInterface(w)->text(t);
        };
        const QString described = spoken(screen->surface, QAccessible::Description);
        EXPECT_TRUE(described.contains(screen->windowTitle()) && described.contains(QString::fromUtf8(mention)) &&
                    !described.contains(QStringLiteral("more drawings")))  // a few drawings, each named
            << described.toStdString();
        for (QLabel* label : results) {
            EXPECT_EQ(spoken(label, QAccessible::Name), label->text());
            EXPECT_TRUE(described.contains(label->text().trimmed())) << label->text().toStdString();
        }
        std::set<QString> names;
        for (QWidget* w : screen->surface->template findChildren<QWidget*>())
            if (w->focusPolicy() & Qt::TabFocus && w->isVisibleTo(screen.get())) {
                const QString name = spoken(w, QAccessible::Name);
                EXPECT_TRUE(!name.isEmpty() && names.insert(name).second)
                    << w->metaObject()->className() << " named " << name.toStdString();
            }
    }

    const std::vector<DrawOp>& ops() const { return screen->surface->ops(); }
    long count(DrawOp::Kind kind) const
    {
        return std::count_if(ops().begin(), ops().end(), [kind](const DrawOp& op) { return op.kind == kind; });
    }
    bool hasPoint(double x, double y, QRgb colour) const
    {
        return std::any_of(ops().begin(), ops().end(), [&](const DrawOp& op) {
            return op.kind == DrawOp::PSet && op.x1 == x && op.y1 == y && op.color == colour;
        });
    }
    bool hasLine(double x1, double y1, double x2, double y2) const
    {
        return std::any_of(ops().begin(), ops().end(), [&](const DrawOp& op) {
            return op.kind == DrawOp::Line && op.x1 == x1 && op.y1 == y1 && op.x2 == x2 && op.y2 == y2;
        });
    }
    long inColour(int qbColour) const  // the shapes drawn in a colour of QBColor's sixteen
    {
        return std::count_if(ops().begin(), ops().end(),
                             [c = colour(qbColour)](const DrawOp& op) { return op.color == c; });
    }
    long linesIn(QRgb c) const
    {
        return std::count_if(ops().begin(), ops().end(),
                             [c](const DrawOp& op) { return op.kind == DrawOp::Line && op.color == c; });
    }
    static QRgb colour(int n) { return 0xFF000000u | rt::QBColor(n); }
    using Shown = std::vector<std::pair<QString, QString>>;  // the message boxes shown: title, text
    // A person's left or right press on a label.
    static void press(QWidget* w, Qt::MouseButton b) { QTest::mouseClick(w, b); }
};
