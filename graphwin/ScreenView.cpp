// SPDX-License-Identifier: GPL-3.0-or-later
// The view of a screen's graph: the View menu, the window shown after a zoom or a pan with every
// kept drawing made again at it, the history of windows, and the readout under the pointer.
#include <cmath>

#include <QMenuBar>
#include <QSignalBlocker>

#include "graphwin/Axes.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/GraphViewer.h"
#include "graphwin/Language.h"
#include "graphwin/TracePlayer.h"

namespace {

// A limit box written by the view: its text changes, its change handler does not run (the seed's
// handler would erase the graph; a view keeps it).
void showLimit(TextBox* box, double value)
{
    const QSignalBlocker quiet(box);
    box->setText(QString::fromStdString(view::boxText(value)));
    box->setCursorPosition(0);  // a long limit shows its sign and first digits
}

}  // namespace

void GraphScreen::buildViewMenu()
{
    auto* menu = new QMenu(Plotto::tr("Vie&w"), menuBar);
    menuBar->insertMenu(mnuTools, menu);
    mnuView = menu->menuAction();
    auto entry = [this, menu](const QString& caption, QList<QKeySequence> keys, std::function<bool()> run) {
        QAction* a = menu->addAction(caption);
        a->setShortcuts(keys);
        a->setShortcutContext(Qt::WindowShortcut);
        connect(a, &QAction::triggered, this, [run = std::move(run)] { guarded([&run] { run(); }); });
        return a;
    };
    mnuViewZoomIn =
        entry(Plotto::tr("Zoom &In"), {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
              [this] { return zoomView(2); });
    mnuViewZoomOut =
        entry(Plotto::tr("Zoom &Out"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { return zoomView(0.5); });
    mnuViewOriginal = entry(Plotto::tr("O&riginal Window"), {QKeySequence(Qt::CTRL | Qt::Key_0)},
                            [this] { return originalWindow(); });
    menu->addSeparator();
    mnuViewBack = entry(Plotto::tr("&Back"), {QKeySequence(Qt::ALT | Qt::Key_Left)}, [this] { return backWindow(); });
    mnuViewForward =
        entry(Plotto::tr("&Forward"), {QKeySequence(Qt::ALT | Qt::Key_Right)}, [this] { return forwardWindow(); });
    NAME_AS_MEMBER(mnuViewZoomIn);
    NAME_AS_MEMBER(mnuViewZoomOut);
    NAME_AS_MEMBER(mnuViewOriginal);
    NAME_AS_MEMBER(mnuViewBack);
    NAME_AS_MEMBER(mnuViewForward);
    viewer_ = new GraphViewer(*this);
}

void GraphScreen::leaveView()
{
    // The surface outlives this part of the screen by a little: its last events must not reach the
    // view, which asks the screen.
    surface->removeEventFilter(viewer_);
}

std::optional<view::Limits> GraphScreen::shownWindow() const
{
    const auto xmin = txtXmin->number(), xmax = txtXmax->number(), ymin = txtYmin->number(), ymax = txtYmax->number();
    if (!xmin || !xmax || !ymin || !ymax)
        return std::nullopt;
    return view::Limits{*xmin, *xmax, *ymin, *ymax};
}

void GraphScreen::followTypedLimits()
{
    const std::optional<view::Limits> now = shownWindow();
    if (now && (!viewStarted_ || !(*now == viewHistory_.current()))) {
        viewHistory_.reset(*now);
        viewStarted_ = true;
    }
}

bool GraphScreen::showWindow(const view::Limits& limits)
{
    followTypedLimits();
    return moveView(limits, true);
}

bool GraphScreen::moveView(const view::Limits& wanted, bool remember)
{
    if (const auto why = view::refusal(wanted)) {
        announce(Plotto::tr(why->c_str()));
        return false;
    }
    const double pixels = GraphWindow::Side / twipsPerPixel(surface);
    const view::Limits limits = view::readable(wanted, pixels);
    if (const auto why = view::refusal(limits)) {
        announce(Plotto::tr(why->c_str()));
        return false;
    }
    const bool whole = scene_->complete();
    GraphScene::Steps steps = scene_->release();
    showLimit(txtXmin, limits.xmin);
    showLimit(txtXmax, limits.xmax);
    showLimit(txtYmin, limits.ymin);
    showLimit(txtYmax, limits.ymax);
    if (remember)
        viewHistory_.moveTo(limits);
    const QStringList failed = redrawKept(std::move(steps));
    QString said = Plotto::tr("Window: x from %1 to %2, y from %3 to %4.")
                       .arg(txtXmin->text(), txtXmax->text(), txtYmin->text(), txtYmax->text());
    if (!failed.isEmpty())
        said += Plotto::tr(" Not drawn at this window: %1.").arg(failed.join(QStringLiteral("; ")));
    if (!whole)
        said += Plotto::tr(" Some drawings made before cannot be drawn again at a new window: press the "
                           "screen's buttons to draw them here.");
    announce(said);
    if (viewer_)
        viewer_->viewChanged();
    return true;
}

QStringList GraphScreen::redrawKept(GraphScene::Steps steps)
{
    // The picture is made again: the screen's own clear (its axes and whatever it draws with them),
    // then every kept step. The walk's curves are noted again by their steps; what was said of the
    // drawings stays.
    const bool described = drawnAfterClear_ == surface->clears();
    try {
        CleanGraph();
    } catch (const rt::RuntimeError&) {
        // The axes of a far window may not be drawable by the classic rules; the drawings still are.
    }
    if (described)
        drawnAfterClear_ = surface->clears();
    traced_.clear();
    walk_.clear();
    walkCurve_ = -1;
    chosen_ = -1;
    tracedAfterClear_ = surface->clears();
    return scene_->replay(std::move(steps));
}

bool GraphScreen::eraseKept(const QString& kind)
{
    if (!scene_->complete())
        return false;
    redrawKept(GraphScene::without(scene_->release(), kind));
    return true;
}

void GraphScreen::runForDrag(const std::function<void()>& action)
{
    try {
        action();
    } catch (const rt::RuntimeError& error) {
        announce(Plotto::tr("Cannot be drawn from here: %1.").arg(QString::fromUtf8(error.what())));
    }
    refreshDescription();
}

bool GraphScreen::zoomViewAt(double x, double y, double factor)
{
    const std::optional<view::Limits> now = shownWindow();
    if (!now) {
        announce(Plotto::tr("The window's limits are not numbers: type them first."));
        return false;
    }
    followTypedLimits();
    return moveView(view::zoomAbout(*now, x, y, factor), true);
}

bool GraphScreen::zoomView(double factor)
{
    const std::optional<view::Limits> now = shownWindow();
    if (!now)
        return zoomViewAt(0, 0, factor);
    return zoomViewAt((now->xmin + now->xmax) / 2, (now->ymin + now->ymax) / 2, factor);
}

bool GraphScreen::panView(double dx, double dy)
{
    const std::optional<view::Limits> now = shownWindow();
    followTypedLimits();
    return now && moveView(view::panBy(*now, dx, dy), true);
}

bool GraphScreen::originalWindow()
{
    followTypedLimits();
    if (!viewStarted_)
        return false;
    return moveView(viewHistory_.original(), true);
}

bool GraphScreen::backWindow()
{
    followTypedLimits();
    return stepView(viewHistory_.back(), Plotto::tr("No window before this one."));
}

bool GraphScreen::forwardWindow()
{
    followTypedLimits();
    return stepView(viewHistory_.forward(), Plotto::tr("No window after this one."));
}

bool GraphScreen::stepView(const std::optional<view::Limits>& limits, const QString& none)
{
    if (!limits) {
        announce(none);
        return false;
    }
    return moveView(*limits, false);
}

void GraphScreen::keepDrawing(const QString& what, std::function<void()> draw, std::shared_ptr<const void> keep,
                              const QString& kind)
{
    scene_->record(what, std::move(draw), std::move(keep), kind);
}

QString GraphScreen::readoutAt(double xTwips, double yTwips) const
{
    if (!graph.strictlyInside(xTwips, yTwips) || graph.XRange == 0 || graph.YRange == 0)
        return {};
    const double x = graph.plainWorldX(xTwips), y = graph.plainWorldY(yTwips);
    const double perPixel = twipsPerPixel(surface);
    const double rx = std::fabs(graph.XRange) / GraphWindow::Side * perPixel,
                 ry = std::fabs(graph.YRange) / GraphWindow::Side * perPixel;
    auto said = [](double v, double resolution) { return QString::fromStdString(audio::spoken(v, resolution)); };
    // A drawing's name without its coefficients' values and without "the typed function", in the
    // words of the language (describeFamily's templates).
    auto shortName = [](QString name) {
        const QString with =
            Plotto::tr("%1 with %2").section(QStringLiteral("%1"), 1).section(QStringLiteral("%2"), 0, 0);
        if (const auto at = with.isEmpty() ? -1 : name.indexOf(with); at > 0)
            name.truncate(at);
        const QString typed = Plotto::tr("the typed function y = %1").section(QStringLiteral("y = %1"), 0, 0);
        return typed.isEmpty() ? name : name.remove(typed);
    };
    const double reach = 8 * perPixel;
    if (sinceClear())
        for (auto it = traced_.rbegin(); it != traced_.rend(); ++it) {
            if (it->f) {
                // Near a drawn curve of y = f(x): the curve's own value at the pointer's x.
                const double fy = it->f(x);
                if (std::isfinite(fy) && std::fabs(graph.plainRow(fy) - yTwips) <= reach)
                    return QStringLiteral("%1 at x = %2: y = %3").arg(shortName(it->name), said(x, rx), said(fy, ry));
                continue;
            }
            // Near a point of a curve drawn as points (an integral curve, a parametric curve, the
            // tops of a sum's bars): that point.
            const std::vector<audio::Point> points = it->points(0);
            const audio::Point* nearest = nullptr;
            double best = reach;
            for (const audio::Point& p : points) {
                const double d = std::hypot(graph.plainColumn(p.x) - xTwips, graph.plainRow(p.y) - yTwips);
                if (std::isfinite(d) && d <= best) {
                    best = d;
                    nearest = &p;
                }
            }
            if (nearest)
                return QStringLiteral("%1: x = %2, y = %3")
                    .arg(shortName(it->name), said(nearest->x, rx), said(nearest->y, ry));
        }
    return QStringLiteral("x = %1, y = %2").arg(said(x, rx), said(y, ry));
}

QString GraphScreen::draggedValue(double x) const
{
    const double pixel = std::fabs(graph.XRange) / GraphWindow::Side * twipsPerPixel(surface);
    return QString::fromStdString(audio::spoken(x, pixel));
}
