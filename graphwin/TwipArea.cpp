// SPDX-License-Identifier: GPL-3.0-or-later
// Placing widgets in twips and measuring pixels in twips at the zoom of the area they stand on.
#include "graphwin/TwipArea.h"

#include <cmath>

#include <QVariant>

void placeTwips(QWidget* widget, double left, double top, double width, double height)
{
    // The place in twips is kept, so that a zoomed form can put the widget where it belongs.
    widget->setProperty(TwipArea::kTwipsProperty, QRectF(left, top, width, height));
    const double k = TwipArea::kTwipsPerPixel;
    widget->setGeometry(static_cast<int>(std::lround(left / k)), static_cast<int>(std::lround(top / k)),
                        static_cast<int>(std::lround(width / k)), static_cast<int>(std::lround(height / k)));
}

QRectF twipsOf(const QWidget* widget) { return widget->property(TwipArea::kTwipsProperty).toRectF(); }

double twipsPerPixel(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget())
        if (const auto* area = qobject_cast<const TwipArea*>(w))
            return TwipArea::kTwipsPerPixel / area->zoom();
    return TwipArea::kTwipsPerPixel;
}
