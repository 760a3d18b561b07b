// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The look every form shares, grown with the form: check-box and option indicators, scroll bars,
// menu bars and menus, focus marks and frames take the zoom of the form they stand on, so that a
// form maximized on a projector is one picture in proportion. Scroll-bar thumbs and indicator
// outlines are drawn at least 3:1 against what surrounds them (the non-text contrast accessibility
// guidelines ask for). A proxy over the style the program runs with (Fusion by default, or the one
// chosen with -style), installed once for the whole program.
#include <QProxyStyle>

class QWidget;

class FormStyle : public QProxyStyle {
    Q_OBJECT
public:
    explicit FormStyle(QStyle* base = nullptr);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    // Captions that do not fit their room are drawn shortened with an ellipsis (see `caption`).
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

    // The zoom of the form `widget` stands on (1 outside any form): the nearest window's
    // "plottoZoom" property, which each form keeps up to date.
    static double zoomOf(const QWidget* widget);
    // Records `zoom` on `window`, for zoomOf.
    static void setWindowZoom(QWidget* window, double zoom);
    // `base` grown by the zoom of the form `widget` stands on (a dialog opened from it, say).
    static QFont zoomed(QFont base, const QWidget* widget);
    // The colours of a scroll bar: thumb and track, and an indicator's outline.
    static constexpr QRgb kThumb = 0xFF5A5A5A, kTrack = 0xFFEDEDED, kOutline = 0xFF4D4D4D;
};

// Captions longer than their control (a translated caption is often longer than the English one):
// the form style draws a push button's, check box's, option button's or frame's caption shortened
// with an ellipsis, ClickLabel does the same for a one-line label, and `watch` keeps the control's
// tooltip showing the whole caption while it does not fit. The control's text stays whole, so the
// screen reader says all of it.
namespace caption {
// The caption as the control shows it, without its Alt-letter mark; "" for other controls.
QString of(const QWidget* widget);
// The width in pixels the caption has in the control; a label whose words wrap has as much as it needs.
int room(const QWidget* widget);
bool fits(const QWidget* widget);
// Keeps `widget`'s tooltip up to date with its size and font: the whole caption (before the
// control's own tip, if it has one) while the caption does not fit, the control's own tip otherwise.
void watch(QWidget* widget);
}  // namespace caption

// Installs the form style for the program, once; later calls do nothing.
void installFormStyle();
