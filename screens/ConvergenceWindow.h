// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "Convergence" window of the sums and slope-field screens: a table of how fast each method
// approaches the exact value, computed from the screen's current state when the window opens or
// Recompute is pressed, and beside it a log-log plot of each method's error against the number of
// partitions or steps with the reference slopes -1, -2 and -4, so that the orders are seen at a
// glance. Each method is one column (its value, error and ratio one under the other), so that the
// table fits beside the plot. Ctrl+C copies the table as tab-separated text, or the plot as an image
// when the plot has the focus; everything grows with the window.
#include <functional>
#include <vector>

#include <QDialog>
#include <QStringList>

#include "screens/Convergence.h"

class QLabel;
class QTableWidget;
class QLineEdit;
class QMenuBar;
class QChartView;

class ConvergenceWindow : public QDialog {
    Q_OBJECT
public:
    // `compute` builds the table from the screen's state and the window's own boxes (if any).
    ConvergenceWindow(QWidget* owner, const QString& title, std::function<Convergence::Table()> compute);

    // Optional inputs of the window (the step table's start, end and step), placed above the table.
    QLineEdit* addInput(const QString& name, const QString& text);

    // Computes the table again and shows it.
    void recompute();
    const Convergence::Table& table() const { return table_; }
    QTableWidget* grid() const { return grid_; }
    QLabel* summary() const { return summary_; }
    QLabel* roundOffNote() const { return roundOff_; }
    QChartView* plot() const { return plot_; }
    // The table as it is shown, written to `path`: comma-separated values (.csv) or a PDF page with the
    // window's title and summary (.pdf), through a temporary file renamed at the end: "" or what went
    // wrong. The Export Table button asks for the file.
    QString exportTable(const QString& path) const;
    void exportTableClicked();
    // What the plot shows, in words: each method's measured slope against its expected one.
    QString plotDescription() const;
    // Method m's name (a column's heading) in the language.
    QString method(std::size_t m) const;
    // The table's cells as the window shows them, in the language (the first row holds the headings).
    std::vector<QStringList> shownCells() const;
    // The window's size at which its font is the normal one; it grows with the window from there.
    static constexpr int kNormalWidth = 1180, kNormalHeight = 560;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fillGrid();
    void fillPlot();
    void applyFont();
    std::function<Convergence::Table()> compute_;
    Convergence::Table table_;
    QLabel* summary_ = nullptr;
    QLabel* roundOff_ = nullptr;
    QTableWidget* grid_ = nullptr;
    QChartView* plot_ = nullptr;
    class QFormLayout* inputs_ = nullptr;
    double baseFont_ = 10;
};

// Adds the menu "Con&vergence" to a screen's menu bar, with one entry, "Convergence &Table..."
// (Ctrl+T), that shows the window (made here, once) and computes it from the screen as it is now.
// The seed's own menus and controls are left as they are.
ConvergenceWindow* addConvergenceMenu(QWidget* screen, QMenuBar* bar, const QString& title,
                                      std::function<Convergence::Table()> compute);
