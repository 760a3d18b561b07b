// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Lesson.h"

#include <algorithm>
#include <cmath>

#include <QAbstractButton>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenu>
#include <QMenuBar>
#include <QSaveFile>

#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormTable.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"
#include "screens/ScreenRegistry.h"

namespace lesson {

namespace {

// The controls a teacher sets, in the form's order: each has its object name (the member's name,
// "txtGuess"), which is its key in a lesson whatever its caption says.
std::vector<QWidget*> settable(GraphScreen& screen)
{
    if (screen.txtXmin->accessibleName().isEmpty())
        screen.arrangeForKeyboard();  // the spoken names, which messages and old lessons use
    std::vector<QWidget*> out;
    for (QWidget* w : screen.surface->findChildren<QWidget*>())
        if ((qobject_cast<TextBox*>(w) || qobject_cast<CheckBox*>(w) || qobject_cast<OptionButton*>(w) ||
             qobject_cast<ScrollBar*>(w)) &&
            !w->objectName().isEmpty())
            out.push_back(w);
    return out;
}

QWidget* named(GraphScreen& screen, const QString& key)
{
    for (QWidget* w : settable(screen))
        if (w->objectName() == key)
            return w;
    return nullptr;
}

QAbstractButton* button(GraphScreen& screen, const QString& key)
{
    return key.isEmpty() ? nullptr : screen.surface->findChild<QPushButton*>(key);
}

// A menu entry of the screen's own menus (not the lesson commands, which would move the lesson).
QAction* menuEntry(GraphScreen& screen, const QString& key)
{
    for (QAction* menu : screen.menuBar->actions())
        if (menu != screen.mnuTools && menu->menu())
            for (QAction* entry : menu->menu()->actions())
                if (!key.isEmpty() && entry->objectName() == key)
                    return entry;
    return nullptr;
}

// What a person sees of a control, for messages: its spoken name, or the key when it has none.
QString spokenName(QWidget* w) { return w->accessibleName().isEmpty() ? w->objectName() : w->accessibleName(); }

// What a box takes from a lesson: what a person could type into it, text of one line (at most 64
// characters) or a number. Its own handler then reads it as it reads a person's typing.
bool typable(const QJsonValue& value)
{
    if (value.isDouble())
        return std::isfinite(value.toDouble());
    if (!value.isString())
        return false;
    const QString text = value.toString();
    return text.size() <= 64 &&
           std::none_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

QString boxText(const QJsonValue& value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

}  // namespace

const std::vector<QString>& screenKeys()
{
    static const std::vector<QString> keys = [] {
        std::vector<QString> k;
        for (const screens::Entry* e : screens::inTeachingOrder())
            k.push_back(QString::fromLatin1(e->key));
        return k;
    }();
    return keys;
}

QString screenKey(const GraphScreen& screen)
{
    const screens::Entry* entry = screens::of(screen);
    return entry ? QString::fromLatin1(entry->key) : QString();
}

Step capture(GraphScreen& screen)
{
    Step step;
    step.screen = screenKey(screen);
    step.function = screen.functionState();
    for (QWidget* w : settable(screen)) {
        const QString name = w->objectName();
        if (auto* box = qobject_cast<TextBox*>(w))
            // A number typed with the language's decimal comma is kept with a point, so that the
            // lesson reads the same in every language.
            step.controls.insert(name, i18n::lessonNumber(box->text()));
        else if (auto* tick = qobject_cast<QAbstractButton*>(w))
            step.controls.insert(name, tick->isChecked());
        else if (auto* bar = qobject_cast<ScrollBar*>(w))
            step.controls.insert(name, bar->value());
    }
    return step;
}

QString check(const Step& step, GraphScreen& screen)
{
    if (const QString refusal = screen.checkFunctionState(step.function); !refusal.isEmpty())
        return refusal;
    for (auto it = step.controls.begin(); it != step.controls.end(); ++it) {
        QWidget* w = named(screen, it.key());
        if (!w)
            return Plotto::tr("the screen has no control named '%1'").arg(it.key());
        if (qobject_cast<TextBox*>(w)) {
            if (!typable(it.value()))
                return Plotto::tr("the box '%1' cannot take %2")
                    .arg(spokenName(w),
                         QString::fromUtf8(QJsonDocument(QJsonArray{it.value()}).toJson(QJsonDocument::Compact))
                             .mid(1)
                             .chopped(1));
        } else if (auto* bar = qobject_cast<ScrollBar*>(w)) {
            const double v = it.value().toDouble(std::nan(""));
            if (!it.value().isDouble() || v != std::floor(v) || v < std::min(bar->minimum(), bar->maximum()) ||
                v > std::max(bar->minimum(), bar->maximum()))
                return Plotto::tr("the scroll bar '%1' cannot take that position").arg(spokenName(w));
        } else if (!it.value().isBool()) {
            return Plotto::tr("'%1' is ticked or not: true or false").arg(spokenName(w));
        }
    }
    for (const Action& a : step.actions) {
        if (!a.menu.isEmpty() ? !menuEntry(screen, a.menu) : !button(screen, a.click))
            return !a.menu.isEmpty() ? Plotto::tr("the screen has no menu entry '%1'").arg(a.menu)
                                     : Plotto::tr("the screen has no button '%1'").arg(a.click);
        if (a.times < 1 || a.times > 100)
            return QStringLiteral("'%1' is pressed 1 to 100 times").arg(a.click);
    }
    return {};
}

namespace {

// Sets the step's function and controls, then presses its buttons, until a handler raises.
void setAndPress(const Step& step, GraphScreen& screen, const RuntimeErrorHold& hold)
{
    screen.setFunctionState(step.function);
    // Ticks and options first (an option's handler may write boxes, as choosing Euler's method sets
    // Delta x), then the boxes as they were saved, then the scroll bars.
    for (int pass = 0; pass < 3 && !hold.first(); ++pass)
        for (QWidget* w : settable(screen)) {
            const QJsonValue value = step.controls.value(w->objectName());
            if (value.isUndefined())
                continue;
            if (auto* tick = qobject_cast<QAbstractButton*>(w); tick && pass == 0) {
                // An option is chosen by choosing it; one the lesson leaves off is left to the one chosen.
                if (qobject_cast<OptionButton*>(w) && !value.toBool())
                    continue;
                tick->setChecked(value.toBool());
            } else if (auto* box = qobject_cast<TextBox*>(w); box && pass == 1) {
                box->setText(boxText(value));
            } else if (auto* bar = qobject_cast<ScrollBar*>(w); bar && pass == 2) {
                bar->setValue(value.toInt());
            }
            if (hold.first())
                return;
        }
    for (const Action& a : step.actions)
        for (int i = 0; i < a.times && !hold.first(); ++i) {
            if (QAction* entry = a.menu.isEmpty() ? nullptr : menuEntry(screen, a.menu))
                entry->trigger();
            else if (QAbstractButton* b = button(screen, a.click))
                b->click();
        }
}

// Runs `body` with every run-time error held: the first one's number, 0 for none.
template <class Body>
int held(Body&& body)
{
    RuntimeErrorHold hold;  // every handler reached reports here, not to the classic report
    try {
        body(hold);
    } catch (const rt::RuntimeError& error) {  // raised outside any handler's own guard
        hold.hold(error.number());
    }
    return hold.first();
}

}  // namespace

int apply(const Step& step, GraphScreen& screen)
{
    const Step before = capture(screen);
    const int error = held([&](const RuntimeErrorHold& hold) { setAndPress(step, screen, hold); });
    if (error)  // the controls as they were, so that nothing the step set is left to fail again
        (void)held([&](const RuntimeErrorHold& hold) { setAndPress(before, screen, hold); });
    return error;
}

int open(const Step& step, GraphScreen& screen)
{
    if (const int error = held([&](const RuntimeErrorHold&) { screen.activate(); }))
        return error;
    return apply(step, screen);
}

QString refusal(int number, int error)
{
    return Plotto::tr("Step %1 cannot be shown: its values %2 (run-time error %3).")
        .arg(number)
        .arg(Plotto::tr(rt::valuesInWords(error)))
        .arg(error);
}

void upgrade(Step& step, GraphScreen& screen)
{
    // Lessons of the first version named controls by what a screen reader says of them, and buttons
    // and menu entries by their captions; each becomes the key of the control it named. A name that
    // matches nothing is kept, and checking the step then refuses it in words.
    const std::vector<QWidget*> controls = settable(screen);
    QJsonObject keyed;
    for (auto it = step.controls.begin(); it != step.controls.end(); ++it) {
        const auto w =
            std::find_if(controls.begin(), controls.end(), [&](QWidget* c) { return c->accessibleName() == it.key(); });
        keyed.insert(w == controls.end() ? it.key() : (*w)->objectName(), it.value());
    }
    step.controls = keyed;
    const auto caption = [](const QString& text) { return QString(text).remove(QLatin1Char('&')); };
    for (Action& a : step.actions) {
        if (!a.menu.isEmpty()) {
            for (QAction* menu : screen.menuBar->actions())
                if (menu != screen.mnuTools && menu->menu())
                    for (QAction* entry : menu->menu()->actions())
                        if (caption(entry->text()) == a.menu && !entry->objectName().isEmpty())
                            a.menu = entry->objectName();
        } else {
            for (QPushButton* b : screen.surface->findChildren<QPushButton*>())
                if (caption(b->text()) == a.click && !b->objectName().isEmpty())
                    a.click = b->objectName();
        }
    }
}

QString buttonKey(GraphScreen& screen, const QString& caption)
{
    // The caption as shown (in the language in use) or as written in English (a lesson of a previous
    // release, or a teacher typing the English captions in another language).
    for (QPushButton* b : screen.surface->findChildren<QPushButton*>())
        if (QString(b->text()).remove(QLatin1Char('&')) == caption ||
            b->property(form::kSourceCaption).toString().remove(QLatin1Char('&')) == caption)
            return b->objectName();
    return {};
}

QByteArray toJson(const Lesson& lesson)
{
    QJsonArray steps;
    for (const Step& s : lesson.steps) {
        QJsonObject o{{QStringLiteral("screen"), s.screen}};
        if (!s.function.isEmpty())
            o.insert(QStringLiteral("function"), s.function);
        o.insert(QStringLiteral("controls"), s.controls);
        QJsonArray actions;
        for (const Action& a : s.actions) {
            QJsonObject action{a.menu.isEmpty() ? QJsonObject{{QStringLiteral("click"), a.click}}
                                                : QJsonObject{{QStringLiteral("menu"), a.menu}}};
            if (a.times != 1)
                action.insert(QStringLiteral("times"), a.times);
            actions.append(action);
        }
        if (!actions.isEmpty())
            o.insert(QStringLiteral("actions"), actions);
        if (!s.note.isEmpty())
            o.insert(QStringLiteral("note"), s.note);
        steps.append(o);
    }
    QJsonObject root{{QStringLiteral("format"), QString::fromLatin1(kFormat)},
                     {QStringLiteral("version"), kVersion},
                     {QStringLiteral("steps"), steps}};
    if (!lesson.title.isEmpty())
        root.insert(QStringLiteral("title"), lesson.title);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

Read fromJson(const QByteArray& text)
{
    QJsonParseError parse;
    const QJsonDocument doc = QJsonDocument::fromJson(text, &parse);
    if (parse.error != QJsonParseError::NoError)
        return {std::nullopt,
                Plotto::tr("This is not a lesson: %1 at character %2.").arg(parse.errorString()).arg(parse.offset)};
    const QJsonObject root = doc.object();
    if (!doc.isObject() || root.value(QStringLiteral("format")).toString() != QString::fromLatin1(kFormat))
        return {std::nullopt, QStringLiteral("This is not a Plotto lesson (it does not say \"format\": \"%1\").")
                                  .arg(QString::fromLatin1(kFormat))};
    const QJsonValue version = root.value(QStringLiteral("version"));
    if (!version.isDouble() || version.toDouble() < 1 || version.toDouble() != std::floor(version.toDouble()))
        return {std::nullopt, Plotto::tr("The lesson has no valid version number.")};
    if (version.toDouble() > kVersion)
        return {std::nullopt, QStringLiteral("The lesson was made by a newer Plotto (lesson version %1; this Plotto "
                                             "reads version %2 and older).")
                                  .arg(version.toInt())
                                  .arg(kVersion)};
    const QJsonValue steps = root.value(QStringLiteral("steps"));
    if (!steps.isArray() || steps.toArray().isEmpty())
        return {std::nullopt, Plotto::tr("The lesson has no steps.")};
    Lesson lesson;
    lesson.version = version.toInt();
    lesson.title = root.value(QStringLiteral("title")).toString();
    int number = 0;
    for (const QJsonValue& v : steps.toArray()) {
        ++number;

        const QJsonObject o = v.toObject();
        Step s;
        s.screen = o.value(QStringLiteral("screen")).toString();
        if (!v.isObject() || std::find(screenKeys().begin(), screenKeys().end(), s.screen) == screenKeys().end())
            return {std::nullopt,
                    Plotto::tr("Step %1: unknown screen '%2' (the screens are %3).")
                        .arg(QString::number(number), s.screen,
                             QStringList(screenKeys().begin(), screenKeys().end()).join(QStringLiteral(", ")))};
        s.function = o.value(QStringLiteral("function")).toObject();
        s.controls = o.value(QStringLiteral("controls")).toObject();
        s.note = o.value(QStringLiteral("note")).toString();
        for (const QJsonValue& a : o.value(QStringLiteral("actions")).toArray()) {
            const QJsonObject action = a.toObject();
            if (!action.value(QStringLiteral("click")).isString() && !action.value(QStringLiteral("menu")).isString())
                return {std::nullopt,
                        Plotto::tr("Step %1: an action names no button to click or menu entry to choose.").arg(number)};
            s.actions.push_back({action.value(QStringLiteral("click")).toString(),
                                 action.value(QStringLiteral("times")).toInt(1),
                                 action.value(QStringLiteral("menu")).toString()});
        }
        lesson.steps.push_back(std::move(s));
    }
    return {std::move(lesson), {}};
}

QString save(const Lesson& lesson, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Plotto::tr("The lesson cannot be written to %1: %2.").arg(path, file.errorString());
    file.write(toJson(lesson));
    if (!file.commit())
        return Plotto::tr("The lesson could not be saved to %1: %2. Nothing was changed there.")
            .arg(path, file.errorString());
    return {};
}

Read load(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, Plotto::tr("The lesson %1 cannot be read: %2.").arg(path, file.errorString())};
    constexpr qint64 kLargest = 4 << 20;  // a lesson of a hundred steps is a few tens of kilobytes
    if (file.size() > kLargest)
        return {std::nullopt, Plotto::tr("%1 is too large to be a lesson.").arg(path)};
    Read read = fromJson(file.readAll());
    if (!read.lesson)
        read.error = path + QStringLiteral(": ") + read.error;
    return read;
}

}  // namespace lesson
