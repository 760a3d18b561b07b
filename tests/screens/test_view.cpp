// SPDX-License-Identifier: GPL-3.0-or-later
// The graph answers the hand: what a kept picture draws after a zoom is what the same actions draw
// at that window, the point under the wheel stays under it, the readout names the curve it is on,
// the history comes back to the first window, and no zoom ends the program.
#include <cmath>
#include <functional>
#include <memory>

#include <QAction>
#include <QMouseEvent>
#include <QWheelEvent>

#include "graphwin/GraphViewer.h"
#include "runtime/Random.h"

#include "ScreenFixture.h"

namespace {

using Act = std::function<void(GraphScreen&)>;

struct Opened {
    ScriptedDialogs script;
    std::unique_ptr<GraphScreen> screen;
    Opened(const std::function<std::unique_ptr<GraphScreen>()>& make, const Act& act) : screen(make())
    {
        rt::resetRnd();  // the same random draws for the same actions
        screen->Form_Activate();
        screen->surface->setRecording(true);
        screen->CleanGraph();  // the axes recorded too
        act(*screen);
    }
};

// The limits written into the boxes as a person's typing would leave them, then the graph cleared
// as the last of those changes clears it.
void typeWindow(GraphScreen& s, const view::Limits& l)
{
    TextBox* boxes[] = {s.txtXmin, s.txtXmax, s.txtYmin, s.txtYmax};
    const double values[] = {l.xmin, l.xmax, l.ymin, l.ymax};
    for (int i = 0; i < 4; ++i)
        setQuietly(boxes[i], QString::fromStdString(view::boxText(values[i])));
    s.CleanGraph();
}

void click(QPushButton* b) { b->click(); }
void plot(GraphScreen& s) { click(s.cmdPlotto); }
// The textbook cubic, typed and plotted.
void plotCubic(GraphScreen& s)
{
    setFunction(s, "x^3 - 2*x - 5");
    plot(s);
}
// The typed cubic with three of Newton's steps from 2.
void threeNewtonSteps(GraphScreen& s)
{
    plotCubic(s);
    as<frmNewton>(s).txtGuess->setText(QStringLiteral("2"));
    for (int i = 0; i < 3; ++i)
        as<frmNewton>(s).cmdApply_Click();
}

}  // namespace

TEST(View, AKeptPictureDrawsAfterAZoomWhatTheSameActionsDrawAtThatWindow)
{
    struct Case {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        double x, y, factor;
        Act act;
        // Whether the same actions at the new window draw the same: not where a press's place on
        // the square is what the action means (the slope field's presses start their curves at
        // fixed places of the square; a kept curve starts from the same world point).
        bool sameActionsThere = true;
    };
    const std::vector<Case> cases{
        {"grapher, two families", make<frmClasses>, 1, 1, 1.25 * 1.25 * 1.25, on<frmClasses>([](frmClasses& s) {
             plot(s);
             s.mnuFunc_Click(5);
             plot(s);
         })},
        {"grapher, a typed cubic zoomed out", make<frmClasses>, 2, 0, 0.4, plotCubic},
        {"Newton, the function and its derivative", make<frmNewton>, 2.0946, 0, 8, on<frmNewton>([](frmNewton& s) {
             plot(s);
             s.cmdDeriv_Click();
         })},
        {"Newton, three steps on the typed cubic from 2", make<frmNewton>, 2.0946, 0, 16, threeNewtonSteps},
        {"Newton, a family's steps from 1 and a new sequence", make<frmNewton>, 1, 0, 0.5,
         on<frmNewton>([](frmNewton& s) {
             plot(s);
             s.txtGuess->setText(QStringLiteral("1"));
             s.cmdApply_Click();
             s.cmdApply_Click();
         })},
        {"tangent, the curve and secants turning to the tangent", make<frmTangent>, 1, 1, 9.3,
         on<frmTangent>([](frmTangent& s) {
             plot(s);
             for (int v : {2000, 1500, 1100})
                 s.hscDx->setValue(v);
         })},
        {"sums, the curve", make<frmRiemann>, -1, 2, 3, plot},
        {"sums, every method's bars, the random ones with the same draws", make<frmRiemann>, 0.5, 1, 2.5,
         on<frmRiemann>([](frmRiemann& r) {
             for (CheckBox* c : {r.chkLeft, r.chkRight, r.chkMid, r.chkTrap, r.chkSimpson, r.chkRandom, r.chkRiemann})
                 c->setChecked(true);
             r.txtParts->setText(QStringLiteral("12"));
             click(r.cmdParts);
         })},
        {"mean value theorem, the secant, a slider tangent and the points c", make<frmMVT>, 1, 1, 2,
         on<frmMVT>([](frmMVT& m) {
             click(m.cmdPlotto);
             type({m.txtX1, m.txtX2}, "0|2");
             m.cmdApplyMVT_Click();
             m.HscMVT->setValue(5000);
             m.cmdAnimateIt_Click();
         })},
        {"slope field, the arrows and the forty curves", make<frmFlowField>, 2, 1, 1.7,
         on<frmFlowField>([](frmFlowField& s) {
             s.cmdShowFlow_Click();
             plot(s);
         }),
         false},
        {"slope field, approximations by two methods from presses", make<frmFlowField>, 4, 3, 3,
         on<frmFlowField>([](frmFlowField& f) {
             f.optApprox->setChecked(true);
             f.optRunga4->setChecked(true);
             f.Form_MouseDown(LeftButton, 0, f.graph.column(4), f.graph.row(3));
             f.optEuler->setChecked(true);
             f.Form_MouseDown(RightButton, 0, f.graph.column(-2), f.graph.row(5));
         }),
         false},
        {"parametric, a family's figure and its traced point", make<frmParam>, 1, -1, 2.5,
         on<frmParam>([](frmParam& s) {
             plot(s);
             s.HscT->setValue(300);
         })},
        {"parametric, a typed cycloid as points", make<frmParam>, 3, 1, 0.8, on<frmParam>([](frmParam& p) {
             ASSERT_EQ(p.setTypedCurve(QStringLiteral("t - sin(t)"), QStringLiteral("1 - cos(t)")), QString());
             p.optPoints->setChecked(true);
             click(p.cmdPlotto);
         })},
        {"animation, the curve", make<frmAnimate>, 0, 0, 0.5, plot},
    };
    for (const Case& c : cases) {
        Opened zoomed(c.make, c.act);
        ASSERT_TRUE(zoomed.screen->everyDrawingKept()) << c.name;
        const std::vector<DrawOp> before = zoomed.screen->surface->ops();
        const std::uint32_t drawn = rt::rndState();
        ASSERT_TRUE(zoomed.screen->zoomViewAt(c.x, c.y, c.factor)) << c.name;
        EXPECT_EQ(rt::rndState(), drawn) << c.name << ": a zoom draws no new random numbers";
        const view::Limits shown = *zoomed.screen->shownWindow();
        std::string where;
        if (c.sameActionsThere) {
            Opened direct(c.make, [&](GraphScreen& s) {
                typeWindow(s, shown);
                c.act(s);
            });
            EXPECT_TRUE(sameOps(zoomed.screen->surface->ops(), direct.screen->surface->ops(), where))
                << c.name << ": " << where;
            EXPECT_TRUE(direct.script.errors.empty()) << c.name;
        } else {
            EXPECT_FALSE(sameOps(zoomed.screen->surface->ops(), before, where)) << c.name << ": drawn again";
        }
        EXPECT_TRUE(zoomed.script.errors.empty()) << c.name;
        // Back at the first window, the picture is the one drawn there, operation by operation.
        ASSERT_TRUE(zoomed.screen->originalWindow()) << c.name;
        EXPECT_TRUE(sameOps(zoomed.screen->surface->ops(), before, where)) << c.name << ", back: " << where;
        // The description keeps what was drawn and gives the new window.
        EXPECT_TRUE(
            zoomed.screen->describe().contains(QStringLiteral("Window: x from ") + zoomed.screen->txtXmin->text()))
            << c.name;
    }
}

TEST(View, ThePointUnderTheWheelStaysUnderItWithinAPixel)
{
    Opened o(make<frmClasses>, plot);
    GraphScreen& s = *o.screen;
    const double perPixel = twipsPerPixel(s.surface);
    for (const QPointF pixel : {QPointF(250, 120), QPointF(170, 300), QPointF(400, 30)})
        for (int notch : {120, 120, -120, 240, -360}) {
            const double wx = s.graph.plainWorldX(pixel.x() * perPixel), wy = s.graph.plainWorldY(pixel.y() * perPixel);
            const double range = s.graph.XRange;
            QWheelEvent wheel(pixel, s.surface->mapToGlobal(pixel), QPoint(), QPoint(0, notch), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(s.surface, &wheel);
            s.viewer()->flush();
            // 1.25 a notch, in for a turn away from the user (the limits rounded to a tenth of a pixel).
            EXPECT_NEAR(s.graph.XRange * std::pow(1.25, notch / 120.0) / range, 1, 1e-3) << notch;
            EXPECT_NEAR(s.graph.plainColumn(wx) / perPixel, pixel.x(), 1) << notch;
            EXPECT_NEAR(s.graph.plainRow(wy) / perPixel, pixel.y(), 1) << notch;
        }
    EXPECT_TRUE(o.script.errors.empty());
}

TEST(View, TheReadoutNamesTheCurveOrBarsUnderThePointerOrGivesThePoint)
{
    Opened o(make<frmClasses>, plotCubic);
    GraphScreen& s = *o.screen;
    ASSERT_TRUE(s.showWindow({1.9, 2.3, -1, 1}));
    const double x = 2.0946;
    const double column = s.graph.plainColumn(x), row = s.graph.plainRow(x * x * x - 2 * x - 5);
    EXPECT_EQ(s.readoutAt(column, row), QStringLiteral("y = x^3 - 2*x - 5 at x = 2.0946: y = 0.001"));
    // The pointer moved there shows the same words beside it.
    const QPointF at(column / twipsPerPixel(s.surface), row / twipsPerPixel(s.surface));
    QMouseEvent move(QEvent::MouseMove, at, s.surface->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(s.surface, &move);
    EXPECT_EQ(s.viewer()->readout(), s.readoutAt(at.x() * twipsPerPixel(s.surface), at.y() * twipsPerPixel(s.surface)));
    EXPECT_TRUE(s.viewer()->readout().startsWith(QStringLiteral("y = x^3 - 2*x - 5 at x = 2.09")));
    // Off the curve: the point itself, to the decimals a pixel tells apart.
    EXPECT_EQ(s.readoutAt(s.graph.plainColumn(2), s.graph.plainRow(0.5)), QStringLiteral("x = 2, y = 0.5"));
    EXPECT_EQ(s.readoutAt(s.graph.Left - 100, 3000), QString());  // outside the square

    // A bar's top, and the nearest point of a curve drawn as points.
    Opened sums(make<frmRiemann>, on<frmRiemann>([](frmRiemann& m) {
        m.chkMid->setChecked(true);
        m.txtParts->setText(QStringLiteral("4"));
        click(m.cmdParts);
    }));
    GraphScreen& r = *sums.screen;
    // The default y = x^2 on [-2, 2] in four: the bar over [0, 1] has its top at (0.5, 0.25).
    const QString bar = r.readoutAt(r.graph.plainColumn(0.5), r.graph.plainRow(0.25));
    EXPECT_TRUE(bar.startsWith(QStringLiteral("Midpoint bars of y = "))) << bar.toStdString();
    EXPECT_TRUE(bar.endsWith(QStringLiteral(": x = 0.5, y = 0.25"))) << bar.toStdString();

    Opened field(make<frmFlowField>, [](GraphScreen& f) {
        as<frmFlowField>(f).Form_MouseDown(LeftButton, 0, f.graph.column(4), f.graph.row(3));
    });
    GraphScreen& f = *field.screen;
    const QString near = f.readoutAt(f.graph.plainColumn(4), f.graph.plainRow(3));
    // The nearest of the curve's points, which lie a few pixels apart: its start, exactly.
    EXPECT_TRUE(near.startsWith(QStringLiteral("the curve from ( 4, 3)")) && near.endsWith(QStringLiteral(": x = 4, y = 3")))
        << near.toStdString();
}

TEST(View, TheViewMenuZoomsGoesBackAndForwardAndReturnsToTheFirstWindow)
{
    Opened o(make<frmNewton>, [](GraphScreen& s) {
        click(s.cmdClean);  // the axes recorded too
        click(s.cmdPlotto);
    });
    GraphScreen& s = *o.screen;
    const std::vector<DrawOp> first = s.surface->ops();
    const QString original = windowLimits(s);
    s.mnuViewZoomIn->trigger();
    EXPECT_EQ(windowLimits(s), QStringLiteral("-5|5|-5|5"));
    EXPECT_EQ(s.txtXmin->cursorPosition(), 0) << "a long limit shows its sign and first digits";
    s.mnuViewZoomIn->trigger();
    s.mnuViewBack->trigger();
    EXPECT_EQ(windowLimits(s), QStringLiteral("-5|5|-5|5"));
    s.mnuViewForward->trigger();
    EXPECT_EQ(windowLimits(s), QStringLiteral("-2.5|2.5|-2.5|2.5"));
    s.mnuViewZoomOut->trigger();
    EXPECT_EQ(windowLimits(s), QStringLiteral("-5|5|-5|5"));
    s.mnuViewOriginal->trigger();
    EXPECT_EQ(windowLimits(s), original);
    std::string where;
    EXPECT_TRUE(sameOps(s.surface->ops(), first, where)) << where << (s.everyDrawingKept() ? " kept" : " unkept");
    // The keys are the usual ones, and none is taken from the screen's own.
    EXPECT_EQ(s.mnuViewZoomIn->shortcuts().value(1), QKeySequence(Qt::CTRL | Qt::Key_Equal));
    EXPECT_EQ(s.mnuViewOriginal->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_0));
    EXPECT_EQ(s.mnuViewBack->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Left));
    EXPECT_TRUE(o.script.errors.empty());
}

TEST(View, NoZoomEndsTheProgramAndWhatCannotBeShownIsSaidInWords)
{
    struct Case {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        Act act;
        std::function<bool(GraphScreen&)> view;
        const char* says;
    };
    const std::vector<Case> cases{
        {"e^x zoomed out past what a double holds", make<frmClasses>,
         [](GraphScreen& s) {
             s.mnuFunc_Click(9);
             click(s.cmdPlotto);
         },
         [](GraphScreen& s) {
             return s.showWindow({-2000, 2000, -10, 10});
         },
         "Not drawn at this window: "},
        {"zoomed out beyond the widest window", make<frmClasses>, plot,
         [](GraphScreen& s) { return s.zoomView(1e-12); }, "Zoomed out as far as the graph goes"},
        {"zoomed in beyond what the arithmetic shows", make<frmTangent>, plot,
         [](GraphScreen& s) { return s.zoomViewAt(1, 1, 1e9); }, "Zoomed in as far as the arithmetic can show"},
        {"a line drawn outside any kept step", make<frmClasses>,
         [](GraphScreen& s) {
             click(s.cmdPlotto);
             s.surface->Line(3000, 3000, 5000, 5000, 0xFF000000u);
         },
         [](GraphScreen& s) { return s.zoomView(2); }, "Some drawings made before cannot be drawn again"},
        {"limits that are not numbers", make<frmClasses>,
         [](GraphScreen& s) { setQuietly(s.txtXmin, QStringLiteral("1e400")); },
         [](GraphScreen& s) { return s.zoomView(2); }, "The window's limits are not numbers"},
    };
    for (const Case& c : cases) {
        Opened o(c.make, c.act);
        o.script.errors.clear();
        try {
            c.view(*o.screen);
        } catch (const rt::RuntimeError& error) {
            ADD_FAILURE() << c.name << ": run-time error " << error.number();
        }
        EXPECT_TRUE(o.script.errors.empty()) << c.name;
        EXPECT_TRUE(o.screen->announcement().contains(QString::fromUtf8(c.says)))
            << c.name << ": " << o.screen->announcement().toStdString();
    }
}

TEST(View, DraggingAPointOfTheConstructionGivesWhatTypingItGives)
{
    using Text = std::function<QString(GraphScreen&)>;
    struct Case {
        const char* name;
        std::function<std::unique_ptr<GraphScreen>()> make;
        Act setUp;
        double toX;  // where the point is dragged, in the world
        TextBox* (*box)(GraphScreen&);
        Act typed;  // what a person does after typing the box's new value
        Text shows;
        std::size_t handle = 0;  // which of the screen's handles is dragged
        double value = NAN;  // the value the box then holds (the place dragged to, where this is NaN)
        Text dragged = {};  // the value the drag put, as shown (the box's text, where this is empty)
    };
    const Act tangentApplied = [](GraphScreen& s) {
        plot(s);
        as<frmTangent>(s).cmdApply_Click();
    };
    const Act apply = [](GraphScreen& s) { as<frmTangent>(s).cmdApply_Click(); };
    const Text secant = [](GraphScreen& s) { return texts({as<frmTangent>(s).lblPoints, as<frmTangent>(s).lblTLine}); };
    const std::vector<Case> cases{
        {"Newton's first guess", make<frmNewton>, threeNewtonSteps, 3.3,
         [](GraphScreen& s) -> TextBox* { return as<frmNewton>(s).txtGuess; },
         [](GraphScreen& s) {
             for (int i = 0; i < 3; ++i)
                 as<frmNewton>(s).cmdApply_Click();
         },
         [](GraphScreen& s) { return as<frmNewton>(s).grdGuess->tabSeparated(); }, 0, NAN,
         [](GraphScreen& s) { return as<frmNewton>(s).grdGuess->cell(1, 1); }},  // the box holds the next guess
        {"the tangent's point", make<frmTangent>, tangentApplied, -2.4,
         [](GraphScreen& s) -> TextBox* { return as<frmTangent>(s).txtX; }, apply, secant},
        {"the tangent's Delta x", make<frmTangent>, tangentApplied, 2.5,
         [](GraphScreen& s) -> TextBox* { return as<frmTangent>(s).txtDeltaX; }, apply, secant, 1, 1.5},
        {"the mean value theorem's b", make<frmMVT>,
         [](GraphScreen& s) {
             plot(s);
             type({as<frmMVT>(s).txtX1, as<frmMVT>(s).txtX2}, "0|2");
             as<frmMVT>(s).cmdApplyMVT_Click();
         },
         2.8, [](GraphScreen& s) -> TextBox* { return as<frmMVT>(s).txtX2; },
         [](GraphScreen& s) { as<frmMVT>(s).cmdApplyMVT_Click(); },
         [](GraphScreen& s) {
             return texts({as<frmMVT>(s).lblPt1, as<frmMVT>(s).lblPt2, as<frmMVT>(s).lblSlope1});
         },
         1},
    };
    for (const Case& c : cases) {
        Opened dragged(c.make, c.setUp);
        GraphScreen& s = *dragged.screen;
        const std::vector<GraphScreen::DragHandle> handles = s.dragHandles();
        ASSERT_GT(handles.size(), c.handle) << c.name;
        const double perPixel = twipsPerPixel(s.surface);
        const GraphScreen::DragHandle& handle = handles[c.handle];
        const QPoint from(static_cast<int>(std::lround(s.graph.plainColumn(handle.x) / perPixel)),
                          static_cast<int>(std::lround(s.graph.plainRow(handle.y) / perPixel)));
        const QPoint to(static_cast<int>(std::lround(s.graph.plainColumn(c.toX) / perPixel)), from.y());
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, at, s.surface->mapToGlobal(at), button, held, Qt::NoModifier);
            QApplication::sendEvent(s.surface, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        const QString value = c.dragged ? c.dragged(s) : c.box(s)->text();
        EXPECT_NEAR(rt::Val(value.toStdString()), std::isnan(c.value) ? c.toX : c.value, 0.1)
            << c.name << ": " << value.toStdString();

        Opened typed(c.make, [&](GraphScreen& t) {
            c.setUp(t);
            click(t.cmdClean);
            click(t.cmdPlotto);
            if (auto* newton = dynamic_cast<frmNewton*>(&t)) {
                newton->NewSequence = true;  // as a new function or an activation starts one
                newton->GuessNumber = 1;
            }
            c.box(t)->setText(value);
            c.typed(t);
        });
        EXPECT_EQ(c.shows(s), c.shows(*typed.screen)) << c.name;
        std::string where;
        EXPECT_TRUE(sameOps(s.surface->ops(), typed.screen->surface->ops(), where)) << c.name << ": " << where;
        EXPECT_TRUE(dragged.script.errors.empty() && typed.script.errors.empty()) << c.name;
    }
}

// The traced point of the parametric screen follows the pointer along the curve, as the slider
// would move it.
TEST(View, TheParametricTracedPointFollowsThePointerAlongTheCurve)
{
    // A figure eight, which crosses itself at the origin (t = pi and t = 0 or 2 pi).
    Opened o(make<frmParam>, [](GraphScreen& s) {
        ASSERT_EQ(as<frmParam>(s).setTypedCurve(QStringLiteral("3*sin(t)"), QStringLiteral("3*sin(2*t)")), QString());
        click(s.cmdPlotto);
        as<frmParam>(s).txtT->setText(QStringLiteral("2.5"));
    });
    auto& p = as<frmParam>(*o.screen);
    ASSERT_EQ(p.dragHandles().size(), 1u);
    // Along the curve through the crossing: t follows, to within the plot's steps, on the branch the
    // pointer is on.
    for (float target = 2.55f; target <= 3.8f; target += 0.05f) {
        p.dragHandles()[0].moveTo(FuncGlobals::CurveX(target), FuncGlobals::CurveY(target));
        EXPECT_NEAR(p.txtT->value(), target, 0.01) << p.txtT->text().toStdString();
    }
    EXPECT_TRUE(p.lblXY->text().startsWith(QLatin1Char('('))) << p.lblXY->text().toStdString();
    EXPECT_TRUE(o.script.errors.empty());
}
