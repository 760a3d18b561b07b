// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The client area of a screen, addressed in twips (x to the right, y downwards, 15 twips to a
// logical pixel at the window's normal size). Everything drawn is kept in a backing image until the
// next Cls. Lines and points are set straight into the image; only text, circles and cleared areas
// go through a painter.
//
// The whole form can be shown larger or smaller by one zoom factor: the surface, every control on
// it (placed in twips by placeTwips) and their fonts scale together, and the picture is drawn again
// at the new resolution from a compact list of the operations since the last Cls, so that it stays
// sharp. Handlers never see the zoom: twips in, twips out, mouse positions in twips.
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <QFont>
#include <QImage>
#include <QString>
#include <QWidget>

#include "graphwin/Controls.h"
#include "graphwin/Raster.h"
#include "graphwin/TwipArea.h"

class QPainter;

struct DrawOp {
    enum Kind { Line, PSet, Circle, Text } kind;
    double x1, y1, x2, y2;
    QRgb color;
    int width;
    QString text;
};

// 0xRRGGBB (as the run time's colours are written) to an opaque QRgb.
inline QRgb rgbColor(std::uint32_t rgb) { return 0xFF000000u | rgb; }

class DrawingSurface : public TwipArea {
    Q_OBJECT
public:
    DrawingSurface(double widthTwips, double heightTwips, QWidget* parent = nullptr);

    // Clears the whole surface to the background colour and moves the current point to (0, 0).
    void Cls();
    // A line between two points, both ends included; the current point moves to the second.
    void Line(double x1, double y1, double x2, double y2, QRgb color);
    // A line from (x1, y1) by the offset (dx, dy).
    void LineStep(double x1, double y1, double dx, double dy, QRgb color) { Line(x1, y1, x1 + dx, y1 + dy, color); }
    // The pixel under a twip point, as wide as the drawing width; the current point moves there.
    // Inline: one-pixel points inside the image, the common case, cost a store.
    void PSet(double x, double y, QRgb color)
    {
        CurrentX = x;
        CurrentY = y;
        if (recording_)
            record(DrawOp::PSet, x, y, x, y, color);
        retain(Kept::Point, x, y, 0, 0, color, drawWidth_);
        raster::point(target(), toPx(x), toPx(y), penPx_, ink(color));
        touched();
    }
    // A circle outline of radius r twips around (x, y).
    void Circle(double x, double y, double r, QRgb color);

    // The three segments of a bar standing on the row `base`: up from (a, base) to (a, top1), across
    // to (b, top2), down to (b, base); each handed to `segment` as its two ends.
    template <class Segment>
    static void barOutline(double a, double top1, double b, double top2, double base, Segment segment)
    {
        segment(a, base, a, top1);
        segment(a, top1, b, top2);
        segment(b, top2, b, base);
    }

private:
    // Where a batch's shapes lie in the surface's stores: begin and end, in numbers.
    struct BatchRanges {
        std::size_t points[2], lines[2], paths[2], bars[2];
    };

public:
    // Segments and points of one colour drawn together, for the per-point loops: a loop hands its
    // shapes to the batch (plain arithmetic, no toolkit call per shape) and the batch writes them
    // straight into the picture, merging the vertical runs of one column, then keeps them for a
    // redraw at another size and asks for a repaint once, when it ends. The picture is exactly the
    // one that the same Line and PSet calls give one by one. Nothing else is drawn on the surface
    // while a batch is open; a run-time error that ends the loop ends the batch with what was drawn.
    class Batch {
    public:
        Batch(DrawingSurface& surface, QRgb color);
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;
        ~Batch();
        void line(double x1, double y1, double x2, double y2);
        // n segments, four numbers each (x1, y1, x2, y2): what line() gives for each, in order, with
        // its checks per shape made once for them all.
        void lines(const double* ends, std::size_t n);
        void point(double x, double y);
        // n points, two numbers each (x, y): what point() gives for each, in order, with its checks per
        // shape made once for them all.
        void points(const double* xy, std::size_t n);
        // The outline of a bar standing on the row `base` (see barOutline), kept in five numbers.
        void bar(double a, double top1, double b, double top2, double base);
        // A line dotted column by column, at most `count` points in all: beginRun, then the rows in
        // chunks, in order. runColumns dots (first + i, rows[i]) for each row in [fromRow, toRow)
        // (`dotted`): what point() gives for each, with its checks per shape made once at the start
        // of the run, and a pixel that the point before wrote not written again.
        void beginRun(std::size_t count);
        void runColumns(int first, const double* rows, std::size_t n, double fromRow, double toRow);
        static bool dotted(double row, double fromRow, double toRow) { return fromRow <= row && row < toRow; }

    private:
        bool fits() { return s_.keptOperations() < kMaxKept || full(); }
        bool full();
        void keepSegment(double x1, double y1, double x2, double y2);
        void forget();
        DrawingSurface& s_;
        QRgb color_;
        raster::SameColourWriter writer_;
        BatchRanges first_;  // where the batch's shapes begin in the surface's stores
        double lastX_, lastY_;
        bool keep_;  // whether the surface still keeps what is drawn, for a redraw at another size
        bool direct_;  // shape by shape through Line and PSet, when the surface does not batch
        // How `count` shapes given together are drawn: one by one through point() and line(), or in
        // one loop that keeps them all or keeps none.
        enum class RunMode { OneByOne, Keep, Draw } run_ = RunMode::OneByOne;
        RunMode modeFor(std::size_t count) const;
    };
    // Off: batches hand each shape to Line and PSet, one by one (the plain path, to compare with).
    void setBatching(bool on) { batching_ = on; }
    bool batching() const { return batching_; }
    // Paints a rectangle with the background colour (a shape's area being refreshed).
    void clearArea(double left, double top, double width, double height);
    // Text at the current point, top left. With newline the current point goes to the start of the
    // next line (x = 0); otherwise it moves to the end of the text.
    void Print(const QString& text, bool newline = true);
    double TextWidth(const QString& text) const;
    double TextHeight(const QString& text) const;

    double CurrentX = 0;
    double CurrentY = 0;
    QRgb ForeColor = 0xFF000000u;
    QRgb BackColor = 0xFFFFFFFFu;

    int drawWidth() const { return drawWidth_; }
    void setDrawWidth(int width);
    void setFontSize(double points);
    void setFontUnderline(bool underline);
    QFont textFont() const { return font_; }

    // How the kept picture is painted as vector shapes (export and print).
    struct VectorLook {
        bool colour = true;  // false: black, greys and line styles, for a photocopier
        double penScale = 1.0;  // the lines' width, times the screen's
    };
    // Paints what was drawn since the last Cls inside `clip` (twips) as vector shapes on `painter`,
    // whose coordinates are twips: a curve dotted column by column becomes one path, segments and
    // bars paths, circles and texts themselves. False when more was drawn than the surface keeps
    // (the caller then has only the picture).
    bool paintVector(QPainter& painter, const QRectF& clip, const VectorLook& look) const;

    // Recording of every operation since the last Cls (tests and tools).
    void setRecording(bool on) { recording_ = on; }
    const std::vector<DrawOp>& ops() const { return ops_; }

    // How many times the surface was cleared (a picture's identity for those who describe it).
    std::uint64_t clears() const { return clears_; }
    // A copy of the picture inside a twip rectangle, at the current resolution.
    QImage picture(const QRectF& twips) const;
    // The colour shown at a twip point now.
    QRgb pixel(double xTwips, double yTwips) const;
    // Repaints at once (the animation shows each frame as it is drawn).
    void refreshNow();

    double widthTwips() const { return widthTwips_; }
    double heightTwips() const { return heightTwips_; }

    // Projector mode, for every surface of the run: lines, points and circles drawn with a pen
    // kProjectorPen times as wide, circles of a radius kProjectorRadius times as large, and colours
    // lighter than 3:1 against white darkened until they reach it. Only how a shape is drawn
    // changes, never where: the operations and their twips are the same, and each surface draws its
    // picture again.
    static void setProjectorMode(bool on);
    static bool projectorMode() { return projector_; }
    static constexpr double kProjectorPen = 2.5;
    static constexpr double kProjectorRadius = 1.5;
    // A colour as projector mode draws it (unchanged with the mode off).
    static QRgb ink(QRgb color);

    // Sets the form's scale (zoom(), 1 at the normal size). Resizes the surface and everything placed
    // on it, and draws the picture again at the new resolution.
    void setZoom(double zoom);
Q_SIGNALS:
    // The form took a new zoom (its window grew or shrank).
    void zoomChanged(double zoom);

public:
    // The surface's size in logical pixels at the normal size.
    QSize normalSize() const { return normalSize_; }
    // The largest zoom the surface accepts, and the number of operations it keeps for redrawing
    // (beyond that a resize scales the image it has instead of drawing it again).
    static constexpr double kMaxZoom = 4.0;
    static constexpr std::size_t kMaxKept = 1500000;
    std::size_t keptOperations() const
    {
        return kept_.size() + batchPoints_.size() / 2 + (batchLines_.size() / 2 - batchPathEnds_.size()) +
               batchBars_.size() / 5 * 3;
    }
    std::size_t keptBytes() const
    {
        return kept_.capacity() * sizeof(Kept) + texts_.capacity() * sizeof(KeptText) +
               (batchPoints_.capacity() + batchLines_.capacity() + batchBars_.capacity()) * sizeof(double) +
               batchPathEnds_.capacity() * sizeof(std::size_t);
    }

    MouseHandler MouseDown;
    MouseHandler MouseMove;

    // The keyboard's way into the graph. The surface is a Tab stop; when it has the focus a frame
    // marks `area` (the graph square, in twips). Where the screen answers presses in the graph
    // (MouseDown is set) a cross-hair shows too: arrow keys move it a twentieth of the square (Ctrl:
    // a two-hundredth), Enter presses there as the left button would and Shift+Enter as the right.
    void setFocusArea(const QRectF& area);
    // The cross-hair's position in twips, exactly as a mouse press at that point reports it.
    QPointF pointer() const;
    void movePointer(double dxTwips, double dyTwips);
    void pressAtPointer(int button);
    static constexpr double kPointerStep = 320;
    // Keys the screen takes before the cross-hair does (the walk along a drawn curve): true when it
    // took the key.
    std::function<bool(int key, Qt::KeyboardModifiers modifiers)> KeyDown;
    // The walk's point, drawn over the picture (never into it) as a ring at `at` (twips), with
    // `caption` in large type at the top of `area` (twips) for the class to read; no marker when
    // `at` is empty.
    void setMarker(std::optional<QPointF> at, const QString& caption, const QRectF& area);
    std::optional<QPointF> marker() const { return marker_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    // One drawing operation kept for redrawing: a line's ends, a point, a circle's centre and
    // radius, a text's position or a cleared rectangle, all in twips.
    struct Kept {
        enum Kind : std::uint8_t { Line, Point, Circle, Text, Clear, Batch } kind;
        double a, b, c, d;
        QRgb color;
        int extra;  // the drawing width, or the index of a text in texts_
    };
    struct KeptText {
        QString text;
        QFont font;
    };
    // Keeps an operation while there is room; false (and the list marked incomplete) once full.
    bool retain(Kept::Kind kind, double a, double b, double c, double d, QRgb color, int extra)
    {
        if (keptComplete_ && keptOperations() < kMaxKept) {
            kept_.push_back(Kept{kind, a, b, c, d, color, extra});
            return true;
        }
        keptComplete_ = false;
        return false;
    }
    void allocateImage();
    void adoptImage(QImage image);
    void replay();
    void drawCircle(double x, double y, double r, QRgb color, int width);
    void drawText(double x, double y, const KeptText& text, QRgb color);
    void drawClear(double left, double top, double width, double height, QRgb color);
    // Paints on the image in device pixels. The image's pixel ratio is set aside meanwhile: the
    // toolkit does not scale a painter on an image whose ratio is below 1 (a form shown smaller
    // than its normal size), so a painter always gets device coordinates from us.
    template <class Paint>
    void paintDevice(Paint paint);
    // The drawing width `width` in device pixels at the present scale and mode.
    int penFor(double width) const;
    void placeChildren();
    void paintMarker(QPainter& painter, double k);

    // A twip coordinate in device pixels. Multiplying by the reciprocal leaves multiples of 15 an
    // ulp short of their whole pixel; the small bias puts them back on it.
    double toPx(double twips) const { return toPx(twips, pxPerTwip_); }
    static double toPx(double twips, double pxPerTwip) { return twips * pxPerTwip + 1e-7; }
    raster::Target target() const { return {bits_, stride_, widthPx_, heightPx_}; }
    void record(DrawOp::Kind kind, double x1, double y1, double x2, double y2, QRgb color, const QString& text = {});
    void touched()
    {
        if (!dirty_) {
            dirty_ = true;
            update();
        }
    }
    QFont scaledFont() const;

    double widthTwips_, heightTwips_;
    QSize normalSize_;
    double screenScale_ = 1.0;  // the screen's device pixels per logical pixel
    double scale_;  // device pixels per logical pixel of the normal-size form
    double pxPerTwip_;
    QImage image_;
    QRgb* bits_ = nullptr;
    long stride_ = 0, widthPx_ = 0, heightPx_ = 0;
    int drawWidth_ = 1;
    int penPx_ = 1;  // drawing width in device pixels
    static inline bool projector_ = false;
    QFont font_;
    bool recording_ = false;
    bool batching_ = true;
    bool dirty_ = false;
    std::vector<DrawOp> ops_;
    std::vector<Kept> kept_;
    std::vector<KeptText> texts_;
    bool keptComplete_ = true;
    // The shapes of the kept batches: points two numbers each, bars five, and segments as paths: the
    // corners of a path, two numbers each, joined one to the next, so that a segment that begins
    // exactly where the one before it ended (a connected curve) takes two numbers instead of four.
    // batchPathEnds_ holds where each path's corners end in batchLines_; a path begins where the one
    // before it ended. A batch is of one colour and pen, so the order of its shapes cannot change the
    // picture and each kind is kept apart in the least room. A kept batch names its ranges in the stores.
    std::vector<double> batchPoints_;
    std::vector<double> batchLines_;
    std::vector<std::size_t> batchPathEnds_;
    std::vector<double> batchBars_;
    std::vector<BatchRanges> batchRanges_;
    QRgb clsColor_ = 0xFFFFFFFFu;
    QRectF focusArea_;
    std::uint64_t clears_ = 0;
    QPointF pointerTwips_;
    std::optional<QPointF> marker_;
    QString markerCaption_;
    QRectF markerArea_;
};

// The shapes of a batch: inline, as they are called once per point.
inline void DrawingSurface::Batch::line(double x1, double y1, double x2, double y2)
{
    if (direct_) {
        s_.Line(x1, y1, x2, y2, color_);
        return;
    }
    if (s_.recording_)
        s_.record(DrawOp::Line, x1, y1, x2, y2, color_);
    if (keep_ && fits())
        keepSegment(x1, y1, x2, y2);
    lastX_ = x2;
    lastY_ = y2;
    writer_.line(s_.toPx(x1), s_.toPx(y1), s_.toPx(x2), s_.toPx(y2));
}

inline void DrawingSurface::Batch::point(double x, double y)
{
    if (direct_) {
        s_.PSet(x, y, color_);
        return;
    }
    if (s_.recording_)
        s_.record(DrawOp::PSet, x, y, x, y, color_);
    if (keep_ && fits()) {
        s_.batchPoints_.push_back(x);
        s_.batchPoints_.push_back(y);
    }
    lastX_ = x;
    lastY_ = y;
    writer_.point(s_.toPx(x), s_.toPx(y));
}

inline void DrawingSurface::Batch::bar(double a, double top1, double b, double top2, double base)
{
    if (direct_ || s_.recording_) {  // as three segments, recorded one by one
        barOutline(a, top1, b, top2, base,
                   [this](double x1, double y1, double x2, double y2) { line(x1, y1, x2, y2); });
        return;
    }
    if (keep_ && fits())
        for (const double v : {a, top1, b, top2, base})
            s_.batchBars_.push_back(v);
    lastX_ = b;
    lastY_ = base;
    writer_.bar(s_.toPx(a), s_.toPx(top1), s_.toPx(b), s_.toPx(top2), s_.toPx(base));
}

inline DrawingSurface::Batch::RunMode DrawingSurface::Batch::modeFor(std::size_t count) const
{
    // Kept all at once when every shape fits in what the surface keeps; otherwise (and when the batch
    // draws one by one or records) shape by shape, so that keeping stops where point() and line() stop.
    const bool fitsAll = s_.keptOperations() + count <= kMaxKept;
    return direct_ || s_.recording_ || (keep_ && !fitsAll) ? RunMode::OneByOne : keep_ ? RunMode::Keep : RunMode::Draw;
}

inline void DrawingSurface::Batch::beginRun(std::size_t count) { run_ = modeFor(count); }

// A batch opened at its first shape, in a colour looked up only then: looking a colour up may raise
// a run-time error, and it must come where the first shape is drawn, as a plain PSet would raise it.
class LazyBatch {
public:
    LazyBatch(DrawingSurface& surface, FirstUseColour& colour) : surface_(surface), colour_(colour) { }
    void point(double x, double y) { open().point(x, y); }
    void line(double x1, double y1, double x2, double y2) { open().line(x1, y1, x2, y2); }
    // A chunk of a column run of at most `count` points (see Batch::runColumns); the batch opens at
    // the first row in [fromRow, toRow).
    void runColumns(int first, const double* rows, std::size_t n, double fromRow, double toRow, std::size_t count)
    {
        if (!batch_) {
            std::size_t i = 0;
            while (i < n && !DrawingSurface::Batch::dotted(rows[i], fromRow, toRow))
                ++i;
            if (i == n)
                return;
            open().beginRun(count);
            first += static_cast<int>(i);
            rows += i;
            n -= i;
        }
        batch_->runColumns(first, rows, n, fromRow, toRow);
    }

private:
    template <std::size_t>
    friend class ChunkedShapes;
    DrawingSurface::Batch& open()
    {
        if (!batch_)
            batch_.emplace(surface_, colour_.get());
        return *batch_;
    }
    DrawingSurface& surface_;
    FirstUseColour& colour_;
    std::optional<DrawingSurface::Batch> batch_;
};

// Shapes gathered in chunks on the stack and handed to a lazy batch a chunk at a time, so that the
// loop that computes them does nothing else: segments (ChunkedLines, four numbers each) or points
// (ChunkedPoints, two). The batch opens (its colour looked up) at the first shape, where line() or
// point() would open it; the shapes gathered when a run-time error ends the loop are drawn as this
// goes out of scope, before the batch closes (declare it after the batch).
template <std::size_t Values>
class ChunkedShapes {
public:
    explicit ChunkedShapes(LazyBatch& batch) : batch_(batch), oneByOne_(!batch.surface_.batching()) { }
    ChunkedShapes(const ChunkedShapes&) = delete;
    ChunkedShapes& operator=(const ChunkedShapes&) = delete;
    ~ChunkedShapes() { flush(); }
    void flush()
    {
        if (n_ > 0) {
            if constexpr (Values == 4)
                batch_.open().lines(values_, n_);
            else
                batch_.open().points(values_, n_);
        }
        n_ = 0;
    }

protected:
    // Adds one shape; where the surface does not batch (the plain path, to compare with), it is drawn
    // at once, shape by shape.
    void add(const double (&shape)[Values])
    {
        if (oneByOne_) {
            if constexpr (Values == 4)
                batch_.open().line(shape[0], shape[1], shape[2], shape[3]);
            else
                batch_.open().point(shape[0], shape[1]);
            return;
        }
        if (n_ == 0)
            batch_.open();
        double* to = values_ + Values * n_;
        for (std::size_t k = 0; k < Values; ++k)
            to[k] = shape[k];
        if (++n_ == kChunk)
            flush();
    }

private:
    static constexpr std::size_t kChunk = 256;
    LazyBatch& batch_;
    bool oneByOne_;
    std::size_t n_ = 0;
    double values_[Values * kChunk];
};

class ChunkedLines : public ChunkedShapes<4> {
public:
    using ChunkedShapes::ChunkedShapes;
    void line(double x1, double y1, double x2, double y2) { add({x1, y1, x2, y2}); }
};

class ChunkedPoints : public ChunkedShapes<2> {
public:
    using ChunkedShapes::ChunkedShapes;
    void point(double x, double y) { add({x, y}); }
};
