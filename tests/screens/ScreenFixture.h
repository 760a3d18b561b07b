// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A screen under test: real widgets, scripted dialogs, the drawing recorded.
#include <algorithm>
#include <functional>
#include <memory>

#include <set>

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "runtime/QBColor.h"
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

// Types the '|'-separated texts into the boxes, one each, in order, as a person's edits.
inline void type(std::initializer_list<QLineEdit*> boxes, const char* joined)
{
    const QStringList parts = QString::fromUtf8(joined).split(QLatin1Char('|'));
    int i = 0;
    for (QLineEdit* box : boxes)
        box->setText(parts.value(i++));
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
        EXPECT_TRUE(described.contains(screen->windowTitle()) && described.contains(QString::fromUtf8(mention)))
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
