// SPDX-License-Identifier: GPL-3.0-or-later
// A seeded, bounded random walk through the whole program: every screen, every box typed into with
// hostile texts, every button, label, option, check box, scroll bar, menu entry and the drawing
// surfaces pressed and moved over, input boxes answered or cancelled. Every run-time error met must
// be one the program allows for that action; after one, the program is started afresh.
//
// PLOTTO_SEED and PLOTTO_ACTIONS choose the walk (defaults 20261122 and 20000). PLOTTO_SEED=fresh
// draws a new seed and prints it first, so that a failing (or hanging: the test has a time limit)
// walk can be replayed with that seed.
#include <QAccessible>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "fuzz/LessonProperties.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormArea.h"
#include "graphwin/GraphViewer.h"
#include "launcher/frmGraphingCalc.h"
#include "runtime/Random.h"
#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"

namespace {

const QStringList& corpus()
{
    // Numbers of every kind, then functions a teacher might type, valid and not, for the typed-function
    // entries, then a long number, a long fraction and letters from beyond ASCII.
    static const QStringList texts =
        QStringLiteral("|-|.|1e|1e308|-1e308|1e-320|nan|inf|1.2.3| 5|&H7FFF|99999999999999999999| "
                       "|0|1|2|-1|-2|3|0.5|-0.5|10|-10|4|1000|32000|40000|10000|9999|1e10|-1e10|0.001|25|2.5|"
                       "x^3 - 2*x - 5|ln(x)|1/x|sin(x)/x|exp(x^3)|sqrt(-x)|x - y^2|t - sin(t)|1 - cos(t)|2x|"
                       "sinn(x)|((((x|tan(x)*1e308|A*x^B + C|abs(x)|y/x|-x^2^-1|9^9^9^9|exp(exp(exp(x)))|"
                       "1/(x - x)|x/0")
            .split(QLatin1Char('|'))
        << QString(400, QLatin1Char('9')) << QStringLiteral("0.") + QString(300, QLatin1Char('1'))
        << QString::fromUtf8("\xc3\xa9t\xc3\xa9 \xe2\x88\x9e \xe6\xbc\xa2\xe5\xad\x97");
    return texts;
}

struct Control {
    // clang-format off
    enum Kind { Box, Button, Label, Check, Option, Scroll, Menu, Surface, Resize, GraphKeys, Assist, Copy, Lesson } kind;
    // clang-format on
    QObject* object;
    QString name;
};

struct Walk {
    std::mt19937_64 rng;
    DialogScript script;
    std::vector<std::unique_ptr<GraphScreen>> screens;  // one of each registered screen, in the registry's order
    std::vector<std::vector<Control>> controls;
    std::vector<std::string> log;
    std::map<int, long> errorsByNumber;  // the allowed errors met, for the closing line
    long actions = 0, restarts = 0;
    long typedActions = 0;  // actions taken while a typed function, rate or curve was in use
    long damagedLessons = 0, refusedSteps = 0;  // damaged examples opened, and their steps refused in words
    QTemporaryDir lessonDir;  // where the walk saves and opens its lessons

    explicit Walk(std::uint64_t seed) : rng(seed), screens(screens::all().size()), controls(screens.size())
    {
        restartFresh();
    }

    // The program started again: fresh module state, every screen loaded anew, and said in the log.
    void restartProgram(std::size_t current)
    {
        ++restarts;
        log.push_back("starts the program afresh on screen " + std::to_string(current));
        restartFresh();
    }
    void restartFresh()
    {
        FuncGlobals::FunctionId = 0;
        FuncGlobals::FunctionCount = 0;
        FuncGlobals::Coefficients = {};
        FuncGlobals::DxFuncId = FuncGlobals::DyFuncId = FuncGlobals::XtFuncId = FuncGlobals::YtFuncId = 0;
        rt::resetRnd();
        for (std::size_t i = 0; i < screens.size(); ++i)
            start(i);
    }

    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }
    const QString& text() { return corpus()[pick(static_cast<int>(corpus().size()))]; }

    template <class W>
    static void addAll(GraphScreen& s, std::vector<Control>& list, Control::Kind kind)
    {
        for (W* w : s.findChildren<W*>())
            list.push_back({kind, w, w->text()});
    }

    // A freshly loaded screen with the list of its controls.
    void start(std::size_t i)
    {
        screens[i] = screens::all()[i].make();
        GraphScreen& s = *screens[i];
        std::vector<Control>& list = controls[i];
        list.clear();
        addAll<TextBox>(s, list, Control::Box);
        addAll<QPushButton>(s, list, Control::Button);
        addAll<ClickLabel>(s, list, Control::Label);
        addAll<CheckBox>(s, list, Control::Check);
        addAll<OptionButton>(s, list, Control::Option);
        for (ScrollBar* w : s.findChildren<ScrollBar*>())
            list.push_back({Control::Scroll, w, QStringLiteral("scroll bar")});
        for (QAction* menu : s.menuBar->actions())
            for (QAction* entry : menu->menu()->actions())
                if (!entry->isSeparator() && entry->isVisible())
                    list.push_back({Control::Menu, entry, entry->text()});
        list.push_back({Control::Surface, s.surface, QStringLiteral("surface")});
        list.push_back({Control::Resize, s.surface, QStringLiteral("window")});
        list.push_back({Control::GraphKeys, s.surface, QStringLiteral("graph from the keyboard")});
        list.push_back({Control::Lesson, s.surface, QStringLiteral("lesson")});
        // What a screen reader does: press a label's button actions; and Ctrl+C anywhere.
        for (ClickLabel* w : s.findChildren<ClickLabel*>())
            if (w->interactive())
                list.push_back({Control::Assist, w, w->text()});
        for (QWidget* w : s.findChildren<QWidget*>())
            if (qobject_cast<TextBox*>(w) || qobject_cast<Grid*>(w) || w == s.surface)
                list.push_back({Control::Copy, w, QStringLiteral("Ctrl+C")});
        s.Form_Activate();
    }

    // The run-time errors the program may raise for an action on this control: arithmetic faults and
    // numbers too large wherever a box is read or a computation runs, plus each screen's own.
    std::set<int> allowed(std::size_t screen, const Control& c) const
    {
        // Ticks, options, resizes, copies and menu entries (a family only sets a caption) raise none, nor
        // do lessons (a step that raises is refused in words: no report at all).
        if (c.kind == Control::Check || c.kind == Control::Option || c.kind == Control::Resize ||
            c.kind == Control::Copy || c.kind == Control::Menu || c.kind == Control::Lesson)
            return {};
        std::set<int> ok{rt::Overflow, rt::DivisionByZero};
        GraphScreen* s = screens[screen].get();
        if (auto* mvt = dynamic_cast<frmMVT*>(s); mvt && (c.object == mvt->HscMVT || c.object == mvt->lblFindc))
            ok.insert(rt::InvalidProcedureCall);  // family 15's tangent colour
        if (auto* field = dynamic_cast<frmFlowField*>(s); field && c.object == field->lbldx)
            ok.insert(rt::SubscriptOutOfRange);  // dx family -1
        if (auto* animate = dynamic_cast<frmAnimate*>(s); animate && c.object == animate->cmdAnimate) {
            ok.insert(rt::TypeMismatch);
            ok.insert(rt::InvalidPropertyValue);
        }
        return ok;
    }

    // Performs one action; returns its description.
    std::string act(std::size_t screen, const Control& c)
    {
        GraphScreen& s = *screens[screen];
        QWidget* w = qobject_cast<QWidget*>(c.object);
        std::string what = std::string(s.metaObject()->className()) + " ";
        switch (c.kind) {
        case Control::Box: {
            auto* box = static_cast<TextBox*>(c.object);
            const QString t = text();
            what += "types \"" + t.left(24).toStdString() + "\" into box \"" + c.name.toStdString() + "\"";
            const bool ascii = std::all_of(t.begin(), t.end(), [](QChar ch) { return ch.unicode() < 128; });
            if (ascii && pick(4) == 0) {  // keystroke by keystroke
                box->clear();
                QTest::keyClicks(box, t.left(12));
            } else {
                box->setText(t);
            }
            break;
        }
        case Control::Label: {
            const int how = pick(3);  // left, right, double
            what += "presses (" + std::to_string(how) + ") label \"" + c.name.toStdString() + "\"";
            QTest::mouseClick(w, how == 1 ? Qt::RightButton : Qt::LeftButton);
            if (how == 2)
                QTest::mouseDClick(w, Qt::LeftButton);
            break;
        }
        case Control::Button:
        case Control::Check:
        case Control::Option:
            what += "clicks \"" + c.name.toStdString() + "\"";
            static_cast<QAbstractButton*>(c.object)->click();
            break;
        case Control::Scroll: {
            auto* bar = static_cast<ScrollBar*>(c.object);
            const int where = pick(3);
            const int v = where == 0   ? bar->minimum()
                          : where == 1 ? bar->maximum()
                                       : bar->minimum() + pick(std::max(1, bar->maximum() - bar->minimum() + 1));
            what += "moves a scroll bar to " + std::to_string(v);
            bar->setValue(v);
            break;
        }
        case Control::Menu:
            what += "chooses \"" + c.name.toStdString() + "\"";
            static_cast<QAction*>(c.object)->trigger();
            break;
        case Control::Resize: {
            // From 1x1 to far beyond any screen: the form takes the zoom at which it fits.
            const int side[] = {1, 2, 7, 100, 400, 749, 1000, 1920, 4000, 30000};
            const QSize room(side[pick(10)] + pick(50), side[pick(10)] + pick(50));
            what += "resizes the window to " + std::to_string(room.width()) + "x" + std::to_string(room.height());
            s.surface->setZoom(FormArea::fittingZoom(s.surface->normalSize(), room));
            break;
        }
        case Control::GraphKeys: {
            // The cross-hair's keys and the walk along a drawn curve's (Home, End, N, Shift with arrows).
            const Qt::Key keys[] = {Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,  Qt::Key_Down,
                                    Qt::Key_Return, Qt::Key_Home,  Qt::Key_End, Qt::Key_N};
            const Qt::KeyboardModifiers mods[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                                  Qt::ShiftModifier | Qt::ControlModifier};
            const int n = 1 + pick(6);
            what += "presses " + std::to_string(n) + " keys in the graph";
            w->setFocus();
            for (int k = 0; k < n; ++k)
                QTest::keyClick(w, keys[pick(8)], mods[pick(4)]);
            break;
        }
        case Control::Assist: {
            QAccessibleActionInterface* actions = QAccessible::queryAccessibleInterface(w)->actionInterface();
            const QStringList names = actions->actionNames();
            const QString name = names[pick(static_cast<int>(names.size()))];
            what += "runs the accessible action " + name.toStdString() + " of label \"" + c.name.toStdString() + "\"";
            actions->doAction(name);
            break;
        }
        case Control::Copy: {
            what += "presses Ctrl+C in a " + std::string(w->metaObject()->className());
            w->setFocus();
            if (auto* box = qobject_cast<TextBox*>(w); box && pick(2) == 0)
                box->selectAll();
            QTest::keyClick(w, Qt::Key_C, Qt::ControlModifier);
            s.refreshDescription();  // what a screen reader reads, whether or not the window is shown
            break;
        }
        case Control::Lesson: {
            // Saves the screen as a one-step lesson into the walk's folder, or opens the lesson
            // there (from any screen) on the screen it names, after checking it as the program does.
            const QString path = lessonDir.filePath(QStringLiteral("walk.plotto"));
            if (const int how = pick(3); how == 2) {
                // A shipped example damaged (truncated, bytes changed, or values of valid steps changed),
                // opened and applied step by step on the walk's screens.
                std::vector<std::uint8_t> damage(2 + static_cast<std::size_t>(pick(40)));
                for (std::uint8_t& b : damage)
                    b = static_cast<std::uint8_t>(pick(256));
                damage[0] = static_cast<std::uint8_t>(1 + pick(3));
                static const std::vector<QByteArray> examples =
                    fuzzing::exampleLessons(QStringLiteral(PLOTTO_SOURCE_DIR));
                int refused = 0;
                const std::string broken = fuzzing::checkLessonText(
                    fuzzing::damagedLesson(examples, damage.data(), damage.size()),
                    [this](const QString& key) -> GraphScreen& {
                        return *screens[static_cast<std::size_t>(screens::find(key) - screens::all().data())];
                    },
                    &refused);
                ++damagedLessons;
                refusedSteps += refused;
                what += "opens a damaged example (" + std::to_string(refused) + " steps refused)";
                if (!broken.empty())
                    ADD_FAILURE() << "a damaged lesson: " << broken;
            } else if (how == 0) {
                lesson::Step step = lesson::capture(s);
                const QStringList buttons = {QStringLiteral("cmdPlotto"), QStringLiteral("cmdParts"),
                                             QStringLiteral("cmdApply"), QStringLiteral("cmdAddTerm")};
                step.actions = {{buttons[pick(4)], 1 + pick(2), {}}};
                what += "saves a lesson (" + lesson::save({{step}}, path).toStdString() + ")";
            } else {
                const lesson::Read read = lesson::load(path);
                what += "opens the lesson";
                if (read.lesson) {
                    const lesson::Step& step = read.lesson->steps.front();
                    for (std::size_t i = 0; i < screens.size(); ++i)
                        if (lesson::screenKey(*screens[i]) == step.screen &&
                            lesson::check(step, *screens[i]).isEmpty()) {
                            const int refused = lesson::open(step, *screens[i]);
                            what += " on " + step.screen.toStdString() +
                                    (refused ? " (refused: error " + std::to_string(refused) + ")" : "");
                        }
                }
            }
            break;
        }
        case Control::Surface: {
            QPoint at(pick(w->width()), pick(w->height()));
            const int how = pick(7);  // left, right, move, wheel, drag (left, right, middle)
            const QPoint to(pick(w->width()), pick(w->height()));
            // A left drag starts on a point of the construction half the time, where there is one.
            const std::vector<GraphScreen::DragHandle> handles = s.dragHandles();
            if (how == 4 && !handles.empty() && pick(2) == 0 && s.graph.XRange != 0 && s.graph.YRange != 0) {
                const GraphScreen::DragHandle& h =
                    handles[static_cast<std::size_t>(pick(static_cast<int>(handles.size())))];
                const double perPixel = twipsPerPixel(s.surface);
                const double px = s.graph.plainColumn(h.x) / perPixel, py = s.graph.plainRow(h.y) / perPixel;
                if (std::fabs(px) < 1e5 && std::fabs(py) < 1e5)
                    at = QPoint(static_cast<int>(px), static_cast<int>(py));
            }
            what += "presses, moves, turns the wheel or drags (" + std::to_string(how) + ") on the surface at " +
                    std::to_string(at.x()) + "," + std::to_string(at.y()) + " to " + std::to_string(to.x()) + "," +
                    std::to_string(to.y());
            if (how == 2) {
                QTest::mouseMove(w, at);
            } else if (how == 3) {
                const int notches = static_cast<int>(pick(9)) - 4;
                QWheelEvent wheel(at, w->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(w, &wheel);
                if (auto* screen = qobject_cast<GraphScreen*>(w->window()))
                    screen->viewer()->flush();
            } else if (how >= 4) {
                const Qt::MouseButton button = how == 4   ? Qt::LeftButton
                                               : how == 5 ? Qt::RightButton
                                                          : Qt::MiddleButton;
                QTest::mousePress(w, button, Qt::NoModifier, at);
                QTest::mouseMove(w, (at + to) / 2);
                QTest::mouseMove(w, to);
                QTest::mouseRelease(w, button, Qt::NoModifier, to);
            } else {
                QTest::mouseClick(w, how == 0 ? Qt::LeftButton : Qt::RightButton, Qt::NoModifier, at);
            }
            break;
        }
        }
        return what;
    }
};

std::uint64_t envNumber(const char* name, std::uint64_t fallback)
{
    const char* v = std::getenv(name);
    return v && *v ? std::strtoull(v, nullptr, 10) : fallback;
}

std::uint64_t walkSeed()
{
    const char* v = std::getenv("PLOTTO_SEED");
    if (v && std::string(v) == "fresh")
        return std::random_device{}() % 1000000000u;
    return envNumber("PLOTTO_SEED", 20261122);
}

}  // namespace

TEST(RandomWalk, EveryActionEndsNormallyOrWithAnAllowedError)
{
    const std::uint64_t seed = walkSeed();
    const long total = static_cast<long>(envNumber("PLOTTO_ACTIONS", 20000));
    std::fprintf(stderr, "random walk: seed %llu, %ld actions\n", static_cast<unsigned long long>(seed), total);
    Walk walk(seed);
    setDialogScript(&walk.script);

    std::size_t current = 0;
    for (long n = 0; n < total; ++n) {
        if (walk.pick(40) == 0) {  // the launcher shows another screen
            current = static_cast<std::size_t>(walk.pick(static_cast<int>(walk.screens.size())));
            walk.script.errors.clear();
            // As the launcher does, through the one entry point: a classic screen left with window limits
            // its Form_Activate cannot map (equal, or too far apart) reports its run-time error there.
            guarded([&] { walk.screens[current]->activate(); });
            walk.log.push_back("shows screen " + std::to_string(current));
            for (int e : walk.script.errors) {
                ++walk.errorsByNumber[e];
                EXPECT_TRUE(e == 6 || e == 11) << "run-time error " << e << " on showing screen " << current
                                               << ". Seed " << seed << ", action " << n;
            }
            if (!walk.script.errors.empty())
                walk.restartProgram(current);
        }
        walk.script.answers.clear();
        for (int i = 0; i < 2; ++i)
            if (walk.pick(4) != 0)
                walk.script.answers.push_back(walk.text());
        walk.script.shown.clear();
        walk.script.errors.clear();
        const std::vector<Control>& list = walk.controls[current];
        const Control control = list[static_cast<std::size_t>(walk.pick(static_cast<int>(list.size())))];
        const std::set<int> ok = walk.allowed(current, control);
        walk.log.push_back(walk.act(current, control));
        ++walk.actions;
        if (FuncGlobals::TypedExplicit || FuncGlobals::TypedRate || FuncGlobals::TypedParametric)
            ++walk.typedActions;
        if (walk.script.errors.empty())
            continue;
        for (int e : walk.script.errors) {
            ++walk.errorsByNumber[e];
            if (!ok.count(e)) {
                std::string replay;
                for (std::size_t i = walk.log.size() > 40 ? walk.log.size() - 40 : 0; i < walk.log.size(); ++i)
                    replay += "  " + walk.log[i] + "\n";
                ADD_FAILURE() << "run-time error " << e << " is not allowed here. Seed " << seed << ", action " << n
                              << "; the last actions:\n"
                              << replay;
                setDialogScript(nullptr);
                return;
            }
        }
        walk.restartProgram(current);
    }
    setDialogScript(nullptr);
    std::string summary;
    for (const auto& [number, count] : walk.errorsByNumber)
        summary += " error " + std::to_string(number) + ": " + std::to_string(count) + ";";
    std::printf("random walk: seed %llu, %ld actions (%ld with a typed function in use), %ld restarts;%s %ld damaged "
                "lessons opened, %ld steps refused in words\n",
                static_cast<unsigned long long>(seed), walk.actions, walk.typedActions, walk.restarts, summary.c_str(),
                walk.damagedLessons, walk.refusedSteps);
    EXPECT_EQ(walk.actions, total);
}
