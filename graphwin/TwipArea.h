// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Twips, the unit every form is laid out in: 15 to a logical pixel at the form's normal size. A
// TwipArea is the widget a form's controls stand on, shown at a zoom (the drawing surface is one);
// the functions below place a widget on it in twips and convert between twips and pixels at its
// zoom. It knows nothing of drawing or of the controls, so that the dialogs and the controls can
// place and measure in twips below the drawing surface.
#include <QRectF>
#include <QWidget>

class TwipArea : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    static constexpr double kTwipsPerPixel = 15.0;
    // The property that keeps a widget's place in twips (placeTwips), read again at every zoom.
    static constexpr const char* kTwipsProperty = "plottoTwips";
    // The form's scale: 1 at the normal size.
    double zoom() const { return zoom_; }

protected:
    double zoom_ = 1.0;
};

// Twips per logical pixel for a widget placed on a twip area: 15 at the normal size, less when the
// form is zoomed in (15 outside any area).
double twipsPerPixel(const QWidget* widget);
// Places a widget on the area (or in a frame on it) at a position and size given in twips; the
// area puts it there again at every zoom.
void placeTwips(QWidget* widget, double left, double top, double width, double height);
// The place in twips a widget was given, whatever the zoom (its pixels change with it).
QRectF twipsOf(const QWidget* widget);
