// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/FormStyle.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace {

constexpr const char* kZoomProperty = "plottoZoom";

int scaled(int value, double zoom) { return std::max(1, static_cast<int>(std::lround(value * zoom))); }

}  // namespace

FormStyle::FormStyle(QStyle* base) : QProxyStyle(base) { }

double FormStyle::zoomOf(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (w->isWindow()) {
            const QVariant zoom = w->property(kZoomProperty);
            if (zoom.isValid())
                return zoom.toDouble();
            // A popup menu or a dialog belongs to the window that opened it.
        }
    }
    return 1.0;
}

void FormStyle::setWindowZoom(QWidget* window, double zoom) { window->setProperty(kZoomProperty, zoom); }

QFont FormStyle::zoomed(QFont base, const QWidget* widget)
{
    const double zoom = zoomOf(widget);
    if (base.pointSizeF() > 0)
        base.setPointSizeF(base.pointSizeF() * zoom);
    else if (base.pixelSize() > 0)
        base.setPixelSize(scaled(base.pixelSize(), zoom));
    return base;
}

int FormStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int base = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
    case PM_MenuBarVMargin:
    case PM_MenuBarHMargin:
    case PM_MenuBarItemSpacing:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
    case PM_MenuPanelWidth:
    case PM_MenuBarPanelWidth:
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
    case PM_SmallIconSize: return base > 0 ? scaled(base, zoomOf(widget)) : base;
    default: return base;
    }
}

void FormStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const double zoom = zoomOf(widget);
    const bool enabled = option->state & State_Enabled;
    const QColor outline = enabled ? QColor(kOutline) : QColor(0xA0, 0xA0, 0xA0);
    const qreal pen = std::max(1.0, std::round(zoom));
    switch (element) {
    case PE_IndicatorCheckBox: {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, true);
        const QRectF box = QRectF(option->rect).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
        painter->setPen(QPen(outline, pen));
        painter->setBrush(enabled ? Qt::white : QColor(0xF0, 0xF0, 0xF0));
        painter->drawRect(box);
        if (option->state & (State_On | State_NoChange)) {
            painter->setPen(
                QPen(outline.darker(150), std::max(1.5, 2 * zoom), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            QPainterPath tick;
            const QRectF in =
                box.adjusted(box.width() * 0.2, box.height() * 0.2, -box.width() * 0.2, -box.height() * 0.2);
            if (option->state & State_NoChange) {
                tick.moveTo(in.left(), in.center().y());
                tick.lineTo(in.right(), in.center().y());
            } else {
                tick.moveTo(in.left(), in.center().y());
                tick.lineTo(in.left() + in.width() * 0.4, in.bottom());
                tick.lineTo(in.right(), in.top());
            }
            painter->setBrush(Qt::NoBrush);
            painter->drawPath(tick);
        }
        painter->restore();
        return;
    }
    case PE_IndicatorRadioButton: {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, true);
        const QRectF ring = QRectF(option->rect).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
        painter->setPen(QPen(outline, pen));
        painter->setBrush(enabled ? Qt::white : QColor(0xF0, 0xF0, 0xF0));
        painter->drawEllipse(ring);
        if (option->state & State_On) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(outline.darker(150));
            const qreal r = ring.width() * 0.27;
            painter->drawEllipse(ring.center(), r, r);
        }
        painter->restore();
        return;
    }
    case PE_FrameFocusRect: {
        // A focus mark that a projector shows: a solid dark-blue frame, as wide as the zoom.
        painter->save();
        painter->setPen(QPen(QColor(0x00, 0x3C, 0xA0), std::max(1.0, std::round(1.5 * zoom))));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
        painter->restore();
        return;
    }
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void FormStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && (element == CE_PushButtonLabel || element == CE_CheckBoxLabel || element == CE_RadioButtonLabel)) {
        const int room = option->rect.width() - (element == CE_PushButtonLabel ? 0 : 2);
        if (option->fontMetrics.horizontalAdvance(QString(button->text).remove(QLatin1Char('&'))) > room) {
            QStyleOptionButton shortened = *button;
            shortened.text = option->fontMetrics.elidedText(button->text, Qt::ElideRight, room, Qt::TextShowMnemonic);
            QProxyStyle::drawControl(element, &shortened, painter, widget);
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void FormStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option); control == CC_GroupBox && box) {
        QStyleOptionGroupBox shortened = *box;
        const int room = caption::room(widget);
        if (room > 0 && option->fontMetrics.horizontalAdvance(QString(box->text).remove(QLatin1Char('&'))) > room)
            shortened.text = option->fontMetrics.elidedText(box->text, Qt::ElideRight, room, Qt::TextShowMnemonic);
        QProxyStyle::drawComplexControl(control, &shortened, painter, widget);
        return;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const double zoom = zoomOf(widget);
    const bool enabled = option->state & State_Enabled;
    painter->save();
    painter->fillRect(option->rect, QColor(kTrack));
    painter->setPen(QPen(QColor(0xB0, 0xB0, 0xB0), 1));
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    const QRect thumb = subControlRect(control, option, SC_ScrollBarSlider, widget);
    if (enabled && thumb.isValid()) {
        const int inset = std::max(1, static_cast<int>(std::lround(zoom)));
        painter->fillRect(thumb.adjusted(inset, inset, -inset, -inset),
                          (option->state & State_HasFocus) ? QColor(0x00, 0x3C, 0xA0) : QColor(kThumb));
    }
    // The two arrows: a button face with a dark triangle as large as the button allows.
    const bool horizontal = bar->orientation == Qt::Horizontal;
    for (SubControl part : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
        const QRect button = subControlRect(control, option, part, widget);
        if (!button.isValid())
            continue;
        painter->fillRect(button, QColor(0xD6, 0xD6, 0xD6));
        painter->setBrush(Qt::NoBrush);  // the arrow before this one left its brush
        painter->setPen(QPen(QColor(0x90, 0x90, 0x90), 1));
        painter->drawRect(QRectF(button).adjusted(0.5, 0.5, -0.5, -0.5));
        const QRectF in = QRectF(button).adjusted(button.width() * 0.28, button.height() * 0.28, -button.width() * 0.28,
                                                  -button.height() * 0.28);
        QPolygonF arrow;
        const bool forward = part == SC_ScrollBarAddLine;
        if (horizontal)
            arrow << (forward ? in.topLeft() : in.topRight()) << (forward ? in.bottomLeft() : in.bottomRight())
                  << QPointF(forward ? in.right() : in.left(), in.center().y());
        else
            arrow << (forward ? in.topLeft() : in.bottomLeft()) << (forward ? in.topRight() : in.bottomRight())
                  << QPointF(in.center().x(), forward ? in.bottom() : in.top());
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->setPen(Qt::NoPen);
        painter->setBrush(enabled ? QColor(0x26, 0x26, 0x26) : QColor(0xA0, 0xA0, 0xA0));
        painter->drawPolygon(arrow);
        painter->setRenderHint(QPainter::Antialiasing, false);
    }
    painter->restore();
}

void installFormStyle()
{
    if (!qApp || qobject_cast<FormStyle*>(QApplication::style()))
        return;
    // Over the style in force (Fusion unless -style chose another); the application owns it.
    QStyle* base = QStyleFactory::create(QApplication::style()->name());
    QApplication::setStyle(new FormStyle(base));
}

namespace caption {

QString of(const QWidget* widget)
{
    QString text;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        text = button->text();
    else if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        text = box->title();
    else if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->textFormat() != Qt::RichText)
        text = label->text();
    return text.remove(QLatin1Char('&'));
}

int room(const QWidget* widget)
{
    QStyle* style = widget->style();
    if (const auto* push = qobject_cast<const QPushButton*>(widget)) {
        QStyleOptionButton option;
        option.initFrom(push);
        return style->subElementRect(QStyle::SE_PushButtonContents, &option, push).width();
    }
    if (qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget)) {
        QStyleOptionButton option;
        option.initFrom(widget);
        const bool check = qobject_cast<const QCheckBox*>(widget);
        return style
                   ->subElementRect(check ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents, &option,
                                    widget)
                   .width() -
               2;
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
        // The title may reach from where the style puts it to the frame's right edge.
        QStyleOptionGroupBox option;
        option.initFrom(box);
        option.text = box->title();
        option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
        return box->width() - style->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box).left();
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        if (label->wordWrap())
            return std::numeric_limits<int>::max();
        const int indent = label->indent() > 0 ? label->indent() : 0;
        return label->contentsRect().width() - 2 * label->margin() - indent;
    }
    return std::numeric_limits<int>::max();
}

bool fits(const QWidget* widget)
{
    const QString text = of(widget);
    if (text.isEmpty())
        return true;
    const QFontMetrics metrics(widget->font());
    // A label of several lines is as wide as its widest line.
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest <= room(widget);
}

namespace {

constexpr char kOwnTip[] = "plottoOwnTip";
constexpr char kTipQueued[] = "plottoTipQueued";

void updateTip(QWidget* widget)
{
    if (!widget->property(kOwnTip).isValid())
        widget->setProperty(kOwnTip, widget->toolTip());
    const QString own = widget->property(kOwnTip).toString();
    const QString whole = of(widget);
    const QString tip = fits(widget) || whole == own ? own : own.isEmpty() ? whole : whole + QLatin1Char('\n') + own;
    if (widget->toolTip() != tip)
        widget->setToolTip(tip);
}

class Watcher : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Resize:
        case QEvent::FontChange:
        case QEvent::StyleChange:
        case QEvent::Show: {
            // Once the form has finished growing or shrinking: its zoom, which the style's room for a
            // caption depends on, is recorded after its controls are resized.
            auto* widget = static_cast<QWidget*>(watched);
            if (!widget->property(kTipQueued).toBool()) {
                widget->setProperty(kTipQueued, true);
                QMetaObject::invokeMethod(
                    widget,
                    [widget] {
                        widget->setProperty(kTipQueued, false);
                        updateTip(widget);
                    },
                    Qt::QueuedConnection);
            }
            break;
        }
        default: break;
        }
        return false;
    }
};

}  // namespace

void watch(QWidget* widget)
{
    static auto* watcher = new Watcher(qApp);
    widget->installEventFilter(watcher);
    updateTip(widget);
}

}  // namespace caption
