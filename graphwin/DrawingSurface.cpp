#include "graphwin/DrawingSurface.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include "graphwin/Dialogs.h"

namespace {

constexpr double kTwipsPerPixel = 15.0;

// Clips the segment (x1, y1)-(x2, y2) to the rectangle [lo, hiX] x [lo, hiY] (Liang-Barsky).
// Returns false when nothing of it is inside.
bool clipSegment(double& x1, double& y1, double& x2, double& y2, double lo, double hiX, double hiY)
{
    double t0 = 0.0, t1 = 1.0;
    const double dx = x2 - x1, dy = y2 - y1;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {x1 - lo, hiX - x1, y1 - lo, hiY - y1};
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0.0) {
            if (q[i] < 0.0)
                return false;
            continue;
        }
        const double r = q[i] / p[i];
        if (p[i] < 0.0) {
            if (r > t1)
                return false;
            t0 = std::max(t0, r);
        } else {
            if (r < t0)
                return false;
            t1 = std::min(t1, r);
        }
    }
    const double ox = x1, oy = y1;
    x1 = ox + t0 * dx;
    y1 = oy + t0 * dy;
    x2 = ox + t1 * dx;
    y2 = oy + t1 * dy;
    return true;
}

}  // namespace

DrawingSurface::DrawingSurface(double widthTwips, double heightTwips, QWidget* parent)
    : QWidget(parent), widthTwips_(widthTwips), heightTwips_(heightTwips)
{
    scale_ = std::max(1.0, qApp ? qApp->devicePixelRatio() : 1.0);
    pxPerTwip_ = scale_ / kTwipsPerPixel;
    const int w = static_cast<int>(std::ceil(widthTwips / kTwipsPerPixel));
    const int h = static_cast<int>(std::ceil(heightTwips / kTwipsPerPixel));
    setFixedSize(w, h);
    image_ = QImage(static_cast<int>(std::ceil(w * scale_)), static_cast<int>(std::ceil(h * scale_)), QImage::Format_RGB32);
    image_.setDevicePixelRatio(scale_);
    bits_ = reinterpret_cast<QRgb*>(image_.bits());
    stride_ = image_.bytesPerLine() / static_cast<long>(sizeof(QRgb));
    widthPx_ = image_.width();
    heightPx_ = image_.height();
    font_ = QFont(QStringLiteral("Times New Roman"));
    font_.setPointSizeF(8.25);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    image_.fill(BackColor);
}

void DrawingSurface::Cls()
{
    image_.fill(BackColor);
    ops_.clear();
    CurrentX = CurrentY = 0;
    touched();
}

void DrawingSurface::record(DrawOp::Kind kind, double x1, double y1, double x2, double y2, QRgb color, const QString& text)
{
    ops_.push_back(DrawOp{kind, x1, y1, x2, y2, color, drawWidth_, text});
}

void DrawingSurface::plot(long px, long py, QRgb color)
{
    if (penPx_ == 1) {
        if (px >= 0 && px < widthPx_ && py >= 0 && py < heightPx_)
            bits_[py * stride_ + px] = color;
        return;
    }
    // A wide pen: a square of the pen's width centred on the point.
    const long half = penPx_ / 2;
    const long x0 = std::max(0L, px - half), x1 = std::min(widthPx_ - 1, px - half + penPx_ - 1);
    const long y0 = std::max(0L, py - half), y1 = std::min(heightPx_ - 1, py - half + penPx_ - 1);
    for (long y = y0; y <= y1; ++y)
        for (long x = x0; x <= x1; ++x)
            bits_[y * stride_ + x] = color;
}

void DrawingSurface::setPoint(double x, double y, QRgb color)
{
    if (recording_)
        record(DrawOp::PSet, x, y, x, y, color);
    const double fx = std::floor(toPx(x));
    const double fy = std::floor(toPx(y));
    const double margin = penPx_;
    if (fx >= -margin && fx < widthPx_ + margin && fy >= -margin && fy < heightPx_ + margin)
        plot(static_cast<long>(fx), static_cast<long>(fy), color);
    touched();
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2, QRgb color)
{
    if (recording_)
        record(DrawOp::Line, x1, y1, x2, y2, color);
    CurrentX = x2;
    CurrentY = y2;
    rasterLine(toPx(x1), toPx(y1), toPx(x2), toPx(y2), color);
    touched();
}

void DrawingSurface::rasterLine(double x1, double y1, double x2, double y2, QRgb color)
{
    if (!(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)))
        return;
    const double lo = -1.0 - penPx_;
    if (!clipSegment(x1, y1, x2, y2, lo, widthPx_ + penPx_, heightPx_ + penPx_))
        return;
    long ax = static_cast<long>(std::floor(x1)), ay = static_cast<long>(std::floor(y1));
    const long bx = static_cast<long>(std::floor(x2)), by = static_cast<long>(std::floor(y2));
    if (penPx_ == 1 && ay == by && ay >= 0 && ay < heightPx_) {
        // Horizontal: one run of the row.
        const long from = std::max(0L, std::min(ax, bx)), to = std::min(widthPx_ - 1, std::max(ax, bx));
        std::fill(bits_ + ay * stride_ + from, bits_ + ay * stride_ + to + 1, color);
        return;
    }
    if (penPx_ == 1 && ax == bx) {
        if (ax < 0 || ax >= widthPx_)
            return;
        const long from = std::max(0L, std::min(ay, by)), to = std::min(heightPx_ - 1, std::max(ay, by));
        for (long y = from; y <= to; ++y)
            bits_[y * stride_ + ax] = color;
        return;
    }
    const long dx = std::labs(bx - ax), dy = -std::labs(by - ay);
    const long sx = ax < bx ? 1 : -1, sy = ay < by ? 1 : -1;
    long err = dx + dy;
    for (;;) {
        plot(ax, ay, color);
        if (ax == bx && ay == by)
            break;
        const long e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            ax += sx;
        }
        if (e2 <= dx) {
            err += dx;
            ay += sy;
        }
    }
}

void DrawingSurface::Circle(double x, double y, double r, QRgb color)
{
    if (recording_)
        record(DrawOp::Circle, x, y, r, 0, color);
    CurrentX = x;
    CurrentY = y;
    const double cx = x / kTwipsPerPixel, cy = y / kTwipsPerPixel, rr = std::fabs(r) / kTwipsPerPixel;
    const double limit = 1e6;
    if (!(std::fabs(cx) < limit && std::fabs(cy) < limit && rr < limit))
        return;
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QColor(color), drawWidth_));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(cx, cy), rr, rr);
    painter.end();
    bits_ = reinterpret_cast<QRgb*>(image_.bits());
    touched();
}

void DrawingSurface::clearArea(double left, double top, double width, double height)
{
    QPainter painter(&image_);
    painter.fillRect(QRectF(left / kTwipsPerPixel, top / kTwipsPerPixel, width / kTwipsPerPixel, height / kTwipsPerPixel),
                     QColor(BackColor));
    painter.end();
    bits_ = reinterpret_cast<QRgb*>(image_.bits());
    touched();
}

QFont DrawingSurface::scaledFont() const
{
    QFont f = font_;
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(font_.pointSizeF() * 4.0 / 3.0))));
    return f;
}

double DrawingSurface::TextWidth(const QString& text) const
{
    return QFontMetricsF(scaledFont()).horizontalAdvance(text) * kTwipsPerPixel;
}

double DrawingSurface::TextHeight(const QString&) const
{
    return QFontMetricsF(scaledFont()).height() * kTwipsPerPixel;
}

void DrawingSurface::Print(const QString& text, bool newline)
{
    if (recording_)
        record(DrawOp::Text, CurrentX, CurrentY, CurrentX, CurrentY, ForeColor, text);
    const QFont f = scaledFont();
    const double x = CurrentX / kTwipsPerPixel, y = CurrentY / kTwipsPerPixel;
    if (std::fabs(x) < 1e6 && std::fabs(y) < 1e6) {
        QPainter painter(&image_);
        painter.setFont(f);
        painter.setPen(QColor(ForeColor));
        painter.drawText(QPointF(x, y + QFontMetricsF(f).ascent()), text);
        painter.end();
        bits_ = reinterpret_cast<QRgb*>(image_.bits());
    }
    if (newline) {
        CurrentX = 0;
        CurrentY += TextHeight(text);
    } else {
        CurrentX += TextWidth(text);
    }
    touched();
}

void DrawingSurface::setDrawWidth(int width)
{
    drawWidth_ = std::max(1, width);
    penPx_ = std::max(1, static_cast<int>(std::lround(drawWidth_ * scale_)));
}

void DrawingSurface::setFontSize(double points) { font_.setPointSizeF(std::clamp(points, 1.0, 2048.0)); }

void DrawingSurface::setFontUnderline(bool underline) { font_.setUnderline(underline); }

QRgb DrawingSurface::pixel(double xTwips, double yTwips) const
{
    const double fx = std::floor(toPx(xTwips)), fy = std::floor(toPx(yTwips));
    if (!(fx >= 0 && fx < widthPx_ && fy >= 0 && fy < heightPx_))
        return 0;
    return bits_[static_cast<long>(fy) * stride_ + static_cast<long>(fx)];
}

void DrawingSurface::refreshNow()
{
    dirty_ = false;
    repaint();
}

void DrawingSurface::paintEvent(QPaintEvent*)
{
    dirty_ = false;
    QPainter painter(this);
    painter.drawImage(QPointF(0, 0), image_);
}

void DrawingSurface::mousePressEvent(QMouseEvent* event)
{
    if (!MouseDown || childAt(event->position().toPoint()))
        return;
    const int button = buttonCode(event->button()), shift = shiftCode(event->modifiers());
    const double x = event->position().x() * kTwipsPerPixel, y = event->position().y() * kTwipsPerPixel;
    guarded([&] { MouseDown(button, shift, x, y); });
}

void DrawingSurface::mouseMoveEvent(QMouseEvent* event)
{
    if (!MouseMove || childAt(event->position().toPoint()))
        return;
    int buttons = 0;
    if (event->buttons() & Qt::LeftButton)
        buttons |= LeftButton;
    if (event->buttons() & Qt::RightButton)
        buttons |= RightButton;
    if (event->buttons() & Qt::MiddleButton)
        buttons |= MiddleButton;
    const int shift = shiftCode(event->modifiers());
    const double x = event->position().x() * kTwipsPerPixel, y = event->position().y() * kTwipsPerPixel;
    guarded([&] { MouseMove(buttons, shift, x, y); });
}
