// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface's side that faces a person: the picture painted on the screen with what goes
// over it and never into it (the focus frame, the keyboard's cross-hair, the walk's marker), and the
// mouse and the keyboard handed to the screen's handlers in twips.
#include "graphwin/DrawingSurface.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "graphwin/Dialogs.h"

void DrawingSurface::paintEvent(QPaintEvent*)
{
    dirty_ = false;
    QPainter painter(this);
    painter.drawImage(QRectF(QPointF(0, 0), QSizeF(width(), height())), image_);
    const double k = 1.0 / twipsPerPixel(this);
    if (marker_)
        paintMarker(painter, k);
    if (!hasFocus() || focusArea_.isEmpty())
        return;
    // The focus frame and cross-hair are drawn over the picture, never into it.
    const QRectF area(focusArea_.topLeft() * k, focusArea_.size() * k);
    painter.setPen(QPen(QColor(0x00, 0x00, 0x99), 2));
    painter.drawRect(area.adjusted(-2, -2, 2, 2));
    if (!MouseDown)
        return;
    const QPointF at = pointer() * k;
    painter.setPen(QPen(QColor(0xCC, 0x00, 0x00), 2));
    painter.drawLine(QPointF(at.x() - 12, at.y()), QPointF(at.x() + 12, at.y()));
    painter.drawLine(QPointF(at.x(), at.y() - 12), QPointF(at.x(), at.y() + 12));
    painter.drawEllipse(at, 5, 5);
}

void DrawingSurface::paintMarker(QPainter& painter, double k)
{
    // A ring wide enough to be seen from the back of a room, in a colour no family draws in, and the
    // caption on a white band so that it reads over any curve.
    const QPointF at = *marker_ * k;
    const double scale = std::max(1.0, zoom_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 7 * scale));
    painter.drawEllipse(at, 9 * scale, 9 * scale);
    painter.setPen(QPen(QColor(0x99, 0x00, 0x66), 4 * scale));
    painter.drawEllipse(at, 9 * scale, 9 * scale);
    if (markerCaption_.isEmpty())
        return;
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::lround(18 * scale)));
    font.setBold(true);
    painter.setFont(font);
    const QRectF area(markerArea_.topLeft() * k, markerArea_.size() * k);
    // Below the top limit box, which stands over the square's top edge.
    // Only as wide as its words, so that it hides as little of the picture as it can.
    const QFontMetricsF metrics(font);
    const QString words = metrics.elidedText(markerCaption_, Qt::ElideRight, area.width() - 20);
    const QRectF band(area.left() + 4, area.top() + 16 * scale, metrics.horizontalAdvance(words) + 12,
                      metrics.height() + 8);
    painter.fillRect(band, QColor(255, 255, 255, 230));
    painter.setPen(QColor(0x33, 0x00, 0x22));
    painter.drawText(band.adjusted(6, 0, -6, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, words);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void DrawingSurface::setMarker(std::optional<QPointF> at, const QString& caption, const QRectF& area)
{
    marker_ = at;
    markerCaption_ = caption;
    markerArea_ = area;
    update();
}

void DrawingSurface::setFocusArea(const QRectF& area)
{
    focusArea_ = area;
    pointerTwips_ = area.center();
    setFocusPolicy(Qt::StrongFocus);
}

QPointF DrawingSurface::pointer() const
{
    // Snapped to the logical pixel a mouse would press, then converted as a press there is.
    const double t = twipsPerPixel(this);
    return {std::round(pointerTwips_.x() / t) * t, std::round(pointerTwips_.y() / t) * t};
}

void DrawingSurface::movePointer(double dxTwips, double dyTwips)
{
    const double x = std::clamp(pointerTwips_.x() + dxTwips, focusArea_.left(), focusArea_.right());
    const double y = std::clamp(pointerTwips_.y() + dyTwips, focusArea_.top(), focusArea_.bottom());
    pointerTwips_ = QPointF(x, y);
    update();
}

void DrawingSurface::pressAtPointer(int button)
{
    if (!MouseDown)
        return;
    const QPointF at = pointer();
    guarded([&] { MouseDown(button, 0, at.x(), at.y()); });
}

void DrawingSurface::keyPressEvent(QKeyEvent* event)
{
    // Keys a child left unused travel up to the surface: only its own focus moves the cross-hair.
    if (!hasFocus() || focusArea_.isEmpty()) {
        event->ignore();
        return;
    }
    if (KeyDown && KeyDown(event->key(), event->modifiers())) {
        event->accept();
        return;
    }
    const double step = event->modifiers() & Qt::ControlModifier ? kPointerStep / 10 : kPointerStep;
    switch (event->key()) {
    case Qt::Key_Left: movePointer(-step, 0); break;
    case Qt::Key_Right: movePointer(step, 0); break;
    case Qt::Key_Up: movePointer(0, -step); break;
    case Qt::Key_Down: movePointer(0, step); break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!MouseDown) {
            event->ignore();
            return;
        }
        pressAtPointer(event->modifiers() & Qt::ShiftModifier ? RightButton : LeftButton);
        break;
    default: event->ignore(); return;
    }
    event->accept();
}

void DrawingSurface::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void DrawingSurface::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void DrawingSurface::mousePressEvent(QMouseEvent* event)
{
    if (!MouseDown || childAt(event->position().toPoint()))
        return;
    const int button = buttonCode(event->button()), shift = shiftCode(event->modifiers());
    const double t = twipsPerPixel(this);
    const double x = event->position().x() * t, y = event->position().y() * t;
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
    const double t = twipsPerPixel(this);
    const double x = event->position().x() * t, y = event->position().y() * t;
    guarded([&] { MouseMove(buttons, shift, x, y); });
}
