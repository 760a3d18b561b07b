// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/FormArea.h"

#include <algorithm>
#include <cmath>

#include <QShortcut>

#include "graphwin/DrawingSurface.h"

FormArea::FormArea(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, Qt::white);
    setPalette(p);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FormArea::setForm(DrawingSurface* form)
{
    form_ = form;
    updateGeometry();
}

QSize FormArea::sizeHint() const { return form_ ? form_->normalSize() : QSize(1, 1); }

double FormArea::fittingZoom(QSize normal, QSize room)
{
    if (normal.isEmpty())
        return 1.0;
    const double zoom = std::min(static_cast<double>(room.width()) / normal.width(),
                                 static_cast<double>(room.height()) / normal.height());
    return std::clamp(zoom, 1.0 / 64, DrawingSurface::kMaxZoom);
}

void FormArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (!form_)
        return;
    form_->setZoom(fittingZoom(form_->normalSize(), size()));
    form_->move(std::max(0, (width() - form_->width()) / 2), std::max(0, (height() - form_->height()) / 2));
}

QSize openingSize(QSize normalForm, QSize frame, QSize available)
{
    const QSize room = available - frame;
    if (room.width() >= normalForm.width() && room.height() >= normalForm.height())
        return normalForm + frame;
    const double zoom = FormArea::fittingZoom(normalForm, room.expandedTo(QSize(1, 1)));
    return QSize(static_cast<int>(std::lround(normalForm.width() * zoom)),
                 static_cast<int>(std::lround(normalForm.height() * zoom))) +
           frame;
}

void toggleFullScreen(QWidget* window)
{
    // Only the full-screen flag changes: a maximized window keeps its maximized flag under it and
    // returns to it, where showNormal() would drop it.
    window->setWindowState(window->windowState() ^ Qt::WindowFullScreen);
}

void addFullScreenKey(QWidget* window)
{
    auto* key = new QShortcut(QKeySequence(Qt::Key_F11), window);
    QObject::connect(key, &QShortcut::activated, window, [window] { toggleFullScreen(window); });
}
