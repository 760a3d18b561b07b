// SPDX-License-Identifier: GPL-3.0-or-later
// A screen's graph leaving the program: Export Graph (SVG, PDF, PNG), Print and Print Preview, from
// the Tools menu. The file and its options are asked for in the program's dialogs (answered by the
// dialog script in tests and in the walk, where nothing modal may open); the writing is
// graphexport's.
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QPainter>
#include <QPicture>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>

#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"

namespace {

QSettings settings() { return QSettings(QStringLiteral("Plotto"), QStringLiteral("Plotto")); }

// The options last chosen, or the defaults.
graphexport::Options rememberedOptions()
{
    const QSettings s = settings();
    graphexport::Options o;
    o.caption = s.value(QStringLiteral("export/caption"), o.caption).toBool();
    o.colour = s.value(QStringLiteral("export/colour"), o.colour).toBool();
    o.lineWidth = std::clamp(s.value(QStringLiteral("export/lineWidth"), o.lineWidth).toDouble(), 0.5, 5.0);
    o.dpi =
        std::clamp(s.value(QStringLiteral("export/dpi"), o.dpi).toInt(), graphexport::kMinDpi, graphexport::kMaxDpi);
    return o;
}

void remember(const graphexport::Options& o)
{
    QSettings s = settings();
    s.setValue(QStringLiteral("export/caption"), o.caption);
    s.setValue(QStringLiteral("export/colour"), o.colour);
    s.setValue(QStringLiteral("export/lineWidth"), o.lineWidth);
    s.setValue(QStringLiteral("export/dpi"), o.dpi);
}

// The options of an export or a print, asked for in a small dialog that shows the ones last chosen:
// the caption, colour or black and white, the lines' width and (for a PNG) the resolution. None on
// Cancel. A test's script answers OK at once.
std::optional<graphexport::Options> askOptions(QWidget* parent, const QString& title, bool resolution)
{
    graphexport::Options o = rememberedOptions();
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* form = new QFormLayout(&dialog);
    auto* caption = new QCheckBox(Plotto::tr("&Caption under the graph"), &dialog);
    caption->setChecked(o.caption);
    auto* blackAndWhite = new QCheckBox(Plotto::tr("&Black and white (line styles instead of colours)"), &dialog);
    blackAndWhite->setChecked(!o.colour);
    auto* width = new QDoubleSpinBox(&dialog);
    width->setRange(0.5, 5.0);
    width->setSingleStep(0.5);
    width->setSuffix(QStringLiteral(" x"));
    width->setValue(o.lineWidth);
    auto* dpi = new QSpinBox(&dialog);
    dpi->setRange(graphexport::kMinDpi, graphexport::kMaxDpi);
    dpi->setSingleStep(50);
    dpi->setSuffix(QStringLiteral(" dpi"));
    dpi->setValue(o.dpi);
    form->addRow(caption);
    form->addRow(blackAndWhite);
    form->addRow(Plotto::tr("&Line width:"), width);
    if (resolution)
        form->addRow(Plotto::tr("&Resolution:"), dpi);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    if (DialogScript* script = dialogScript())
        script->shown.emplace_back(title, QStringLiteral("options"));
    else if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    o.caption = caption->isChecked();
    o.colour = !blackAndWhite->isChecked();
    o.lineWidth = width->value();
    o.dpi = dpi->value();
    remember(o);
    return o;
}

}  // namespace

graphexport::Graph GraphScreen::exportedGraph() const
{
    // The square's outline and the axes' labels above it, as Ctrl+C copies them.
    const double L = config_.squareLeft;
    return {surface,
            QRectF(L, config_.frameTop, GraphWindow::Frame, GraphWindow::Frame + (GraphWindow::Top - config_.frameTop)),
            describe()};
}

QString GraphScreen::exportGraph(const QString& path, const graphexport::Options& options) const
{
    return graphexport::write(path, exportedGraph(), options);
}

void GraphScreen::printGraph(QPaintDevice& device, const QRectF& page, const graphexport::Options& options) const
{
    QPainter painter(&device);
    graphexport::paintFitted(painter, exportedGraph(), options, page);
}

void GraphScreen::mnuExportGraph_Click()
{
    const QString folder = graphexport::lastFolder();
    // A name from the window's title, offered in the last folder: "newtons-method-and-derivatives.svg".
    QString name = windowTitle().toLower();
    name.replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("-"));
    name = name.section(QLatin1Char('-'), 0, -1, QString::SectionSkipEmpty);
    const QString path = FileBox(true, Plotto::tr("Export Graph"),
                                 QDir(folder).filePath((name.isEmpty() ? QStringLiteral("graph") : name) + ".svg"),
                                 Plotto::tr("SVG drawing (*.svg);;PDF document (*.pdf);;PNG picture (*.png)"), {});
    if (path.isEmpty())
        return;
    graphexport::rememberFolder(path);
    const std::optional<graphexport::Format> format = graphexport::formatOf(path);
    const std::optional<graphexport::Options> options =
        format ? askOptions(this, Plotto::tr("Export Graph"), *format == graphexport::Format::Png)
               : graphexport::Options{};
    if (!options)
        return;
    if (const QString error = exportGraph(path, *options); !error.isEmpty())
        MsgBox(error, Plotto::tr("Export Graph"));
}

void GraphScreen::mnuPrint_Click()
{
    if (DialogScript* script = dialogScript()) {  // no printer in tests: the page is painted on a picture
        script->shown.emplace_back(Plotto::tr("Print"), QStringLiteral("printer"));
        QPicture picture;
        printGraph(picture, QRectF(0, 0, 595, 842), rememberedOptions());
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(Plotto::tr("Print"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    printGraph(printer, QRectF(QPointF(0, 0), printer.pageLayout().paintRectPixels(printer.resolution()).size()),
               rememberedOptions());
}

void GraphScreen::mnuPrintPreview_Click()
{
    if (DialogScript* script = dialogScript()) {
        script->shown.emplace_back(Plotto::tr("Print Preview"), QStringLiteral("printer"));
        QPicture picture;
        printGraph(picture, QRectF(0, 0, 595, 842), rememberedOptions());
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer, this);
    preview.setWindowTitle(Plotto::tr("Print Preview"));
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* p) {
        printGraph(*p, QRectF(QPointF(0, 0), p->pageLayout().paintRectPixels(p->resolution()).size()),
                   rememberedOptions());
    });
    preview.exec();
}
