// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ConvergenceWindow.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QLineEdit>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScatterSeries>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormStyle.h"
#include "graphwin/Language.h"

ConvergenceWindow::ConvergenceWindow(QWidget* owner, const QString& title, std::function<Convergence::Table()> compute)
    : QDialog(owner), compute_(std::move(compute))
{
    setWindowTitle(title);
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    setFont(QFont(QStringLiteral("Times New Roman"), 10));
    baseFont_ = font().pointSizeF();
    auto* layout = new QVBoxLayout(this);
    inputs_ = new QFormLayout;
    layout->addLayout(inputs_);
    summary_ = new QLabel(this);
    summary_->setWordWrap(true);
    summary_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(summary_);
    auto* body = new QHBoxLayout;
    grid_ = new QTableWidget(this);
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setTabKeyNavigation(false);
    grid_->verticalHeader()->hide();
    grid_->setWordWrap(true);
    grid_->setAccessibleName(title);
    body->addWidget(grid_);
    plot_ = new QChartView(this);
    plot_->setRenderHint(QPainter::Antialiasing);
    plot_->setFocusPolicy(Qt::StrongFocus);
    plot_->setAccessibleName(Plotto::tr("Error against the number of steps, log-log"));
    plot_->setMinimumWidth(320);
    body->addWidget(plot_, 1);
    layout->addLayout(body, 1);
    roundOff_ = new QLabel(this);  // under the table: why some ratios say "round-off"
    roundOff_->setWordWrap(true);
    roundOff_->setObjectName(QStringLiteral("lblRoundOff"));
    layout->addWidget(roundOff_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto* exporting = new QPushButton(Plotto::tr("&Export Table..."), this);
    exporting->setObjectName(QStringLiteral("cmdExportTable"));
    connect(exporting, &QPushButton::clicked, this, [this] { guarded([this] { exportTableClicked(); }); });
    buttons->addWidget(exporting);
    auto* again = new QPushButton(Plotto::tr("Re&compute"), this);
    connect(again, &QPushButton::clicked, this, [this] { guarded([this] { recompute(); }); });
    buttons->addWidget(again);
    layout->addLayout(buttons);
    auto* copy = new QShortcut(QKeySequence::Copy, this);
    connect(copy, &QShortcut::activated, this, [this] {
        if (plot_->hasFocus()) {  // the plot as an image, with what it shows in words
            auto* data = new QMimeData;
            data->setImageData(plot_->grab().toImage());
            data->setText(plotDescription());
            QApplication::clipboard()->setMimeData(data);
            return;
        }
        copyToClipboard(QString::fromStdString(table_.tabSeparated()));
    });
    resize(kNormalWidth, kNormalHeight);
}

QLineEdit* ConvergenceWindow::addInput(const QString& name, const QString& text)
{
    auto* box = new QLineEdit(text, this);
    box->setAccessibleName(name);
    inputs_->addRow(name, box);
    return box;
}

void ConvergenceWindow::recompute()
{
    table_ = compute_();
    summary_->setText(i18n::words(table_.exactSource));
    fillGrid();
    roundOff_->setText(table_.hasRoundOff() ? i18n::words(Convergence::Table::roundOffNote()) : QString());
    roundOff_->setVisible(!roundOff_->text().isEmpty());
    fillPlot();
    applyFont();
}

void ConvergenceWindow::fillGrid()
{
    // The row heading, then one column per method: its value, error and ratio one under the other,
    // from the same cells that Ctrl+C copies.
    const std::vector<QStringList> cells = shownCells();
    grid_->clear();
    const int methods = static_cast<int>(table_.methods.size());
    grid_->setRowCount(static_cast<int>(cells.size()) - 1);
    grid_->setColumnCount(1 + methods);
    grid_->setHorizontalHeaderItem(0, new QTableWidgetItem(cells[0][0]));
    for (int m = 0; m < methods; ++m)
        grid_->setHorizontalHeaderItem(1 + m, new QTableWidgetItem(method(static_cast<std::size_t>(m))));
    for (std::size_t r = 1; r < cells.size(); ++r) {
        auto* heading = new QTableWidgetItem(QString(cells[r][0]).replace(QStringLiteral(" ("), QStringLiteral("\n(")));
        heading->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid_->setItem(static_cast<int>(r) - 1, 0, heading);
        for (int m = 0; m < methods; ++m) {
            const QString& error = cells[r][2 + 3 * m];
            const QString& ratio = cells[r][3 + 3 * m];
            QString text = cells[r][1 + 3 * m];
            //: a convergence table's cell: the error of the value above it
            if (!error.isEmpty())
                text += QLatin1Char('\n') + Plotto::tr("error %1").arg(error);
            //: a convergence table's cell: the previous row's error over this row's
            if (!ratio.isEmpty())
                text += QLatin1Char('\n') + Plotto::tr("ratio %1").arg(ratio);
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            grid_->setItem(static_cast<int>(r) - 1, 1 + m, item);
        }
    }
}

void ConvergenceWindow::fillPlot()
{
    auto* chart = new QChart;
    const bool partitions = table_.kind == Convergence::Table::Kind::Sums;
    const QString title = partitions ? Plotto::tr("Error against the number of partitions, log-log")
                                     : Plotto::tr("Error against the number of steps, log-log");
    chart->setTitle(title);
    plot_->setAccessibleName(title);
    auto* x = new QLogValueAxis;
    x->setBase(2);
    x->setLabelFormat(QStringLiteral("%g"));
    //: the horizontal axis of the step methods' convergence plot
    x->setTitleText(partitions ? QStringLiteral("n") : Plotto::tr("steps"));
    auto* y = new QLogValueAxis;
    y->setBase(10);
    y->setLabelFormat(QStringLiteral("%.0e"));
    //: the vertical axis of a convergence plot
    y->setTitleText(Plotto::tr("error"));
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    double lowest = 0, highest = 0;
    for (std::size_t m = 0; m < table_.methods.size() && table_.exact; ++m) {
        auto* series = new QLineSeries;
        series->setName(method(m));
        series->setPen(QPen(QColor::fromRgb(m < table_.colours.size() ? table_.colours[m] : 0x606060), 2.5));
        series->setPointsVisible(true);
        // Only measurable errors: an error of 0 has no place on a log scale.
        for (const auto& [count, error] : table_.measuredErrors(m)) {
            series->append(count, error);
            lowest = lowest == 0 ? error : std::min(lowest, error);
            highest = std::max(highest, error);
        }
        chart->addSeries(series);
        series->attachAxis(x);
        series->attachAxis(y);
    }
    // The reference slopes of the table's orders, apart from the data (above its first point), each
    // labelled at its end; the lowest order dashed, the next dash-dotted, the others dotted.
    const std::vector<Convergence::Table::ReferenceLine> references = table_.referenceLines();
    for (std::size_t o = 0; o < references.size(); ++o) {
        const auto& reference = references[o];
        auto* line = new QLineSeries;
        line->setName(Plotto::tr("slope -%1").arg(reference.order));
        line->setPen(QPen(QColor(0x60, 0x60, 0x60), 1.5,
                          o == 0   ? Qt::DashLine
                          : o == 1 ? Qt::DashDotLine
                                   : Qt::DotLine));
        line->append(reference.from.first, reference.from.second);
        line->append(reference.to.first, reference.to.second);
        highest = std::max(highest, reference.from.second);
        // The label: one unmarked point at the line's end that carries the text.
        auto* end = new QScatterSeries;
        end->append(reference.to.first, reference.to.second);
        end->setMarkerSize(1);
        end->setColor(Qt::transparent);
        end->setBorderColor(Qt::transparent);
        end->setPointLabelsFormat(i18n::words(reference.label));
        end->setPointLabelsColor(QColor(0x40, 0x40, 0x40));
        end->setPointLabelsVisible(true);
        end->setPointLabelsClipping(false);
        chart->addSeries(line);
        chart->addSeries(end);
        for (QAbstractSeries* series : {static_cast<QAbstractSeries*>(line), static_cast<QAbstractSeries*>(end)}) {
            series->attachAxis(x);
            series->attachAxis(y);
        }
        for (QLegendMarker* marker : chart->legend()->markers(end))
            marker->setVisible(false);
    }
    if (highest > 0) {
        y->setRange(lowest / 2, highest * 2);
        x->setRange(table_.rowCounts.front() / 1.2, table_.rowCounts.back() * 1.2);
    }
    chart->legend()->setAlignment(Qt::AlignRight);
    QChart* old = plot_->chart();
    plot_->setChart(chart);
    delete old;
    plot_->setAccessibleDescription(plotDescription());
}

QString ConvergenceWindow::method(std::size_t m) const { return Plotto::tr(table_.methods[m].c_str()); }

std::vector<QStringList> ConvergenceWindow::shownCells() const
{
    std::vector<QStringList> rows;
    for (const auto& line : table_.cells()) {
        QStringList cells;
        for (const std::string& cell : line)
            cells << i18n::words(cell);
        rows.push_back(cells);
    }
    // The headings: the row's, then each method's value, error and ratio.
    for (std::size_t m = 0; m < table_.methods.size() && !rows.empty(); ++m) {
        const auto at = static_cast<qsizetype>(1 + 3 * m);
        rows.front()[at] = method(m);
        //: a convergence table's heading over a method's errors
        rows.front()[at + 1] = Plotto::tr("%1 error").arg(method(m));
        //: a convergence table's heading over a method's ratios of successive errors
        rows.front()[at + 2] = Plotto::tr("%1 ratio").arg(method(m));
    }
    return rows;
}

QString ConvergenceWindow::plotDescription() const
{
    QStringList lines;
    lines << plot_->accessibleName() + QLatin1Char('.');
    if (!table_.exact) {
        lines << Plotto::tr("No errors to plot: %1").arg(i18n::words(table_.exactSource));
        return lines.join(QLatin1Char('\n'));
    }
    // A method's measured slope: the median of the slopes between its successive rows with a
    // measurable error, so that the rows where single precision or the step's own rounding has
    // taken over do not decide it.
    for (std::size_t m = 0; m < table_.methods.size(); ++m) {
        std::vector<double> slopes;
        double n0 = 0, e0 = 0;
        for (const auto& [count, error] : table_.measuredErrors(m)) {
            if (n0 > 0 && count > n0)
                slopes.push_back(std::log(error / e0) / std::log(count / n0));
            n0 = count;
            e0 = error;
        }
        if (slopes.empty()) {
            lines << Plotto::tr("%1: too few measurable errors for a slope").arg(method(m));
            continue;
        }
        std::nth_element(slopes.begin(), slopes.begin() + static_cast<long>(slopes.size() / 2), slopes.end());
        const QString slope =
            i18n::decimals(QString::fromStdString(Convergence::format("%.2f", slopes[slopes.size() / 2])));
        lines << (m < table_.orders.size()
                      ? Plotto::tr("%1: slope %2 (expected -%3)").arg(method(m), slope).arg(table_.orders[m])
                      : Plotto::tr("%1: slope %2").arg(method(m), slope));
    }
    return lines.join(QLatin1Char('\n'));
}

void ConvergenceWindow::applyFont()
{
    // The text grows with the window, as the screens' forms do, from the normal size up.
    const double factor = std::clamp(
        std::min(width() / static_cast<double>(kNormalWidth), height() / static_cast<double>(kNormalHeight)), 0.5, 4.0);
    QFont f = font();
    f.setPointSizeF(baseFont_ * factor);
    FormStyle::setWindowZoom(this, factor);
    if (f != font())
        setFont(f);
    if (QChart* chart = plot_->chart()) {
        QFont small = f;
        small.setPointSizeF(f.pointSizeF() * 0.9);
        chart->setTitleFont(f);
        chart->legend()->setFont(small);
        for (QAbstractAxis* axis : chart->axes()) {
            axis->setLabelsFont(small);
            axis->setTitleFont(small);
        }
    }
    grid_->resizeColumnsToContents();
    grid_->resizeRowsToContents();
    // The table as wide as its columns (and a vertical scroll bar), the plot takes the rest.
    int width = 2 * grid_->frameWidth() + grid_->verticalScrollBar()->sizeHint().width();
    for (int c = 0; c < grid_->columnCount(); ++c)
        width += grid_->columnWidth(c);
    grid_->setFixedWidth(width);
}

void ConvergenceWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    applyFont();
}

ConvergenceWindow* addConvergenceMenu(QWidget* screen, QMenuBar* bar, const QString& title,
                                      std::function<Convergence::Table()> compute)
{
    auto* window = new ConvergenceWindow(screen, title, std::move(compute));
    // Before the last menu (Tools), which every screen keeps at the end.
    auto* menu = new QMenu(Plotto::tr("Con&vergence"), bar);
    bar->insertMenu(bar->actions().isEmpty() ? nullptr : bar->actions().last(), menu);
    QAction* open = menu->addAction(Plotto::tr("Convergence &Table..."));
    open->setObjectName(QStringLiteral("mnuConvergenceTable"));  // its key in lessons
    open->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    QObject::connect(open, &QAction::triggered, window, [window] {
        guarded([window] {
            window->show();
            window->raise();
            window->recompute();
        });
    });
    return window;
}
