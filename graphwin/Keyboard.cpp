// SPDX-License-Identifier: GPL-3.0-or-later
// Keyboard access in one place: the keys a focused stepper or answering label takes in place of
// the mouse, the ring that marks the focused control, and each screen's spoken names and Tab order.
#include <algorithm>
#include <cmath>
#include <tuple>

#include <QAccessible>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QTableWidget>

#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"
#include "graphwin/DrawingSurface.h"
#include "graphwin/FormStyle.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"

void ClickLabel::announceStep()
{
    if (!steps)
        return;
    QAccessibleValueChangeEvent changed(this, steps->text());
    QAccessible::updateAccessibility(&changed);
}

void ClickLabel::activate(int button, int shift)
{
    const double x = width() * twipsPerPixel(this) / 2, y = height() * twipsPerPixel(this) / 2;  // the middle
    if (MouseDown) {
        guarded([&] { MouseDown(button, shift, x, y); });
        announceStep();
    }
    if (button == LeftButton && Click)
        guarded(Click);
}

void ClickLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool left = key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Plus || key == Qt::Key_Space ||
                      key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool right = key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Minus;
    if (!interactive() || !(left || right) || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        QLabel::keyPressEvent(event);
        return;
    }
    activate(left ? LeftButton : RightButton, shiftCode(event->modifiers()));
    // Shift with a pressing key stands for a double click where the label answers one (the limit
    // arrows: a click and a double click, five steps in all).
    if (left && event->modifiers() & Qt::ShiftModifier && DblClick)
        guarded(DblClick);
}

void paintFocusRing(QWidget* widget)
{
    if (!widget->hasFocus())
        return;
    QPainter painter(widget);
    painter.setPen(QPen(QColor(0x00, 0x00, 0x99), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(widget->rect()).adjusted(1, 1, -1, -1));
}

void ClickLabel::paintEvent(QPaintEvent* event)
{
    if (caption::fits(this)) {
        QLabel::paintEvent(event);
    } else {
        // A one-line caption longer than the label: shortened with an ellipsis (its tooltip shows it).
        QPainter painter(this);
        drawFrame(&painter);
        const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
        const QString shortened = fontMetrics().elidedText(text(), Qt::ElideRight, caption::room(this));
        style()->drawItemText(&painter, room, QStyle::visualAlignment(layoutDirection(), alignment()), palette(),
                              isEnabled(), shortened, foregroundRole());
    }
    paintFocusRing(this);
}

void ScrollBar::paintEvent(QPaintEvent* event)
{
    QScrollBar::paintEvent(event);
    paintFocusRing(this);
}

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
    surface->setAccessibleName(Plotto::tr("Graph"));
    refreshDescription();

    // A stepper label steps the box beside it, and is named for what it does.
    for (TextBox* box : surface->findChildren<TextBox*>()) {
        auto* label = qobject_cast<ClickLabel*>(labelFor(box));
        if (label && label->MouseDown && label->accessibleName().isEmpty()) {
            label->steps = box;
            label->setAccessibleName(Plotto::tr("raise or lower %1").arg(spoken(label->text())));
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
    const int squareLeftPx = static_cast<int>(graph.Left) / 15, squareRightPx = static_cast<int>(graph.right()) / 15;
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
