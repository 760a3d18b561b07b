// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/Access.h"

#include <map>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSet>

#include "graphwin/Controls.h"
#include "graphwin/Language.h"
#include "runtime/RuntimeError.h"

QString spoken(QString text)
{
    text.replace(QStringLiteral("&&"), QStringLiteral("\x1f"));
    text.remove(QLatin1Char('&'));
    text.replace(QStringLiteral("\x1f"), QStringLiteral("&"));
    text = text.trimmed();
    while (text.endsWith(QLatin1Char('=')) || text.endsWith(QLatin1Char(':')))
        text.chop(1);
    return text.trimmed();
}

QLabel* labelFor(QWidget* control)
{
    QLabel* best = nullptr;
    int bestDistance = 1 << 30;
    const QRect r = control->geometry();
    for (QLabel* label : control->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        const QRect l = label->geometry();
        int distance = 1 << 30;
        if (l.right() <= r.left() + 2 && l.bottom() > r.top() && l.top() < r.bottom())
            distance = r.left() - l.right();
        else if (l.bottom() <= r.top() + 2 && l.right() > r.left() && l.left() < r.right())
            distance = 2 * (r.top() - l.bottom()) + 1;
        if (distance < bestDistance && !spoken(label->text()).isEmpty()) {
            bestDistance = distance;
            best = label;
        }
    }
    return bestDistance < 60 ? best : nullptr;
}

namespace {

QString kindOf(const QWidget* w)
{
    if (qobject_cast<const QRadioButton*>(w))
        return QStringLiteral("option");
    if (qobject_cast<const QCheckBox*>(w))
        return Plotto::tr("check box");
    if (qobject_cast<const QAbstractButton*>(w) || qobject_cast<const ClickLabel*>(w))
        return QStringLiteral("button");
    if (qobject_cast<const QLineEdit*>(w))
        return QStringLiteral("box");
    if (qobject_cast<const QScrollBar*>(w))
        return Plotto::tr("scroll bar");
    if (qobject_cast<const QTableWidget*>(w))
        return QStringLiteral("table");
    return QStringLiteral("control");
}

QString frameOf(const QWidget* w)
{
    const auto* frame = qobject_cast<const QGroupBox*>(w->parentWidget());
    return frame ? spoken(frame->title()) : QString();
}

// Within each group of controls that share a name, adds `qualifier` to the names where that makes
// all of the group's names differ.
template <class Qualifier>
void qualifyRepeats(const std::vector<QWidget*>& controls, Qualifier qualifier)
{
    std::map<QString, std::vector<QWidget*>> byName;
    for (QWidget* w : controls)
        if (!w->accessibleName().isEmpty())  // a label read as its text
            byName[w->accessibleName()].push_back(w);
    for (auto& [name, group] : byName) {
        if (group.size() < 2)
            continue;
        QStringList names;
        for (std::size_t i = 0; i < group.size(); ++i) {
            const QString extra = qualifier(group[i], i);
            names << (extra.isEmpty() ? name : name + QStringLiteral(", ") + extra);
        }
        if (QSet<QString>(names.begin(), names.end()).size() != names.size())
            continue;
        for (std::size_t i = 0; i < group.size(); ++i)
            group[i]->setAccessibleName(names[static_cast<int>(i)]);
    }
}

// A label that answers the mouse, as a button. A stepper label's value is its box's text and it
// can be raised and lowered by the assistive tool's actions.
class LabelButton : public QAccessibleWidget {
public:
    explicit LabelButton(ClickLabel* label) : QAccessibleWidget(label, QAccessible::Button) { }

    QString text(QAccessible::Text t) const override
    {
        const ClickLabel* l = label();
        if (t == QAccessible::Value && l->steps)
            return l->steps->text();
        if (t == QAccessible::Description && l->steps)
            return Plotto::tr("%1 is %2. Press to raise by one; the decrease action lowers by one.")
                .arg(spoken(l->text()), l->steps->text());
        if (t == QAccessible::Name && l->accessibleName().isEmpty())
            return l->text();
        return QAccessibleWidget::text(t);
    }
    QStringList actionNames() const override
    {
        QStringList names{pressAction()};
        if (label()->MouseDown)
            names << increaseAction() << decreaseAction();
        return names;
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction() || name == increaseAction())
            label()->activate(LeftButton);
        else if (name == decreaseAction())
            label()->activate(RightButton);
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        if (name == pressAction() || name == increaseAction())
            return {Plotto::tr("Space")};
        if (name == decreaseAction())
            return {Plotto::tr("Minus")};
        return {};
    }

private:
    ClickLabel* label() const { return static_cast<ClickLabel*>(widget()); }
};

// A scroll bar whose value is said as what it means.
class MeaningfulScrollBar : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit MeaningfulScrollBar(ScrollBar* bar) : QAccessibleWidget(bar, QAccessible::ScrollBar) { }

    void* interface_cast(QAccessible::InterfaceType t) override
    {
        if (t == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(t);
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value)
            return meaning();
        return QAccessibleWidget::text(t);
    }
    QVariant currentValue() const override { return bar()->value(); }
    void setCurrentValue(const QVariant& value) override { bar()->setValue(value.toInt()); }
    QVariant maximumValue() const override { return bar()->maximum(); }
    QVariant minimumValue() const override { return bar()->minimum(); }
    QVariant minimumStepSize() const override { return bar()->singleStep(); }

private:
    ScrollBar* bar() const { return static_cast<ScrollBar*>(widget()); }
    // What the position means, else the position itself.
    QString meaning() const { return bar()->meaning().value_or(QString::number(bar()->value())); }
};

QAccessibleInterface* plottoAccessible(const QString& className, QObject* object)
{
    if (className == QLatin1String("ClickLabel")) {
        auto* label = static_cast<ClickLabel*>(object);
        if (label->interactive())
            return new LabelButton(label);
    } else if (className == QLatin1String("ScrollBar")) {
        return new MeaningfulScrollBar(static_cast<ScrollBar*>(object));
    }
    return nullptr;
}

}  // namespace

void makeNamesUnique(const std::vector<QWidget*>& controls)
{
    qualifyRepeats(controls, [](QWidget* w, std::size_t) { return frameOf(w); });
    qualifyRepeats(controls, [](QWidget* w, std::size_t) { return kindOf(w); });
    qualifyRepeats(controls, [](QWidget*, std::size_t i) { return i == 0 ? QString() : QString::number(i + 1); });
}

QString colourName(int number)
{
    // The colour a curve is drawn in, as the description of the graph says it ("..., in blue").
    static const char* const names[16] = {
        QT_TRANSLATE_NOOP("Plotto", "black"),        QT_TRANSLATE_NOOP("Plotto", "blue"),
        QT_TRANSLATE_NOOP("Plotto", "green"),        QT_TRANSLATE_NOOP("Plotto", "cyan"),
        QT_TRANSLATE_NOOP("Plotto", "red"),          QT_TRANSLATE_NOOP("Plotto", "magenta"),
        QT_TRANSLATE_NOOP("Plotto", "yellow"),       QT_TRANSLATE_NOOP("Plotto", "white"),
        QT_TRANSLATE_NOOP("Plotto", "grey"),         QT_TRANSLATE_NOOP("Plotto", "light blue"),
        QT_TRANSLATE_NOOP("Plotto", "light green"),  QT_TRANSLATE_NOOP("Plotto", "light cyan"),
        QT_TRANSLATE_NOOP("Plotto", "light red"),    QT_TRANSLATE_NOOP("Plotto", "light magenta"),
        QT_TRANSLATE_NOOP("Plotto", "light yellow"), QT_TRANSLATE_NOOP("Plotto", "bright white")};
    return number >= 0 && number < 16 ? Plotto::tr(names[number]) : QString();
}

void installAccessibleInterfaces()
{
    static bool installed = false;
    if (!installed) {
        QAccessible::installFactory(plottoAccessible);
        installed = true;
    }
}

void copyToClipboard(const QImage& image, const QString& text)
{
    auto* data = new QMimeData;
    data->setImageData(image);
    data->setText(text);
    QApplication::clipboard()->setMimeData(data);
}

void copyToClipboard(const QString& text) { QApplication::clipboard()->setText(text); }
