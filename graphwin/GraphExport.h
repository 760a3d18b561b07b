// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The graph leaving the program at print quality: the graph square painted as vector shapes from the
// surface's kept drawing (DrawingSurface::paintVector) with a caption under it, and written as SVG,
// PDF or PNG (at a chosen resolution), or painted on any page (printing, worksheets). A page is laid
// out in twips, 1440 to the inch, the unit every form is drawn in.
#include <optional>
#include <vector>

#include <QFont>
#include <QRectF>
#include <QString>
#include <QStringList>

#include "graphwin/DrawingSurface.h"

class QPainter;

namespace graphexport {

enum class Format { Svg, Pdf, Png };
// The format a file name asks for by its extension (any case), none for another.
std::optional<Format> formatOf(const QString& path);

struct Options {
    bool caption = true;  // the caption under the graph
    bool colour = true;  // false: black and white, line styles instead of colours
    double lineWidth = 1.0;  // the lines' width, times the screen's
    int dpi = 300;  // PNG only
};
inline constexpr int kMinDpi = 50, kMaxDpi = 1200;

// What is exported: the surface, the graph's rectangle on it (twips) and the caption's text.
struct Graph {
    const DrawingSurface* surface = nullptr;
    QRectF twips;
    QString caption;
};

// The margin around the page's content, and the caption's type size, in twips.
inline constexpr double kMargin = 180, kCaptionSize = 200;
// The page's size in twips: the graph with its margins, and the caption under it when asked for.
QSizeF pageTwips(const Graph& graph, const Options& options);
// Paints the page with its top left at the painter's origin, in twips. False when the graph could only
// be painted as a picture (more was drawn than the surface keeps).
bool paint(QPainter& painter, const Graph& graph, const Options& options);
// Paints the page as large as fits in `target` (the painter's own units), its shape kept, centred
// across and at the top.
bool paintFitted(QPainter& painter, const Graph& graph, const Options& options, const QRectF& target);
// The pixel size of a PNG of the page at `dpi`.
QSize pixelSize(const Graph& graph, const Options& options);

// A table on a page (a worksheet's tables, a convergence table's PDF): its columns as wide as their
// widest cell, narrowed together to `width` when wider; rows of one height. Twips, type `size` high.
struct TableLayout {
    std::vector<double> widths;
    double rowHeight = 0;
    double size = 0;
};
TableLayout layoutTable(const std::vector<QStringList>& rows, double width, double size);
// Paints one row of cells with its top left at (left, top), each cell boxed (the headings in bold).
void paintTableRow(QPainter& painter, const TableLayout& layout, const QStringList& cells, bool heading, double left,
                   double top);
// The type of the pages, at `size` twips (20 to a point).
QFont pageFont(double size, bool bold = false);

// "Could not write PATH: WHY." for every file the program exports.
QString couldNotWrite(const QString& path, const QString& why);
// The folder the last export went to (the home folder at first), and remembering a new one from the
// path just chosen: the graphs, tables and worksheets share it.
QString lastFolder();
void rememberFolder(const QString& chosenPath);

// Writes the page to `path` in the format of its extension, through a temporary file that takes the
// final name only when everything was written (nothing half-written is ever left under it): "" or what
// went wrong, in words.
QString write(const QString& path, const Graph& graph, const Options& options);

}  // namespace graphexport
