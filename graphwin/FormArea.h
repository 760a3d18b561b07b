// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The client area of a window that shows a form of fixed proportions: it gives the form the
// largest zoom at which it fits, and centres it on a background of the form's own colour.
#include <QWidget>

class DrawingSurface;

class FormArea : public QWidget {
    Q_OBJECT
public:
    explicit FormArea(QWidget* parent);
    // The form (a surface created with this area as its parent).
    void setForm(DrawingSurface* form);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {1, 1}; }
    // The zoom at which a form of the normal size `normal` fits in `room`.
    static double fittingZoom(QSize normal, QSize room);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    DrawingSurface* form_ = nullptr;
};

// F11 on `window`: full screen, and back to the state it had before (maximized when it was).
void toggleFullScreen(QWidget* window);
// Makes F11 toggle full screen on `window`.
void addFullScreenKey(QWidget* window);

// The size to open a window at: its normal size, or smaller, scaled as a whole, where the screen's
// available area is smaller. `frame` is what the window adds around the form (menu bar, borders).
QSize openingSize(QSize normalForm, QSize frame, QSize available);
