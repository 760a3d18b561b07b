// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The hand on a screen's graph: the wheel (and a touchpad's scroll or pinch) zooms about the point
// under the pointer, a drag pans, a box drawn with Shift or the right button zooms to it, and the
// point under the pointer is read out beside it. It watches the drawing surface's events and asks
// the screen for the new window; a press keeps every meaning the screen gives it, so on a graph
// whose presses start something (the slope field's curves) the middle button pans and Shift with
// the middle button draws the box.
#include <QElapsedTimer>
#include <QObject>
#include <QPointF>

#include "graphwin/GraphView.h"

class GraphScreen;
class QLabel;
class QRubberBand;
class QTimer;

class GraphViewer : public QObject {
    Q_OBJECT
public:
    explicit GraphViewer(GraphScreen& screen);

    // The readout shown beside the pointer now ("" when none is shown).
    QString readout() const;
    // Applies a wheel turn or pinch waiting for the next frame at once.
    void flush();
    // The window changed (a key, a menu, a drag): the readout is read again where the pointer is.
    void viewChanged();
    // A handle of the construction is taken within this many pixels of it.
    static constexpr double kHandlePixels = 8;
    // A press that moves this many pixels before its release pans; less is a click.
    static constexpr double kDragPixels = 4;
    // Wheel turns closer together than this are applied together.
    static constexpr int kFrameMs = 16;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, MaybePan, Pan, Box, Handle };
    // The index of the construction's handle within reach of the pointer, or -1.
    int handleAt(QPointF pixels);
    QPointF twips(QPointF pixels) const;
    bool inSquare(QPointF pixels) const;
    void zoomLater(QPointF pixels, double factor);
    void showReadout(QPointF pixels);
    void hideReadout();
    bool pressed(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    bool moved(QPointF at);
    bool released(QPointF at);

    GraphScreen& screen_;
    QLabel* tip_ = nullptr;
    QRubberBand* band_ = nullptr;
    Drag drag_ = Drag::None;
    int handle_ = -1;
    QPointF pressAt_;
    view::Limits atPress_;
    QTimer* frame_ = nullptr;
    QElapsedTimer sinceFrame_;
    double pendingFactor_ = 1;
    QPointF pendingAt_;
    QPointF pointer_;  // where the readout was last shown, in pixels
};
