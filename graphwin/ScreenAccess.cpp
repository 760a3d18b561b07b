// SPDX-License-Identifier: GPL-3.0-or-later
// The screen as a keyboard user and a screen reader meet it: the first opening's size, the names and
// Tab order of the controls, the description of the picture and its results, and Ctrl+C.
#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QGroupBox>
#include <QScrollBar>
#include <QTableWidget>

#include "funclib/FuncGlobals.h"
#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "runtime/Numbers.h"

namespace {

// The screens that exist; after every action each one that is shown refreshes its description.
std::vector<GraphScreen*>& liveScreens()
{
    static std::vector<GraphScreen*> screens;
    return screens;
}

void refreshShownScreens()
{
    for (GraphScreen* screen : liveScreens())
        if (screen->isVisible())
            screen->refreshDescription();
}

}  // namespace

void GraphScreen::joinDescriptions()
{
    static const int hook = addActionEndedHook(refreshShownScreens);
    (void)hook;
    liveScreens().push_back(this);
}

void GraphScreen::leaveDescriptions() { std::erase(liveScreens(), this); }

void GraphScreen::arrangeForKeyboard()
{
    // Names that no caption gives.
    const std::pair<TextBox*, const char*> limits[] = {
        {txtXmin, "Xmin"}, {txtXmax, "Xmax"}, {txtYmin, "Ymin"}, {txtYmax, "Ymax"}};
    for (const auto& [box, name] : limits) {
        box->setAccessibleName(QString::fromLatin1(name));
        box->setToolTip(QString::fromLatin1(name));
    }
    const std::tuple<ClickLabel*, const char*, const char*> arrows[] = {
        {lblXminL, "lower", "Xmin"}, {lblXminR, "raise", "Xmin"}, {lblXmaxL, "lower", "Xmax"},
        {lblXmaxR, "raise", "Xmax"}, {lblYminL, "lower", "Ymin"}, {lblYminR, "raise", "Ymin"},
        {lblYmaxL, "lower", "Ymax"}, {lblYmaxR, "raise", "Ymax"}};
    for (const auto& [label, verb, limit] : arrows)
        label->setAccessibleName(
            QStringLiteral("%1 %2 by one").arg(QString::fromLatin1(verb), QString::fromLatin1(limit)));
    surface->setAccessibleName(QStringLiteral("Graph"));
    refreshDescription();

    // A stepper label steps the box beside it, and is named for what it does.
    for (TextBox* box : surface->findChildren<TextBox*>()) {
        auto* label = qobject_cast<ClickLabel*>(labelFor(box));
        if (label && label->MouseDown && label->accessibleName().isEmpty()) {
            label->steps = box;
            label->setAccessibleName(QStringLiteral("raise or lower ") + spoken(label->text()));
        }
    }

    std::vector<QWidget*> focusable{surface};
    for (QWidget* w : surface->findChildren<QWidget*>()) {
        if (auto* label = qobject_cast<ClickLabel*>(w)) {
            // A label keeps no name of its own unless it steps or moves something: it is read as its
            // text, whatever a handler writes into it.
            if (label->interactive()) {
                label->setFocusPolicy(Qt::StrongFocus);
                focusable.push_back(label);
            }
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            if (button->accessibleName().isEmpty())
                button->setAccessibleName(spoken(button->text()));
            focusable.push_back(button);
        } else if (qobject_cast<QLineEdit*>(w) || qobject_cast<ScrollBar*>(w) || qobject_cast<QTableWidget*>(w)) {
            if (w->accessibleName().isEmpty()) {
                if (QLabel* label = labelFor(w))
                    w->setAccessibleName(spoken(label->text()));
            }
            if (auto* bar = qobject_cast<ScrollBar*>(w))
                bar->setFocusPolicy(Qt::StrongFocus);
            focusable.push_back(w);
        } else if (auto* frame = qobject_cast<QGroupBox*>(w)) {
            frame->setAccessibleName(spoken(frame->title()));
        }
    }
    // The order of the panels: left of the square, the square with its limit boxes, then each
    // column on the right; within a panel from top to bottom, then from left to right.
    // Positions are compared in normal-size pixels, whatever the form's zoom.
    const int squareLeftPx = config_.squareLeft / 15, squareRightPx = (config_.squareLeft + 6400) / 15;
    auto place = [&](QWidget* w) {
        const double k = twipsPerPixel(surface) / 15;
        const QPoint at = w->mapTo(surface, QPoint(0, 0));
        const int x = static_cast<int>(std::lround(at.x() * k)), y = static_cast<int>(std::lround(at.y() * k));
        const int centre = x + static_cast<int>(std::lround(w->width() * k / 2));
        // The limit boxes and their arrows stand astride the square's edges, wider on the right.
        const int panel = centre < squareLeftPx - 30     ? 0
                          : centre <= squareRightPx + 60 ? 1
                                                         : 2 + (x - squareRightPx) / 120;
        return std::tuple(panel, y, x);
    };
    std::stable_sort(focusable.begin(), focusable.end(), [&](QWidget* a, QWidget* b) { return place(a) < place(b); });
    for (std::size_t i = 1; i < focusable.size(); ++i)
        QWidget::setTabOrder(focusable[i - 1], focusable[i]);
    makeNamesUnique(focusable);
}

void GraphScreen::noteDrawn(const QString& what)
{
    if (drawnAfterClear_ != surface->clears()) {
        drawn_.clear();
        drawnBeyond_ = 0;
        drawnAfterClear_ = surface->clears();
    }
    // A long run of plots is summarised rather than listed without end.
    if (drawn_.size() < kMaxDescribed)
        drawn_ << what;
    else
        ++drawnBeyond_;
}

QString GraphScreen::describe() const
{
    QStringList lines{windowTitle() + QLatin1Char('.')};
    lines << QStringLiteral("Window: x from %1 to %2, y from %3 to %4.")
                 .arg(txtXmin->text(), txtXmax->text(), txtYmin->text(), txtYmax->text());
    if (drawnAfterClear_ == surface->clears() && !drawn_.isEmpty()) {
        for (const QString& what : drawn_)
            lines << QStringLiteral("Drawn: ") + what + QLatin1Char('.');
        if (drawnBeyond_ > 0)
            lines << QStringLiteral("And %1 more drawings.").arg(drawnBeyond_);
    }
    describeResults(lines);
    return lines.join(QLatin1Char('\n'));
}

void GraphScreen::describeResults(QStringList&) const { }

QString GraphScreen::describeFamily() const
{
    using namespace FuncGlobals;
    QString text = FunctionId >= 1 && FunctionId <= 15 ? QString::fromStdString(FuncCaption[FunctionId])
                                                       : QStringLiteral("y = 0 (no function chosen)");
    const TextBox* boxes[6] = {txtA, txtB, txtC, txtD, txtE, txtF};
    QStringList values;
    for (int i = 0; i < config_.coefficientCount; ++i)
        if (boxes[i])
            values
                << QStringLiteral("%1 = %2").arg(QChar::fromLatin1(static_cast<char>('A' + i))).arg(boxes[i]->text());
    return text + QStringLiteral(" with ") + values.join(QStringLiteral(", "));
}

void GraphScreen::refreshDescription()
{
    const QString now = describe();
    if (now != surface->accessibleDescription())
        surface->setAccessibleDescription(now);
    for (ScrollBar* bar : surface->findChildren<ScrollBar*>()) {
        const std::optional<QString> meaning = bar->meaning();
        if (meaning && *meaning != bar->accessibleDescription())
            bar->setAccessibleDescription(*meaning);
    }
}

void GraphScreen::copyGraph()
{
    if (auto* grid = qobject_cast<Grid*>(QApplication::focusWidget())) {
        copyToClipboard(grid->tabSeparated());
        return;
    }
    const double L = config_.squareLeft;
    copyToClipboard(surface->picture(QRectF(L, config_.frameTop, 6405, 6405 + (100 - config_.frameTop))), describe());
}
