// SPDX-License-Identifier: GPL-3.0-or-later
// Export of the graph (see GraphExport.h).
#include "graphwin/GraphExport.h"
#include "graphwin/Language.h"

#include <algorithm>
#include <cmath>

#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSettings>
#include <QSvgGenerator>

namespace graphexport {

namespace {

constexpr double kTwipsPerInch = 1440, kTwipsPerPoint = 20;

QFont captionFont() { return pageFont(kCaptionSize); }

double captionHeight(const Graph& graph, const Options& options)
{
    if (!options.caption || graph.caption.isEmpty())
        return 0;
    const QRectF r = QFontMetricsF(captionFont())
                         .boundingRect(QRectF(0, 0, graph.twips.width(), 1e7), Qt::TextWordWrap, graph.caption);
    // A line to spare: a printer's fonts may wrap a word later than the screen's.
    return kMargin + r.height() + kCaptionSize * 1.5;
}

}  // namespace

QString couldNotWrite(const QString& path, const QString& why)
{
    return Plotto::tr("Could not write %1: %2.").arg(QDir::toNativeSeparators(path), why);
}

QString lastFolder()
{
    return QSettings(QStringLiteral("Plotto"), QStringLiteral("Plotto"))
        .value(QStringLiteral("export/folder"), QDir::homePath())
        .toString();
}

void rememberFolder(const QString& chosenPath)
{
    QSettings(QStringLiteral("Plotto"), QStringLiteral("Plotto"))
        .setValue(QStringLiteral("export/folder"), QFileInfo(chosenPath).absolutePath());
}

QFont pageFont(double size, bool bold)
{
    QFont f(QStringLiteral("Times New Roman"));
    f.setPixelSize(std::max(1, static_cast<int>(size)));
    f.setBold(bold);
    return f;
}

TableLayout layoutTable(const std::vector<QStringList>& rows, double width, double size)
{
    TableLayout t;
    t.size = size;
    const QFontMetricsF m(pageFont(size, true));
    for (const QStringList& r : rows)
        for (qsizetype c = 0; c < r.size(); ++c) {
            if (static_cast<std::size_t>(c) >= t.widths.size())
                t.widths.push_back(2 * size);
            t.widths[static_cast<std::size_t>(c)] =
                std::max(t.widths[static_cast<std::size_t>(c)], m.horizontalAdvance(r[c]) + size);
        }
    double total = 0;
    for (double w : t.widths)
        total += w;
    if (total > width)
        for (double& w : t.widths)
            w *= width / total;
    t.rowHeight = m.height() + 0.6 * size;
    return t;
}

void paintTableRow(QPainter& painter, const TableLayout& layout, const QStringList& cells, bool heading, double left,
                   double top)
{
    painter.save();
    painter.setFont(pageFont(layout.size, heading));
    painter.setPen(QPen(Qt::black, layout.size / 20));
    painter.setBrush(Qt::NoBrush);
    double x = left;
    for (std::size_t c = 0; c < layout.widths.size(); ++c) {
        const QRectF cell(x, top, layout.widths[c], layout.rowHeight);
        painter.drawRect(cell);
        const QString text = static_cast<qsizetype>(c) < cells.size() ? cells[static_cast<qsizetype>(c)] : QString();
        painter.drawText(cell.adjusted(layout.size * 0.4, 0, -layout.size * 0.4, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         text);
        x += layout.widths[c];
    }
    painter.restore();
}

std::optional<Format> formatOf(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("svg"))
        return Format::Svg;
    if (suffix == QLatin1String("pdf"))
        return Format::Pdf;
    if (suffix == QLatin1String("png"))
        return Format::Png;
    return std::nullopt;
}

QSizeF pageTwips(const Graph& graph, const Options& options)
{
    return {graph.twips.width() + 2 * kMargin, graph.twips.height() + 2 * kMargin + captionHeight(graph, options)};
}

QSize pixelSize(const Graph& graph, const Options& options)
{
    const QSizeF page = pageTwips(graph, options);
    const double k = std::clamp(options.dpi, kMinDpi, kMaxDpi) / kTwipsPerInch;
    return {static_cast<int>(std::lround(page.width() * k)), static_cast<int>(std::lround(page.height() * k))};
}

bool paint(QPainter& painter, const Graph& graph, const Options& options)
{
    const QSizeF page = pageTwips(graph, options);
    painter.save();
    painter.fillRect(QRectF(QPointF(0, 0), page), Qt::white);
    painter.save();
    painter.translate(kMargin - graph.twips.left(), kMargin - graph.twips.top());
    const bool vector =
        graph.surface->paintVector(painter, graph.twips, {.colour = options.colour, .penScale = options.lineWidth});
    if (!vector)  // more was drawn than is kept: the picture as it is on the screen
        painter.drawImage(graph.twips, graph.surface->picture(graph.twips));
    // The square's outline, as the form draws it around the graph.
    painter.setClipping(false);
    painter.setPen(QPen(Qt::black, DrawingSurface::kTwipsPerPixel));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(graph.twips);
    painter.restore();
    if (const double h = captionHeight(graph, options); h > 0) {
        painter.setFont(captionFont());
        painter.setPen(Qt::black);
        painter.drawText(QRectF(kMargin, kMargin + graph.twips.height() + kMargin, graph.twips.width(), h),
                         Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, graph.caption);
    }
    painter.restore();
    return vector;
}

bool paintFitted(QPainter& painter, const Graph& graph, const Options& options, const QRectF& target)
{
    const QSizeF page = pageTwips(graph, options);
    const double k = std::min(target.width() / page.width(), target.height() / page.height());
    painter.save();
    painter.translate(target.left() + (target.width() - page.width() * k) / 2, target.top());
    painter.scale(k, k);
    const bool vector = paint(painter, graph, options);
    painter.restore();
    return vector;
}

QString write(const QString& path, const Graph& graph, const Options& options)
{
    const std::optional<Format> format = formatOf(path);
    if (!format)
        return Plotto::tr("The file name %1 does not say which kind of file to write: end it with .svg, .pdf or "
                          ".png.")
            .arg(QFileInfo(path).fileName().isEmpty() ? QStringLiteral("(none)") : QFileInfo(path).fileName());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return couldNotWrite(path, file.errorString());
    const QSizeF page = pageTwips(graph, options);
    bool painted = false;
    switch (*format) {
    case Format::Svg: {
        QSvgGenerator svg;
        svg.setOutputDevice(&file);
        svg.setSize(QSize(static_cast<int>(std::ceil(page.width() / DrawingSurface::kTwipsPerPixel)),
                          static_cast<int>(std::ceil(page.height() / DrawingSurface::kTwipsPerPixel))));
        svg.setViewBox(QRectF(QPointF(0, 0), page));
        svg.setTitle(QStringLiteral("Plotto"));
        svg.setDescription(graph.caption);
        QPainter painter;
        if ((painted = painter.begin(&svg)))
            paint(painter, graph, options);
        break;
    }
    case Format::Pdf: {
        QPdfWriter pdf(&file);
        pdf.setCreator(QStringLiteral("Plotto"));
        pdf.setTitle(graph.caption.section(QLatin1Char('\n'), 0, 0));
        pdf.setPageSize(QPageSize(QSizeF(page.width() / kTwipsPerPoint, page.height() / kTwipsPerPoint),
                                  QPageSize::Point, QString(), QPageSize::ExactMatch));
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        QPainter painter;
        if ((painted = painter.begin(&pdf))) {
            const double k = pdf.resolution() / kTwipsPerInch;
            painter.scale(k, k);
            paint(painter, graph, options);
        }
        break;
    }
    case Format::Png: {
        const int dpi = std::clamp(options.dpi, kMinDpi, kMaxDpi);
        QImage image(pixelSize(graph, options), QImage::Format_RGB32);
        if (image.isNull()) {
            file.cancelWriting();
            return couldNotWrite(path, Plotto::tr("the picture is too large for the memory"));
        }
        image.fill(Qt::white);
        const int dotsPerMetre = static_cast<int>(std::lround(dpi / 0.0254));
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        {
            QPainter painter(&image);
            painter.scale(dpi / kTwipsPerInch, dpi / kTwipsPerInch);
            paint(painter, graph, options);
        }
        painted = image.save(&file, "PNG");
        break;
    }
    }
    if (!painted) {
        file.cancelWriting();
        return couldNotWrite(path, file.errorString().isEmpty() ? Plotto::tr("the file could not be made")
                                                                : file.errorString());
    }
    if (!file.commit())
        return couldNotWrite(path, file.errorString());
    return {};
}

}  // namespace graphexport
