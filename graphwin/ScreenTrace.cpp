// SPDX-License-Identifier: GPL-3.0-or-later
// The audio trace of a drawn curve and the walk along it from the keyboard: which curves were drawn,
// their points made again when asked for, the keys, what is said and where the marker goes.
#include <algorithm>
#include <cmath>
#include <memory>

#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"
#include "graphwin/TracePlayer.h"

namespace {

QString said(double value, double resolution) { return QString::fromStdString(audio::spoken(value, resolution)); }

// The point of `points` whose x is nearest `x`.
std::size_t nearestTo(const std::vector<audio::Point>& points, double x)
{
    const auto nearest =
        std::min_element(points.begin(), points.end(), [x](const audio::Point& a, const audio::Point& b) {
            return std::fabs(a.x - x) < std::fabs(b.x - x);
        });
    return static_cast<std::size_t>(nearest - points.begin());
}

}  // namespace

audio::Range GraphScreen::traceRange() const
{
    // The square's edges in the world, from the mapping the curves were drawn with.
    return {graph.worldLeft(), graph.worldRight(), graph.worldBottom(), graph.worldTop()};
}

GraphScreen::TracedCurve GraphScreen::explicitCurve(const QString& name, FuncGlobals::ExplicitSnapshot::What what,
                                                    std::shared_ptr<const FuncGlobals::TypedFunction> typed) const
{
    auto kept = std::make_shared<const FuncGlobals::ExplicitSnapshot>(what, std::move(typed));
    TracedCurve curve;
    curve.name = name;
    curve.range = traceRange();
    const audio::Range r = curve.range;
    curve.points = [kept, r](int columns) {
        std::vector<double> xs(static_cast<std::size_t>(std::max(2, columns)));
        for (std::size_t k = 0; k < xs.size(); ++k)
            xs[k] = r.xmin + (r.xmax - r.xmin) * static_cast<double>(k) / static_cast<double>(xs.size() - 1);
        const std::vector<double> ys = kept->at(xs);
        std::vector<audio::Point> points(xs.size());
        for (std::size_t k = 0; k < xs.size(); ++k)
            points[k] = {xs[k], ys[k]};
        return points;
    };
    curve.f = [kept](double x) { return kept->at(x); };
    return curve;
}

GraphScreen::TracedCurve GraphScreen::drawnCurve(const QString& name, std::vector<audio::Point> points) const
{
    auto kept = std::make_shared<const std::vector<audio::Point>>(std::move(points));
    return {name, traceRange(), [kept](int) { return *kept; }, {}};
}

void GraphScreen::forgetAfterClear()
{
    if (sinceClear())
        return;
    traced_.clear();
    walk_.clear();
    walkCurve_ = -1;
    announcement_.clear();
    tracedAfterClear_ = surface->clears();
}

void GraphScreen::noteTraced(TracedCurve curve)
{
    forgetAfterClear();
    // A long run of plots (an animation) keeps its latest curves only.
    constexpr std::size_t kMaxTraced = 24;
    if (traced_.size() == kMaxTraced)
        traced_.erase(traced_.begin());
    traced_.push_back(std::move(curve));
    chosen_ = -1;
    walkCurve_ = -1;
}

const GraphScreen::TracedCurve* GraphScreen::chosenCurve() const
{
    if (!sinceClear() || traced_.empty())
        return nullptr;
    const int last = static_cast<int>(traced_.size()) - 1;
    return &traced_[static_cast<std::size_t>(chosen_ < 0 || chosen_ > last ? last : chosen_)];
}

int GraphScreen::traceColumns() const
{
    // One point for each pixel column of the square as it is shown now.
    return std::max(2, static_cast<int>(std::lround(GraphWindow::Side / twipsPerPixel(surface))) + 1);
}

std::vector<audio::Point> GraphScreen::tracePoints() const
{
    const TracedCurve* curve = chosenCurve();
    return curve ? curve->points(traceColumns()) : std::vector<audio::Point>{};
}

std::vector<float> GraphScreen::traceSamples() const
{
    const TracedCurve* curve = chosenCurve();
    if (!curve)
        return {};
    return audio::samples(audio::tones(curve->points(traceColumns()), curve->range), kTraceSeconds, kTraceRate);
}

QString GraphScreen::announcement() const { return sinceClear() ? announcement_ : QString(); }

void GraphScreen::announce(const QString& text, std::optional<QPointF> marker)
{
    forgetAfterClear();
    announcement_ = text;
    const QRectF square(graph.Left, GraphWindow::Top, GraphWindow::Side, GraphWindow::Side);
    surface->setMarker(marker, marker ? text : QString(), square);
    refreshDescription();
}

void GraphScreen::mnuHearCurve_Click()
{
    const TracedCurve* curve = chosenCurve();
    if (!curve) {
        announce(Plotto::tr("Nothing is drawn to hear yet."));
        return;
    }
    if (audio::play(traceSamples(), kTraceRate)) {
        announce(Plotto::tr("Playing %1.").arg(curve->name));
        return;
    }
    // Said once in a run; the walk goes on without sound.
    if (!silenceSaid_) {
        silenceSaid_ = true;
        announce(Plotto::tr("No sound device: the curve cannot be heard here. Left and Right still walk along it."));
    }
}

bool GraphScreen::walkReady()
{
    forgetAfterClear();
    const TracedCurve* curve = chosenCurve();
    if (!curve)
        return false;
    const int index = static_cast<int>(curve - traced_.data());
    const int columns = traceColumns();
    if (walkCurve_ == index && walkColumns_ == columns)
        return !walk_.empty();
    // A new curve starts in the middle; the same curve at another size stays at the same x.
    const bool resized = walkCurve_ == index && walkAt_ < walk_.size();
    const double x = resized ? walk_[walkAt_].x : 0;
    walk_ = curve->points(columns);
    walkCurve_ = index;
    walkColumns_ = columns;
    walkAt_ = resized ? nearestTo(walk_, x) : walk_.size() / 2;
    return !walk_.empty();
}

std::optional<QPointF> GraphScreen::markerAt(double x, double y) const
{
    // Inside the square always; a gap is marked on the x-axis (or the edge nearest it).
    const audio::Range& r = chosenCurve()->range;
    const double side = GraphWindow::Side;
    const double column = graph.Left + std::clamp((x - r.xmin) / (r.xmax - r.xmin), 0.0, 1.0) * side;
    const double row =
        GraphWindow::Top + std::clamp((r.ymax - (std::isfinite(y) ? y : 0)) / (r.ymax - r.ymin), 0.0, 1.0) * side;
    if (!std::isfinite(column) || !std::isfinite(row))
        return std::nullopt;
    return QPointF(column, row);
}

QString GraphScreen::spokenPoint(double x, double y, double finer) const
{
    // As many decimals as a pixel of the window tells apart (`finer` times more for a refined point).
    const audio::Range& r = chosenCurve()->range;
    const double rx = (r.xmax - r.xmin) / (walkColumns_ - 1) / finer,
                 ry = (r.ymax - r.ymin) / (walkColumns_ - 1) / finer;
    QString text = QStringLiteral("x = ") + said(x, rx) + QStringLiteral(", y = ");
    if (!std::isfinite(y))
        return text + QStringLiteral("undefined");
    return text + said(y, ry) +
           (y > r.ymax   ? Plotto::tr(", above the window")
            : y < r.ymin ? Plotto::tr(", below the window")
                         : QString());
}

void GraphScreen::walkTo(std::size_t index, const QString& before)
{
    walkAt_ = std::min(index, walk_.size() - 1);
    const audio::Point p = walk_[walkAt_];
    announce(before + spokenPoint(p.x, p.y), markerAt(p.x, p.y));
}

bool GraphScreen::exploreKey(int key, Qt::KeyboardModifiers modifiers)
{
    const bool arrow = key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (!(arrow || key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_N) || modifiers & Qt::AltModifier)
        return false;
    // Where the arrows move the cross-hair, the walk takes them with Shift.
    if (arrow && surface->MouseDown && !(modifiers & Qt::ShiftModifier))
        return false;
    if (!walkReady()) {
        announce(Plotto::tr("Nothing is drawn to walk along yet."));
        return true;
    }
    const std::size_t n = walk_.size();
    const std::size_t jump = modifiers & Qt::ControlModifier ? std::max<std::size_t>(1, n / 10) : 1;
    switch (key) {
    case Qt::Key_Left: walkTo(walkAt_ >= jump ? walkAt_ - jump : 0); break;
    case Qt::Key_Right: walkTo(std::min(n - 1, walkAt_ + jump)); break;
    case Qt::Key_Home: walkTo(0); break;
    case Qt::Key_End: walkTo(n - 1); break;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int count = static_cast<int>(traced_.size());
        const int now = static_cast<int>(chosenCurve() - traced_.data());
        chosen_ = (now + (key == Qt::Key_Down ? 1 : count - 1)) % count;
        const double x = walk_[walkAt_].x;
        if (!walkReady()) {
            announce(Plotto::tr("Curve %1 of %2 has no points to walk along.").arg(chosen_ + 1).arg(count));
            break;
        }
        walkTo(nearestTo(walk_, x),
               Plotto::tr("Curve %1 of %2: %3. ").arg(chosen_ + 1).arg(count).arg(chosenCurve()->name));
        break;
    }
    default: {  // N: the nearest root, turn or crossing of the y-axis
        const auto feature = audio::nearestFeature(walk_, walkAt_, chosenCurve()->f);
        if (!feature) {
            announce(Plotto::tr("No root, turn or axis crossing on this curve."));
            break;
        }
        static const char* const kinds[] = {"Root", "Minimum", "Maximum", "Crosses the y-axis"};
        // The walk goes on from the drawn point at the feature; what is said is the feature itself,
        // to the precision of doubles where the curve's function refined it.
        walkAt_ = feature->index;
        const double finer = chosenCurve()->f ? 1000 : 1;
        announce(QLatin1String(kinds[feature->kind]) + QStringLiteral(" at ") +
                     spokenPoint(feature->x, feature->y, finer),
                 markerAt(feature->x, feature->y));
        break;
    }
    }
    return true;
}
