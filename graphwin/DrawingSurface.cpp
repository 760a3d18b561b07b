// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface's picture: the backing image at the form's zoom, the shapes and text drawn
// into it and kept for drawing it again at another size or in projector mode, the widgets placed on
// it at that zoom, and copies of what it shows. (Batches: SurfaceBatch.cpp; the pointer, the keys
// and what is painted over the picture: SurfacePointer.cpp.)
#include "graphwin/DrawingSurface.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>

#include "graphwin/Raster.h"

DrawingSurface::DrawingSurface(double widthTwips, double heightTwips, QWidget* parent)
    : TwipArea(parent), widthTwips_(widthTwips), heightTwips_(heightTwips)
{
    screenScale_ = std::max(1.0, qApp ? qApp->devicePixelRatio() : 1.0);
    scale_ = screenScale_;
    normalSize_ = QSize(static_cast<int>(std::ceil(widthTwips / kTwipsPerPixel)),
                        static_cast<int>(std::ceil(heightTwips / kTwipsPerPixel)));
    setFixedSize(normalSize_);
    font_ = QFont(QStringLiteral("Times New Roman"));
    font_.setPointSizeF(8.25);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    allocateImage();
    image_.fill(BackColor);
    // The whole room for kept operations is reserved at once: memory is only committed as it is
    // used, and the list never moves while a heavy click fills it.
    kept_.reserve(kMaxKept);
}

void DrawingSurface::allocateImage()
{
    pxPerTwip_ = scale_ / kTwipsPerPixel;
    penPx_ = penFor(drawWidth_);
    adoptImage(QImage(std::max(1, static_cast<int>(std::ceil(normalSize_.width() * scale_))),
                      std::max(1, static_cast<int>(std::ceil(normalSize_.height() * scale_))), QImage::Format_RGB32));
}

// Makes `image` the backing image at the present scale, with the pointers the pixel writer uses.
void DrawingSurface::adoptImage(QImage image)
{
    image_ = std::move(image);
    image_.setDevicePixelRatio(scale_);
    bits_ = reinterpret_cast<QRgb*>(image_.bits());
    stride_ = image_.bytesPerLine() / static_cast<long>(sizeof(QRgb));
    widthPx_ = image_.width();
    heightPx_ = image_.height();
}

void DrawingSurface::setZoom(double zoom)
{
    if (!std::isfinite(zoom))
        return;
    zoom = std::clamp(zoom, 1.0 / 64, kMaxZoom);
    if (zoom == zoom_)
        return;
    zoom_ = zoom;
    setFixedSize(std::max(1, static_cast<int>(std::lround(normalSize_.width() * zoom_))),
                 std::max(1, static_cast<int>(std::lround(normalSize_.height() * zoom_))));
    const QImage old = image_;
    scale_ = screenScale_ * zoom_;
    allocateImage();
    if (keptComplete_) {
        replay();
    } else {
        // More was drawn than is kept: the picture is scaled rather than lost.
        adoptImage(old.scaled(widthPx_, heightPx_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32));
    }
    placeChildren();
    update();
    Q_EMIT zoomChanged(zoom_);
}

void DrawingSurface::replay()
{
    image_.fill(clsColor_);
    for (const Kept& k : kept_) {
        switch (k.kind) {
        case Kept::Line:
        case Kept::Point: {
            const int pen = penFor(k.extra);
            if (k.kind == Kept::Line)
                raster::line(target(), toPx(k.a), toPx(k.b), toPx(k.c), toPx(k.d), pen, ink(k.color));
            else
                raster::point(target(), toPx(k.a), toPx(k.b), pen, ink(k.color));
            break;
        }
        case Kept::Circle: drawCircle(k.a, k.b, k.c, k.color, k.extra); break;
        case Kept::Text: drawText(k.a, k.b, texts_[static_cast<std::size_t>(k.extra)], k.color); break;
        case Kept::Clear: drawClear(k.a, k.b, k.c, k.d, k.color); break;
        case Kept::Batch: {
            raster::SameColourWriter w(target(), penFor(k.extra), ink(k.color));
            const BatchRanges& r = batchRanges_[static_cast<std::size_t>(k.a)];
            for (std::size_t i = r.points[0]; i < r.points[1]; i += 2)
                w.point(toPx(batchPoints_[i]), toPx(batchPoints_[i + 1]));
            for (std::size_t p = r.paths[0], from = r.lines[0]; p < r.paths[1]; from = batchPathEnds_[p++])
                for (std::size_t i = from + 2; i < batchPathEnds_[p]; i += 2)
                    w.line(toPx(batchLines_[i - 2]), toPx(batchLines_[i - 1]), toPx(batchLines_[i]),
                           toPx(batchLines_[i + 1]));
            for (std::size_t i = r.bars[0]; i < r.bars[1]; i += 5) {
                const double* b = batchBars_.data() + i;
                w.bar(toPx(b[0]), toPx(b[1]), toPx(b[2]), toPx(b[3]), toPx(b[4]));
            }
            break;
        }
        }
    }
}

// Every widget placed on the surface in twips takes its place and size at the present zoom; fonts
// grow with it, and grids widen their columns.
void DrawingSurface::placeChildren()
{
    const auto scaleFont = [this](QWidget* w) {
        QVariant base = w->property("plottoBaseFont");
        if (!base.isValid()) {
            base = QVariant::fromValue(w->font());
            w->setProperty("plottoBaseFont", base);
        }
        QFont f = base.value<QFont>();
        if (f.pointSizeF() > 0)
            f.setPointSizeF(f.pointSizeF() * zoom_);
        else if (f.pixelSize() > 0)
            f.setPixelSize(std::max(1, static_cast<int>(std::lround(f.pixelSize() * zoom_))));
        w->setFont(f);
    };
    scaleFont(this);
    const double k = zoom_ / kTwipsPerPixel;
    for (QWidget* w : findChildren<QWidget*>()) {
        if (const QVariant twips = w->property(kTwipsProperty); twips.isValid()) {
            const QRectF r = twips.toRectF();
            w->setGeometry(static_cast<int>(std::lround(r.x() * k)), static_cast<int>(std::lround(r.y() * k)),
                           std::max(1, static_cast<int>(std::lround(r.width() * k))),
                           std::max(1, static_cast<int>(std::lround(r.height() * k))));
        }
        if (w->testAttribute(Qt::WA_SetFont) || w->property("plottoBaseFont").isValid())
            scaleFont(w);
        if (auto* grid = qobject_cast<Grid*>(w))
            grid->applyZoom(zoom_);
    }
}

void DrawingSurface::Cls()
{
    ++clears_;
    image_.fill(BackColor);
    ops_.clear();
    kept_.clear();
    texts_.clear();
    batchPoints_.clear();
    batchLines_.clear();
    batchPathEnds_.clear();
    batchBars_.clear();
    batchRanges_.clear();
    keptComplete_ = true;
    clsColor_ = BackColor;
    CurrentX = CurrentY = 0;
    touched();
}

void DrawingSurface::record(DrawOp::Kind kind, double x1, double y1, double x2, double y2, QRgb color,
                            const QString& text)
{
    ops_.push_back(DrawOp{kind, x1, y1, x2, y2, color, drawWidth_, text});
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2, QRgb color)
{
    if (recording_)
        record(DrawOp::Line, x1, y1, x2, y2, color);
    retain(Kept::Line, x1, y1, x2, y2, color, drawWidth_);
    CurrentX = x2;
    CurrentY = y2;
    raster::line(target(), toPx(x1), toPx(y1), toPx(x2), toPx(y2), penPx_, ink(color));
    touched();
}

void DrawingSurface::Circle(double x, double y, double r, QRgb color)
{
    if (recording_)
        record(DrawOp::Circle, x, y, r, 0, color);
    retain(Kept::Circle, x, y, r, 0, color, drawWidth_);
    CurrentX = x;
    CurrentY = y;
    drawCircle(x, y, r, color, drawWidth_);
    touched();
}

template <class Paint>
void DrawingSurface::paintDevice(Paint paint)
{
    image_.setDevicePixelRatio(1);
    {
        QPainter painter(&image_);
        paint(painter);
    }
    image_.setDevicePixelRatio(scale_);
    bits_ = reinterpret_cast<QRgb*>(image_.bits());
}

int DrawingSurface::penFor(double width) const
{
    return std::max(1, static_cast<int>(std::lround(width * scale_ * (projector_ ? kProjectorPen : 1.0))));
}

QRgb DrawingSurface::ink(QRgb color)
{
    if (!projector_)
        return color;
    // Darkens by steps of a tenth until the colour's contrast against white reaches 3:1 (relative
    // luminance at most 0.3, the non-text contrast that accessibility guidelines ask for).
    auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    double r = qRed(color) / 255.0, g = qGreen(color) / 255.0, b = qBlue(color) / 255.0;
    for (int step = 0; step < 40; ++step) {
        if (0.2126 * linear(r) + 0.7152 * linear(g) + 0.0722 * linear(b) <= 0.3)
            break;
        r *= 0.9;
        g *= 0.9;
        b *= 0.9;
    }
    return qRgb(static_cast<int>(std::lround(r * 255)), static_cast<int>(std::lround(g * 255)),
                static_cast<int>(std::lround(b * 255)));
}

void DrawingSurface::setProjectorMode(bool on)
{
    if (on == projector_)
        return;
    projector_ = on;
    for (QWidget* w : QApplication::allWidgets())
        if (auto* surface = qobject_cast<DrawingSurface*>(w)) {
            surface->penPx_ = surface->penFor(surface->drawWidth_);
            if (surface->keptComplete_)
                surface->replay();
            surface->update();
        }
}

void DrawingSurface::drawCircle(double x, double y, double r, QRgb color, int width)
{
    // Device pixels as the logical ones times the scale, so that a form at its normal size draws to
    // the very same pixels as a painter in logical pixels did.
    const double cx = x / kTwipsPerPixel * scale_, cy = y / kTwipsPerPixel * scale_;
    const double rr = std::fabs(r) / kTwipsPerPixel * scale_ * (projector_ ? kProjectorRadius : 1.0);
    const double limit = 1e6 * scale_;
    if (!(std::fabs(cx) < limit && std::fabs(cy) < limit && rr < limit))
        return;
    paintDevice([&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(QColor(ink(color)), penFor(width)));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(cx, cy), rr, rr);
    });
}

void DrawingSurface::clearArea(double left, double top, double width, double height)
{
    retain(Kept::Clear, left, top, width, height, BackColor, 0);
    drawClear(left, top, width, height, BackColor);
    touched();
}

void DrawingSurface::drawClear(double left, double top, double width, double height, QRgb color)
{
    paintDevice([&](QPainter& painter) {
        painter.fillRect(QRectF(left / kTwipsPerPixel * scale_, top / kTwipsPerPixel * scale_,
                                width / kTwipsPerPixel * scale_, height / kTwipsPerPixel * scale_),
                         QColor(color));
    });
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
    KeptText kept{text, scaledFont()};
    drawText(CurrentX, CurrentY, kept, ForeColor);
    if (retain(Kept::Text, CurrentX, CurrentY, 0, 0, ForeColor, static_cast<int>(texts_.size())))
        texts_.push_back(std::move(kept));
    if (newline) {
        CurrentX = 0;
        CurrentY += TextHeight(text);
    } else {
        CurrentX += TextWidth(text);
    }
    touched();
}

void DrawingSurface::drawText(double xTwips, double yTwips, const KeptText& text, QRgb color)
{
    const double x = xTwips / kTwipsPerPixel, y = yTwips / kTwipsPerPixel;
    if (!(std::fabs(x) < 1e6 && std::fabs(y) < 1e6))
        return;
    // The text grows with the form: its font, kept at the normal size, is scaled to device pixels.
    QFont font = text.font;
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * scale_))));
    paintDevice([&](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(QColor(color));
        painter.drawText(QPointF(x * scale_, y * scale_ + QFontMetricsF(font).ascent()), text.text);
    });
}

void DrawingSurface::setDrawWidth(int width)
{
    drawWidth_ = std::max(1, width);
    penPx_ = penFor(drawWidth_);
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

QImage DrawingSurface::picture(const QRectF& twips) const
{
    const QRect px =
        QRectF(toPx(twips.left()), toPx(twips.top()), twips.width() * pxPerTwip_, twips.height() * pxPerTwip_)
            .toAlignedRect()
            .intersected(image_.rect());
    QImage copy = image_.copy(px);
    copy.setDevicePixelRatio(1);
    return copy;
}
