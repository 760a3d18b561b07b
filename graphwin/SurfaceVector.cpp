// SPDX-License-Identifier: GPL-3.0-or-later
// The kept picture painted as vector shapes, for export and printing: the same list of operations
// that draws the picture again at another size, handed to a painter in twips instead of the raster.
// A curve that a screen dots column by column is joined into one path, so that it prints as a line;
// a jump between neighbouring dots larger than kJoinRise (an asymptote, a gap) stays a gap.
#include <cmath>
#include <vector>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "graphwin/DrawingSurface.h"

namespace {

// Dots this close across (a column is a twip; a pixel fifteen) are neighbours on one curve.
constexpr double kJoinAcross = 16;
// Neighbours further apart than this up or down are the two sides of a gap, not one curve.
constexpr double kJoinRise = 800;

// Colours as pens. In black and white every coloured ink is black with a line style of its own (in
// the order the colours first appear), a grey stays the grey it is and a light colour (a shaded band)
// becomes a light grey, so that a photocopy keeps the curves apart.
class Inks {
public:
    explicit Inks(const DrawingSurface::VectorLook& look) : look_(look) { }

    QColor colour(QRgb c)
    {
        if (look_.colour)
            return QColor(c);
        const int r = qRed(c), g = qGreen(c), b = qBlue(c);
        if (std::max({r, g, b}) - std::min({r, g, b}) < 24)
            return QColor(c);
        if (0.2126 * r + 0.7152 * g + 0.0722 * b > 0.7 * 255)
            return QColor(200, 200, 200);
        return Qt::black;
    }

    QPen pen(QRgb c, int width)
    {
        QPen p(colour(c), std::max(1, width) * DrawingSurface::kTwipsPerPixel * look_.penScale, Qt::SolidLine,
               Qt::RoundCap, Qt::RoundJoin);
        if (!look_.colour && p.color() == Qt::black && qRed(c) + qGreen(c) + qBlue(c) > 0) {
            static const std::vector<QVector<qreal>> dashes = {
                {}, {6, 3}, {1, 3}, {6, 3, 1, 3}, {6, 3, 1, 3, 1, 3}, {12, 4}, {3, 3}};
            std::size_t k = 0;
            while (k < seen_.size() && seen_[k] != c)
                ++k;
            if (k == seen_.size())
                seen_.push_back(c);
            if (const auto& d = dashes[k % dashes.size()]; !d.empty())
                p.setDashPattern(d);
        }
        return p;
    }

private:
    const DrawingSurface::VectorLook& look_;
    std::vector<QRgb> seen_;
};

// Shapes of one colour and width gathered into paths: a path for each connected curve or chain of
// segments, stroked when it ends; lone dots gathered and filled when the colour, the width or the kind
// of shape changes.
class Stroke {
public:
    Stroke(QPainter& painter, Inks& inks) : painter_(painter), inks_(inks) { }
    ~Stroke() { flush(); }

    void use(QRgb colour, int width)
    {
        if (colour != colour_ || width != width_)
            flush();
        colour_ = colour;
        width_ = width;
    }
    // A dot, joined to the dot before it when they are neighbours on one curve.
    void dot(double x, double y)
    {
        if (!(std::isfinite(x) && std::isfinite(y)))
            return;
        segmentOpen_ = false;
        if (open_ && x == lastX_ && y == lastY_)
            return;
        if (open_ && std::fabs(x - lastX_) <= kJoinAcross && std::fabs(y - lastY_) <= kJoinRise) {
            path_.lineTo(x, y);
            ++corners_;
        } else {
            endDots();
            strokePath();
            path_.moveTo(x, y);
            corners_ = 1;
        }
        open_ = true;
        lastX_ = x;
        lastY_ = y;
    }
    // A segment, continuing the path where it begins at the last one's end.
    void segment(double x1, double y1, double x2, double y2)
    {
        if (!(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)))
            return;
        endDots();
        if (!(segmentOpen_ && x1 == lastX_ && y1 == lastY_)) {
            strokePath();
            path_.moveTo(x1, y1);
        }
        path_.lineTo(x2, y2);
        segmentOpen_ = true;
        lastX_ = x2;
        lastY_ = y2;
    }
    void flush()
    {
        endDots();
        segmentOpen_ = false;
        strokePath();
        if (!dots_.isEmpty())
            painter_.fillPath(dots_, inks_.pen(colour_, width_).color());
        dots_ = QPainterPath();
    }

private:
    // Each connected curve or run of segments is a path of its own (an object in a drawing program).
    void strokePath()
    {
        if (path_.elementCount() > 1)
            painter_.strokePath(path_, inks_.pen(colour_, width_));
        path_ = QPainterPath();
    }

    // A dot with no neighbour is a round spot as wide as the pen.
    void endDots()
    {
        if (open_ && corners_ == 1) {
            const double r = std::max(1, width_) * DrawingSurface::kTwipsPerPixel / 2;
            dots_.addEllipse(QPointF(lastX_, lastY_), r, r);
        }
        open_ = false;
        corners_ = 0;
    }

    QPainter& painter_;
    Inks& inks_;
    QPainterPath path_, dots_;
    QRgb colour_ = 0;
    int width_ = 1;
    bool open_ = false, segmentOpen_ = false;
    int corners_ = 0;
    double lastX_ = 0, lastY_ = 0;
};

}  // namespace

bool DrawingSurface::paintVector(QPainter& painter, const QRectF& clip, const VectorLook& look) const
{
    if (!keptComplete_)
        return false;
    painter.save();
    painter.setClipRect(clip);
    painter.fillRect(clip, QColor(clsColor_));
    painter.setRenderHint(QPainter::Antialiasing, true);
    Inks inks(look);
    {
        Stroke stroke(painter, inks);
        for (const Kept& k : kept_) {
            switch (k.kind) {
            case Kept::Point:
                stroke.use(k.color, k.extra);
                stroke.dot(k.a, k.b);
                break;
            case Kept::Line:
                stroke.use(k.color, k.extra);
                stroke.segment(k.a, k.b, k.c, k.d);
                break;
            case Kept::Batch: {
                stroke.flush();
                stroke.use(k.color, k.extra);
                const BatchRanges& r = batchRanges_[static_cast<std::size_t>(k.a)];
                for (std::size_t i = r.points[0]; i < r.points[1]; i += 2)
                    stroke.dot(batchPoints_[i], batchPoints_[i + 1]);
                for (std::size_t p = r.paths[0], from = r.lines[0]; p < r.paths[1]; from = batchPathEnds_[p++])
                    for (std::size_t i = from + 2; i < batchPathEnds_[p]; i += 2)
                        stroke.segment(batchLines_[i - 2], batchLines_[i - 1], batchLines_[i], batchLines_[i + 1]);
                for (std::size_t i = r.bars[0]; i < r.bars[1]; i += 5) {
                    const double* b = batchBars_.data() + i;
                    barOutline(b[0], b[1], b[2], b[3], b[4], [&stroke](double x1, double y1, double x2, double y2) {
                        stroke.segment(x1, y1, x2, y2);
                    });
                }
                stroke.flush();
                break;
            }
            case Kept::Circle:
                stroke.flush();
                if (std::isfinite(k.a) && std::isfinite(k.b) && std::isfinite(k.c) && std::fabs(k.c) < 1e9) {
                    painter.setPen(inks.pen(k.color, k.extra));
                    painter.setBrush(Qt::NoBrush);
                    painter.drawEllipse(QPointF(k.a, k.b), std::fabs(k.c), std::fabs(k.c));
                }
                break;
            case Kept::Text: {
                stroke.flush();
                const KeptText& t = texts_[static_cast<std::size_t>(k.extra)];
                if (!(std::fabs(k.a) < 1e9 && std::fabs(k.b) < 1e9))
                    break;
                // The font was kept in pixels of the normal-size form; here a pixel is 15 twips.
                QFont font = t.font;
                font.setPixelSize(std::max(1, t.font.pixelSize()) * static_cast<int>(kTwipsPerPixel));
                painter.setFont(font);
                painter.setPen(inks.colour(k.color));
                painter.drawText(QPointF(k.a, k.b + QFontMetricsF(font).ascent()), t.text);
                break;
            }
            case Kept::Clear:
                stroke.flush();
                painter.fillRect(QRectF(k.a, k.b, k.c, k.d), QColor(k.color));
                break;
            }
        }
    }
    painter.restore();
    return true;
}
