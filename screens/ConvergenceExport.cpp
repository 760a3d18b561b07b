// SPDX-License-Identifier: GPL-3.0-or-later
// A convergence table leaving the program: as comma-separated values for a spreadsheet, or as a PDF
// page (the window's title, its summary and the table, drawn as a table) for a handout.
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "graphwin/Dialogs.h"
#include "graphwin/GraphExport.h"
#include "graphwin/Language.h"
#include "screens/ConvergenceWindow.h"

namespace {

// A landscape A4 page in twips and its margin; the type sizes.
constexpr double kPageWidth = 16838, kPageHeight = 11906, kMargin = 900;
constexpr double kTitle = 320, kText = 200, kTable = 180;

}  // namespace

QString ConvergenceWindow::exportTable(const QString& path) const
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != QLatin1String("csv") && suffix != QLatin1String("pdf"))
        return Plotto::tr("The file name %1 does not say which kind of file to write: end it with .csv or .pdf.")
            .arg(QFileInfo(path).fileName().isEmpty() ? QStringLiteral("(none)") : QFileInfo(path).fileName());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return graphexport::couldNotWrite(path, file.errorString());
    if (suffix == QLatin1String("csv")) {
        file.write(QByteArray::fromStdString(table_.csv()));
    } else {
        const std::vector<QStringList> rows = shownCells();
        QPdfWriter pdf(&file);
        pdf.setCreator(QStringLiteral("Plotto"));
        pdf.setTitle(windowTitle());
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageOrientation(QPageLayout::Landscape);
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        QPainter p;
        if (!p.begin(&pdf)) {
            file.cancelWriting();
            return graphexport::couldNotWrite(path, Plotto::tr("the PDF could not be started"));
        }
        p.scale(pdf.resolution() / 1440.0, pdf.resolution() / 1440.0);
        const double width = kPageWidth - 2 * kMargin;
        double top = kMargin;
        const auto paragraph = [&](const QString& text, const QFont& font) {
            p.setFont(font);
            const QRectF room(kMargin, top, width, kPageHeight);
            const QRectF used = p.boundingRect(room, Qt::TextWordWrap, text);
            p.drawText(room, Qt::TextWordWrap, text);
            top += used.height() + kText;
        };
        paragraph(windowTitle(), graphexport::pageFont(kTitle, true));
        paragraph(summary_->text(), graphexport::pageFont(kText));
        const graphexport::TableLayout layout = graphexport::layoutTable(rows, width, kTable);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (top + layout.rowHeight > kPageHeight - kMargin) {  // the rest goes on the next page
                pdf.newPage();
                top = kMargin;
            }
            graphexport::paintTableRow(p, layout, rows[i], i == 0, kMargin, top);
            top += layout.rowHeight;
        }
    }
    if (!file.commit())
        return graphexport::couldNotWrite(path, file.errorString());
    return {};
}

void ConvergenceWindow::exportTableClicked()
{
    const QString path = FileBox(true, Plotto::tr("Export Table"), graphexport::lastFolder(),
                                 Plotto::tr("Comma-separated values (*.csv);;PDF page (*.pdf)"), {});
    if (path.isEmpty())
        return;
    graphexport::rememberFolder(path);
    if (const QString error = exportTable(path); !error.isEmpty())
        MsgBox(error, Plotto::tr("Export Table"));
}
