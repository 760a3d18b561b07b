// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ConvergenceWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"

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
    grid_ = new QTableWidget(this);
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setTabKeyNavigation(false);
    grid_->verticalHeader()->hide();
    grid_->setAccessibleName(title);
    layout->addWidget(grid_, 1);
    auto* again = new QPushButton(QStringLiteral("Re&compute"), this);
    connect(again, &QPushButton::clicked, this, [this] { guarded([this] { recompute(); }); });
    layout->addWidget(again, 0, Qt::AlignRight);
    auto* copy = new QShortcut(QKeySequence::Copy, this);
    connect(copy, &QShortcut::activated, this,
            [this] { copyToClipboard(QString::fromStdString(table_.tabSeparated())); });
    resize(900, 520);
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
    summary_->setText(QString::fromStdString(table_.exactSource));
    const auto cells = table_.cells();
    grid_->clear();
    grid_->setRowCount(static_cast<int>(cells.size()) - 1);
    grid_->setColumnCount(cells.empty() ? 0 : static_cast<int>(cells.front().size()));
    for (std::size_t c = 0; c < cells.front().size(); ++c)
        grid_->setHorizontalHeaderItem(static_cast<int>(c), new QTableWidgetItem(QString::fromStdString(cells[0][c])));
    for (std::size_t r = 1; r < cells.size(); ++r)
        for (std::size_t c = 0; c < cells[r].size(); ++c) {
            auto* item = new QTableWidgetItem(QString::fromStdString(cells[r][c]));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            grid_->setItem(static_cast<int>(r) - 1, static_cast<int>(c), item);
        }
    grid_->resizeColumnsToContents();
}

void ConvergenceWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    // The text grows with the window, as the screens' forms do.
    const double factor = std::clamp(std::min(width() / 900.0, height() / 520.0), 0.5, 4.0);
    QFont f = font();
    f.setPointSizeF(baseFont_ * factor);
    if (f != font()) {
        setFont(f);
        grid_->resizeColumnsToContents();
    }
}

ConvergenceWindow* addConvergenceMenu(QWidget* screen, QMenuBar* bar, const QString& title,
                                      std::function<Convergence::Table()> compute)
{
    auto* window = new ConvergenceWindow(screen, title, std::move(compute));
    // Before the last menu (Tools), which every screen keeps at the end.
    auto* menu = new QMenu(QStringLiteral("Con&vergence"), bar);
    bar->insertMenu(bar->actions().isEmpty() ? nullptr : bar->actions().last(), menu);
    QAction* open = menu->addAction(QStringLiteral("Convergence &Table..."));
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
