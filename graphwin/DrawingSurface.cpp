#include "graphwin/DrawingSurface.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include "graphwin/Dialogs.h"
#include "graphwin/Raster.h"

namespace {

constexpr double kTwipsPerPixel = 15.0;

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

void DrawingSurface::setPoint(double x, double y, QRgb color)
{
    if (recording_)
        record(DrawOp::PSet, x, y, x, y, color);
    raster::point(target(), toPx(x), toPx(y), penPx_, color);
    touched();
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2, QRgb color)
{
    if (recording_)
        record(DrawOp::Line, x1, y1, x2, y2, color);
    CurrentX = x2;
    CurrentY = y2;
    raster::line(target(), toPx(x1), toPx(y1), toPx(x2), toPx(y2), penPx_, color);
    touched();
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
