// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/GraphViewer.h"

#include <algorithm>
#include <cmath>

#include <QGestureEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QRubberBand>
#include <QTimer>
#include <QWheelEvent>

#include "graphwin/DrawingSurface.h"
#include "graphwin/GraphScreen.h"

GraphViewer::GraphViewer(GraphScreen& screen) : QObject(&screen), screen_(screen)
{
    DrawingSurface* surface = screen_.surface;
    surface->installEventFilter(this);
    surface->grabGesture(Qt::PinchGesture);
    tip_ = new QLabel(surface);
    tip_->setObjectName(QStringLiteral("viewReadout"));
    tip_->setStyleSheet(QStringLiteral("QLabel { background: rgba(255, 255, 225, 235); color: black; "
                                       "border: 1px solid #606060; padding: 1px 4px; }"));
    tip_->setAttribute(Qt::WA_TransparentForMouseEvents);
    tip_->hide();
    band_ = new QRubberBand(QRubberBand::Rectangle, surface);
    frame_ = new QTimer(this);
    frame_->setSingleShot(true);
    connect(frame_, &QTimer::timeout, this, [this] { flush(); });
    sinceFrame_.start();
}

QString GraphViewer::readout() const { return tip_->isHidden() ? QString() : tip_->text(); }

QPointF GraphViewer::twips(QPointF pixels) const { return pixels * twipsPerPixel(screen_.surface); }

bool GraphViewer::inSquare(QPointF pixels) const
{
    const QPointF t = twips(pixels);
    return screen_.graph.strictlyInside(t.x(), t.y());
}

void GraphViewer::zoomLater(QPointF pixels, double factor)
{
    pendingAt_ = pixels;
    pendingFactor_ *= factor;
    // Turns that come faster than a frame are applied together, once the frame has passed.
    if (sinceFrame_.elapsed() >= kFrameMs && !frame_->isActive())
        flush();
    else if (!frame_->isActive())
        frame_->start(std::max<int>(0, kFrameMs - static_cast<int>(sinceFrame_.elapsed())));
}

void GraphViewer::flush()
{
    frame_->stop();
    const double factor = pendingFactor_;
    pendingFactor_ = 1;
    if (factor == 1)
        return;
    const QPointF t = twips(pendingAt_);
    const GraphWindow& g = screen_.graph;
    if (g.XRange == 0 || g.YRange == 0)
        return;
    screen_.zoomViewAt(g.plainWorldX(t.x()), g.plainWorldY(t.y()), factor);
    sinceFrame_.restart();
    showReadout(pendingAt_);
}

void GraphViewer::viewChanged()
{
    if (tip_->isVisible())
        showReadout(pointer_);
}

void GraphViewer::showReadout(QPointF pixels)
{
    pointer_ = pixels;
    const QPointF t = twips(pixels);
    const QString text = screen_.readoutAt(t.x(), t.y());
    if (text.isEmpty()) {
        hideReadout();
        return;
    }
    QFont font = screen_.surface->font();
    font.setPointSizeF(10 * screen_.surface->zoom());
    tip_->setFont(font);
    tip_->setText(text);
    tip_->setAccessibleName(text);  // what a screen reader says of the point under the pointer
    tip_->adjustSize();
    // Above and to the right of the pointer, clear of the point it describes; turned to the other
    // side near the surface's right or top edge.
    const int gap = static_cast<int>(12 * screen_.surface->zoom());
    QPoint at(static_cast<int>(pixels.x()) + gap, static_cast<int>(pixels.y()) - gap - tip_->height());
    if (at.x() + tip_->width() > screen_.surface->width())
        at.setX(static_cast<int>(pixels.x()) - gap - tip_->width());
    if (at.y() < 0)
        at.setY(static_cast<int>(pixels.y()) + gap);
    tip_->move(at);
    tip_->show();
    tip_->raise();
}

void GraphViewer::hideReadout() { tip_->hide(); }

int GraphViewer::handleAt(QPointF pixels)
{
    const GraphWindow& g = screen_.graph;
    if (g.XRange == 0 || g.YRange == 0)
        return -1;
    const double perPixel = twipsPerPixel(screen_.surface);
    const std::vector<GraphScreen::DragHandle> handles = screen_.dragHandles();
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const double dx = g.plainColumn(handles[i].x) / perPixel - pixels.x(),
                     dy = g.plainRow(handles[i].y) / perPixel - pixels.y();
        if (std::hypot(dx, dy) <= kHandlePixels)
            return static_cast<int>(i);
    }
    return -1;
}

bool GraphViewer::pressed(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (!inSquare(at))
        return false;
    const std::optional<view::Limits> now = screen_.shownWindow();
    if (!now)
        return false;
    // Where a press has a meaning of its own (MouseDown), the view takes only the middle button.
    const bool pressesMean = static_cast<bool>(screen_.surface->MouseDown);
    const bool shift = modifiers & Qt::ShiftModifier;
    Drag drag = Drag::None;
    if (!pressesMean && button == Qt::LeftButton && !shift && (handle_ = handleAt(at)) >= 0)
        drag = Drag::Handle;
    else if (pressesMean)
        drag = button == Qt::MiddleButton ? (shift ? Drag::Box : Drag::MaybePan) : Drag::None;
    else if (button == Qt::RightButton || (button == Qt::LeftButton && shift))
        drag = Drag::Box;
    else if (button == Qt::LeftButton || button == Qt::MiddleButton)
        drag = Drag::MaybePan;
    if (drag == Drag::None)
        return false;
    drag_ = drag;
    pressAt_ = at;
    atPress_ = *now;
    if (drag_ == Drag::Box) {
        band_->setGeometry(QRect(at.toPoint(), QSize()));
        band_->show();
    }
    return false;  // the press itself still reaches the surface (its focus, its own meaning)
}

bool GraphViewer::moved(QPointF at)
{
    switch (drag_) {
    case Drag::None:
        showReadout(at);
        if (!screen_.surface->MouseDown) {
            if (handleAt(at) >= 0)
                screen_.surface->setCursor(Qt::SizeHorCursor);
            else
                screen_.surface->unsetCursor();
        }
        return false;
    case Drag::Handle: {
        const std::vector<GraphScreen::DragHandle> handles = screen_.dragHandles();
        const QPointF t = twips(at);
        const GraphWindow& g = screen_.graph;
        if (handle_ >= 0 && handle_ < static_cast<int>(handles.size()) && g.XRange != 0 && g.YRange != 0) {
            const GraphScreen::DragHandle& h = handles[static_cast<std::size_t>(handle_)];
            h.moveTo(g.plainWorldX(t.x()), h.alongX ? h.y : g.plainWorldY(t.y()));
        }
        showReadout(at);
        return true;
    }
    case Drag::MaybePan:
        if (std::hypot(at.x() - pressAt_.x(), at.y() - pressAt_.y()) <= kDragPixels)
            return true;
        drag_ = Drag::Pan;
        screen_.surface->setCursor(Qt::ClosedHandCursor);
        [[fallthrough]];
    case Drag::Pan: {
        // Panned from the window at the press, so that the point pressed stays under the pointer.
        const double perPixel = twipsPerPixel(screen_.surface) / GraphWindow::Side;
        const double dx = -(at.x() - pressAt_.x()) * perPixel * atPress_.width();
        const double dy = (at.y() - pressAt_.y()) * perPixel * atPress_.height();
        screen_.moveView(view::panBy(atPress_, dx, dy), false);
        hideReadout();
        return true;
    }
    case Drag::Box: band_->setGeometry(QRectF(pressAt_, at).normalized().toRect()); return true;
    }
    return false;
}

bool GraphViewer::released(QPointF at)
{
    const Drag drag = std::exchange(drag_, Drag::None);
    screen_.surface->unsetCursor();
    if (drag == Drag::Handle)
        return true;
    band_->hide();
    if (drag == Drag::Pan) {
        if (const auto now = screen_.shownWindow()) {
            // One step of the history for the whole drag.
            screen_.viewHistory_.moveTo(atPress_);
            screen_.viewHistory_.moveTo(*now);
        }
        showReadout(at);
        return true;
    }
    if (drag == Drag::Box && std::fabs(at.x() - pressAt_.x()) > kDragPixels &&
        std::fabs(at.y() - pressAt_.y()) > kDragPixels) {
        const GraphWindow& g = screen_.graph;
        const QPointF a = twips(pressAt_), b = twips(at);
        screen_.showWindow(
            view::boxBetween(g.plainWorldX(a.x()), g.plainWorldY(a.y()), g.plainWorldX(b.x()), g.plainWorldY(b.y())));
        return true;
    }
    return drag == Drag::Box;
}

bool GraphViewer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != screen_.surface)
        return false;
    switch (event->type()) {
    case QEvent::Wheel: {
        auto* wheel = static_cast<QWheelEvent*>(event);
        if (!inSquare(wheel->position()))
            return false;
        const int angle = wheel->angleDelta().y() != 0 ? wheel->angleDelta().y() : wheel->pixelDelta().y();
        if (angle != 0)
            zoomLater(wheel->position(), view::wheelFactor(angle));
        return true;
    }
    case QEvent::NativeGesture: {
        auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() != Qt::ZoomNativeGesture || !inSquare(gesture->position()))
            return false;
        zoomLater(gesture->position(), 1 + gesture->value());
        return true;
    }
    case QEvent::Gesture: {
        auto* gestures = static_cast<QGestureEvent*>(event);
        if (auto* pinch = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture))) {
            const QPointF at = screen_.surface->mapFromGlobal(pinch->centerPoint());
            if (inSquare(at) && pinch->scaleFactor() > 0)
                zoomLater(at, pinch->scaleFactor());
            gestures->accept(pinch);
            return true;
        }
        return false;
    }
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        return pressed(mouse->position(), mouse->button(), mouse->modifiers());
    }
    case QEvent::MouseMove: return moved(static_cast<QMouseEvent*>(event)->position());
    case QEvent::MouseButtonRelease: return released(static_cast<QMouseEvent*>(event)->position());
    case QEvent::Leave: hideReadout(); return false;
    default: return false;
    }
}
