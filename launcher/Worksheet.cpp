// SPDX-License-Identifier: GPL-3.0-or-later
// The worksheet of a lesson (see Worksheet.h). Each step is opened on its screen and what it shows is
// taken at once (the graph kept as an SVG drawing in memory, the numbers as text), then the
// pages are laid out in twips, 1440 to the inch, and painted on a PDF writer.
#include "launcher/Worksheet.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QSvgRenderer>

#include "funclib/FuncGlobals.h"
#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"
#include "screens/ScreenRegistry.h"

namespace worksheet {

namespace {

// An A4 page in twips, its margins, and the type sizes (a point is 20 twips).
constexpr double kPageWidth = 11906, kPageHeight = 16838, kMargin = 1080;
constexpr double kWidth = kPageWidth - 2 * kMargin;
constexpr double kTop = kMargin + 400, kBottom = kPageHeight - kMargin - 300;
constexpr double kBody = 220, kHeading = 300, kTitle = 400, kSmall = 180;
constexpr double kGraphSide = 6300;  // the graph's width on the page (4.4 inches)
// The mark that stands for a blank in a line of results: drawn as a box to write in.
constexpr QChar kBlank = QChar(0xFFFC);
constexpr double kBlankWidth = 1100;

QFont font(double size, bool bold = false) { return graphexport::pageFont(size, bold); }

// A number as the program writes one (with a decimal point, or the language's decimal comma), not
// preceded by a letter, a digit or '_' (the 7 of P_7).
const QRegularExpression& numberPattern()
{
    static const QRegularExpression re(
        QStringLiteral("(?<![\\w.,])[-+]?(?:\\d+(?:[.,]\\d+)?|[.,]\\d+)(?:[eE][-+]?\\d+)?(?![\\w])"));
    return re;
}

bool isNumber(const QString& cell)
{
    const QString t = cell.trimmed();
    return !t.isEmpty() && numberPattern().match(t).capturedLength() == t.size();
}

// A block of a page: its height and how to paint it with its top at `top`.
struct Block {
    double height;
    std::function<void(QPainter&, double top)> paint;
    bool newPage = false;  // starts a page (a step begins on a page of its own)
};

double textHeight(const QFont& f, const QString& text, double width)
{
    return QFontMetricsF(f).boundingRect(QRectF(0, 0, width, 1e7), Qt::TextWordWrap, text).height();
}

Block paragraph(const QString& text, const QFont& f, double after = 120)
{
    const double h = textHeight(f, text, kWidth) + after;
    return {h, [text, f](QPainter& p, double top) {
                p.setFont(f);
                p.setPen(Qt::black);
                p.drawText(QRectF(kMargin, top, kWidth, 1e6), Qt::TextWordWrap, text);
            }};
}

// A line of results, its blanks drawn as boxes, wrapped at the margin a word or a box at a time.
Block resultLine(const QString& line)
{
    const QFont f = font(kBody);
    if (!line.contains(kBlank))
        return paragraph(line, f, 60);
    const QFontMetricsF m(f);
    const double lineHeight = m.height() * 1.6;
    struct Piece {
        QString text;  // "" for a box
        double x, y;
    };
    std::vector<Piece> pieces;
    double x = 0, y = 0;
    const auto place = [&](const QString& text, double width) {
        if (x > 0 && x + width > kWidth) {
            x = 0;
            y += lineHeight;
        }
        pieces.push_back({text, x, y});
        x += width;
    };
    const QStringList parts = line.split(kBlank);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        // Each word with the space after it, so that a line breaks between words.
        static const QRegularExpression words(QStringLiteral("\\S+\\s*|\\s+"));
        for (const QRegularExpressionMatch& w : words.globalMatch(parts[i]))
            place(w.captured(), m.horizontalAdvance(w.captured()));
        if (i + 1 < parts.size())
            place(QString(), kBlankWidth + 120);
    }
    return {y + lineHeight, [pieces, f, lineHeight](QPainter& p, double top) {
                p.setFont(f);
                p.setPen(QPen(Qt::black, 15));
                p.setBrush(Qt::NoBrush);
                const QFontMetricsF m(f);
                for (const Piece& piece : pieces) {
                    const double baseline = top + piece.y + (lineHeight + m.ascent() - m.descent()) / 2;
                    if (piece.text.isEmpty())
                        p.drawRect(QRectF(kMargin + piece.x + 60, top + piece.y + 20, kBlankWidth, lineHeight - 40));
                    else
                        p.drawText(QPointF(kMargin + piece.x, baseline), piece.text);
                }
            }};
}

// The rows of a table, a block each, the columns as wide as their widest cell allows.
std::vector<Block> table(const std::vector<QStringList>& rows, bool blank)
{
    std::vector<Block> blocks;
    if (rows.empty())
        return blocks;
    const graphexport::TableLayout layout = graphexport::layoutTable(rows, kWidth, kSmall);
    std::vector<QStringList> shown = rows;
    if (blank)  // the first column names the row (n, a guess's number): it stays
        for (std::size_t i = 1; i < shown.size(); ++i)
            for (qsizetype c = 1; c < shown[i].size(); ++c)
                if (isNumber(shown[i][c]))
                    shown[i][c].clear();
    const auto paintRows = [layout](const std::vector<QStringList>& rows, std::size_t first) {
        return [layout, rows, first](QPainter& p, double top) {
            for (std::size_t i = 0; i < rows.size(); ++i)
                graphexport::paintTableRow(p, layout, rows[i], first + i == 0, kMargin, top + layout.rowHeight * i);
        };
    };
    // A table that fits on a page is kept together; a longer one runs on a row at a time.
    if (layout.rowHeight * static_cast<double>(shown.size()) < (kBottom - kTop) / 2) {
        blocks.push_back({layout.rowHeight * static_cast<double>(shown.size()), paintRows(shown, 0)});
    } else {
        for (std::size_t i = 0; i < shown.size(); ++i)
            blocks.push_back({layout.rowHeight, paintRows({shown[i]}, i)});
    }
    blocks.push_back({200, [](QPainter&, double) {}});
    return blocks;
}

// Opens the step on its screen and takes what the page shows; the graph goes into `graph`.
StepContent take(const lesson::Step& step, int number, int count, GraphScreen& screen, QByteArray& graph,
                 QSizeF& graphSize)
{
    StepContent c;
    const screens::Entry* entry = screens::find(step.screen);
    c.heading = Plotto::tr("Step %1 of %2: %3")
                    .arg(number)
                    .arg(count)
                    .arg(entry ? Plotto::tr(entry->button).remove(QLatin1Char('&')) : step.screen);
    c.note = step.note;
    DialogScript script;  // nothing modal opens: a box the step would show is written on the page instead
    DialogScript* before = dialogScript();
    setDialogScript(&script);
    const QString refusal = lesson::check(step, screen);
    if (!refusal.isEmpty()) {
        c.problems << Plotto::tr("This step cannot be shown: %1.").arg(refusal);
    } else {
        if (const int error = lesson::open(step, screen))
            c.problems << lesson::refusal(number, error);
    }
    setDialogScript(before);
    for (int n : script.errors)
        c.problems << Plotto::tr("A button of this step could not finish (run-time error %1).").arg(n);
    for (const auto& [title, prompt] : script.shown)
        if (prompt != QLatin1String("file") && prompt != QLatin1String("options") && prompt != QLatin1String("printer"))
            c.problems << prompt;
    if (c.note.isEmpty() && entry)
        c.note =
            Plotto::tr("The screen shows %1.")
                .arg(Plotto::tr(entry->describes)
                         .replace(QStringLiteral("{families}"), QString::number(FuncGlobals::ExplicitFamilyCount)));
    QStringList description = screen.describe().split(QLatin1Char('\n'));
    const QStringList results = screen.results();
    description = description.mid(1, description.size() - 1 - results.size());  // the title line goes
    c.setting = description;
    c.results = results;
    c.given = screen.describeFamily();
    for (const Grid* grid : screen.surface->findChildren<Grid*>()) {
        if (!grid->isVisibleTo(&screen))
            continue;
        std::vector<QStringList> rows;
        for (const QString& row : grid->tabSeparated().split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            if (!QString(row).remove(QLatin1Char('\t')).trimmed().isEmpty())
                rows.push_back(row.split(QLatin1Char('\t')));
        if (rows.size() > 1)
            c.tables.push_back(std::move(rows));
    }
    graphexport::Options options;
    options.caption = false;
    const graphexport::Graph g = screen.exportedGraph();
    graphSize = graphexport::pageTwips(g, options);
    QBuffer buffer(&graph);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setViewBox(QRectF(QPointF(0, 0), graphSize));
    QPainter painter(&svg);
    graphexport::paint(painter, g, options);
    return c;
}

std::vector<Block> blocksOf(const StepContent& c, const QByteArray& graph, QSizeF graphSize, bool blank)
{
    std::vector<Block> blocks;
    Block heading = paragraph(c.heading, font(kHeading, true), 160);
    heading.newPage = true;
    blocks.push_back(heading);
    if (!c.note.isEmpty())
        blocks.push_back(paragraph(c.note, font(kBody)));
    const double k = kGraphSide / graphSize.width();
    blocks.push_back({graphSize.height() * k + 120, [graph, graphSize, k](QPainter& p, double top) {
                          QSvgRenderer drawing(graph);
                          drawing.render(
                              &p, QRectF(kMargin + (kWidth - kGraphSide) / 2, top, kGraphSide, graphSize.height() * k));
                      }});
    for (const QString& line : c.setting)
        blocks.push_back(paragraph(line, font(kSmall), 20));
    blocks.push_back({120, [](QPainter&, double) {}});
    for (const QString& line : c.results)
        blocks.push_back(resultLine(blanked(line, blank, c.given)));
    for (const auto& t : c.tables)
        for (Block& b : table(t, blank))
            blocks.push_back(std::move(b));
    for (const QString& problem : c.problems)
        blocks.push_back(paragraph(problem, font(kBody, true)));
    return blocks;
}

QString writePages(const QString& path, const QString& title, const std::vector<Block>& blocks)
{
    // Where each page begins in the list of blocks: a step starts a page, and a block that does not fit
    // goes over to the next (the first page has the title above).
    const double titleHeight = textHeight(font(kTitle, true), title, kWidth) + 300;
    std::vector<std::size_t> starts{0};
    double y = kTop + titleHeight;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const double pageTop = starts.size() == 1 ? kTop + titleHeight : kTop;
        if (y > pageTop && (blocks[i].newPage || y + blocks[i].height > kBottom)) {
            starts.push_back(i);
            y = kTop;
        }
        y += blocks[i].height;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return graphexport::couldNotWrite(path, file.errorString());
    {
        QPdfWriter pdf(&file);
        pdf.setCreator(QStringLiteral("Plotto"));
        pdf.setTitle(title);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        QPainter p;
        if (!p.begin(&pdf)) {
            file.cancelWriting();
            return graphexport::couldNotWrite(path, Plotto::tr("the PDF could not be started"));
        }
        p.scale(pdf.resolution() / 1440.0, pdf.resolution() / 1440.0);
        const int pages = static_cast<int>(starts.size());
        for (int page = 0; page < pages; ++page) {
            if (page > 0)
                pdf.newPage();
            double top = kTop;
            if (page == 0) {
                p.setFont(font(kTitle, true));
                p.setPen(Qt::black);
                p.drawText(QRectF(kMargin, kTop, kWidth, 1e6), Qt::TextWordWrap, title);
                top += textHeight(font(kTitle, true), title, kWidth) + 300;
            } else {
                p.setFont(font(kSmall));
                p.drawText(QRectF(kMargin, kMargin, kWidth, 300), Qt::AlignRight, title);
            }
            const std::size_t end = page + 1 < pages ? starts[static_cast<std::size_t>(page) + 1] : blocks.size();
            for (std::size_t i = starts[static_cast<std::size_t>(page)]; i < end; ++i) {
                blocks[i].paint(p, top);
                top += blocks[i].height;
            }
            p.setFont(font(kSmall));
            p.setPen(Qt::black);
            p.drawText(QRectF(kMargin, kPageHeight - kMargin, kWidth, 300), Qt::AlignHCenter,
                       Plotto::tr("Page %1 of %2").arg(page + 1).arg(pages));
        }
    }
    if (!file.commit())
        return graphexport::couldNotWrite(path, file.errorString());
    return {};
}

}  // namespace

QString answersPath(const QString& path)
{
    const QFileInfo info(path);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.dir().filePath(info.completeBaseName() + QStringLiteral("-answers") + suffix);
}

QString blanked(const QString& line, bool blank, const QString& given)
{
    if (!blank)
        return line;
    // What the step gives (the function and its coefficients) stays; a number written as a result, after
    // '=' or ':' and not itself a label ("1:" of a list), becomes a blank.
    const qsizetype at = given.isEmpty() ? -1 : line.indexOf(given);
    if (at >= 0)
        return blanked(line.left(at), true, {}) + given + blanked(line.mid(at + given.size()), true, given);
    QString out;
    qsizetype from = 0;
    for (const QRegularExpressionMatch& m : numberPattern().globalMatch(line)) {
        const QString before = line.left(m.capturedStart()).trimmed();
        const QString after = line.mid(m.capturedEnd()).trimmed();
        const bool result = (before.endsWith(QLatin1Char('=')) || before.endsWith(QLatin1Char(':'))) &&
                            !after.startsWith(QLatin1Char(':'));
        out += line.mid(from, m.capturedStart() - from) + (result ? QString(kBlank) : m.captured());
        from = m.capturedEnd();
    }
    return out + line.mid(from);
}

QString write(const lesson::Lesson& lesson, const QString& title, const QString& path, bool blank,
              const std::function<GraphScreen&(const QString& key)>& screenFor)
{
    if (lesson.steps.empty())
        return Plotto::tr("The lesson has no steps.");
    std::vector<Block> sheet, answers;
    const int count = static_cast<int>(lesson.steps.size());
    for (int i = 0; i < count; ++i) {
        const lesson::Step& step = lesson.steps[static_cast<std::size_t>(i)];
        QByteArray graph;
        QSizeF size;
        const StepContent c = take(step, i + 1, count, screenFor(step.screen), graph, size);
        for (Block& b : blocksOf(c, graph, size, blank))
            sheet.push_back(std::move(b));
        if (blank)
            for (Block& b : blocksOf(c, graph, size, false))
                answers.push_back(std::move(b));
    }
    if (QString error = writePages(path, title, sheet); !error.isEmpty())
        return error;
    if (blank)
        return writePages(answersPath(path), Plotto::tr("%1: answers").arg(title), answers);
    return {};
}

}  // namespace worksheet
