// SPDX-License-Identifier: GPL-3.0-or-later
// A screen's typed function: its entry (Tools, Type a Function), the typed functions of the session
// offered again in the Tools menu, the checks that say in words where a typed function or its slope
// is undefined, and the function state a lesson keeps and gives back (a family or a typed text).
#include <cmath>

#include <QAction>
#include <QJsonValue>
#include <QLabel>
#include <QMenu>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"

std::vector<GraphScreen::FunctionPart> GraphScreen::functionParts()
{
    if (!config_.functionMenu)
        return {};
    return {{"family", "typed", FuncGlobals::ExplicitFamilyCount, {"x"}, shownFamily_, [this](int family) {
                 mnuFunc_Click(family);
             }}};
}

QStringList GraphScreen::typedTexts() const
{
    return typed_ ? QStringList{QString::fromStdString(typed_->f->text())} : QStringList{};
}

QString GraphScreen::setTypedTexts(const QStringList& texts) { return setTypedFunction(texts.value(0)); }

QJsonObject GraphScreen::functionState() const
{
    const std::vector<FunctionPart> parts = const_cast<GraphScreen*>(this)->functionParts();
    const QStringList typed = typedTexts();
    QJsonObject state;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!typed.isEmpty())
            state.insert(QString::fromLatin1(parts[i].typed), typed.value(static_cast<qsizetype>(i)));
        else if (parts[i].shown >= 1)
            state.insert(QString::fromLatin1(parts[i].family), parts[i].shown);
    }
    return state;
}

QString GraphScreen::checkFunctionState(const QJsonObject& state) const
{
    const std::vector<FunctionPart> parts = const_cast<GraphScreen*>(this)->functionParts();
    QStringList known, typedKeys;
    int typedGiven = 0;
    for (const FunctionPart& part : parts) {
        known << QString::fromLatin1(part.family) << QString::fromLatin1(part.typed);
        typedKeys << QString::fromLatin1(part.typed);
        typedGiven += state.contains(QString::fromLatin1(part.typed));
    }
    for (auto it = state.begin(); it != state.end(); ++it)
        if (!known.contains(it.key()))
            return Plotto::tr("the screen has no function '%1'").arg(it.key());
    if (typedGiven != 0 && typedGiven != static_cast<int>(parts.size()))
        return Plotto::tr("a typed function names every part: %1").arg(typedKeys.join(QStringLiteral(" and ")));
    for (const FunctionPart& part : parts) {
        const QJsonValue family = state.value(QString::fromLatin1(part.family));
        const QJsonValue typed = state.value(QString::fromLatin1(part.typed));
        if (!family.isUndefined() && (!family.isDouble() || family.toDouble() != std::floor(family.toDouble()) ||
                                      family.toDouble() < 1 || family.toDouble() > part.count))
            return Plotto::tr("'%1' is a family number from 1 to %2")
                .arg(QString::fromLatin1(part.family))
                .arg(part.count);
        if (!typed.isUndefined()) {
            std::string error;
            if (!typed.isString() ||
                !FuncGlobals::TypedExpression::compile(typed.toString().toStdString(), part.variables, error))
                return Plotto::tr("the function '%1' cannot be taken: %2").arg(typed.toString(), i18n::words(error));
        }
    }
    return {};
}

void GraphScreen::setFunctionState(const QJsonObject& state)
{
    const std::vector<FunctionPart> parts = functionParts();
    if (!parts.empty() && state.contains(QString::fromLatin1(parts.front().typed))) {
        QStringList texts;
        for (const FunctionPart& part : parts)
            texts << state.value(QString::fromLatin1(part.typed)).toString();
        setTypedTexts(texts);
        return;
    }
    for (const FunctionPart& part : parts)
        if (state.contains(QString::fromLatin1(part.family)))
            part.choose(state.value(QString::fromLatin1(part.family)).toInt());
}

void GraphScreen::rememberTyped(const QString& caption, std::function<void()> apply)
{
    // An entry is known by the words it was made from (kept as its data), not by what its menu shows.
    for (QAction* old : history_)
        if (old->data().toString() == caption) {
            history_.removeOne(old);
            delete old;
            break;
        }
    if (!historySeparator_)
        historySeparator_ = toolsMenu_->insertSeparator(nullptr);
    QAction* before = history_.isEmpty() ? nullptr : history_.front();
    auto* action = new QAction(caption, toolsMenu_);
    action->setData(caption);
    connect(action, &QAction::triggered, this, [this, apply] {
        guarded([this, &apply] {
            apply();
            refreshDescription();
        });
    });
    toolsMenu_->insertAction(before, action);
    history_.prepend(action);
    constexpr int kRemembered = 8;
    while (history_.size() > kRemembered)
        delete history_.takeLast();
}

void GraphScreen::runTypedEntry(TypedEntryLayout entry, const std::function<QString(const QStringList&)>& take)
{
    const std::optional<QStringList> texts = openTypedEntry(this, entry);
    if (!texts)
        return;
    const QString refusal = take(*texts);
    if (!refusal.isEmpty())
        MsgBox(refusal, Plotto::tr("Typed function"));
    refreshDescription();
}

void GraphScreen::mnuTypeFunction_Click()
{
    if (!config_.functionMenu)
        return;
    TypedEntryLayout entry;
    entry.title = Plotto::tr("Type a function y = f(x)");
    entry.fields = {QStringLiteral("y =")};
    entry.initial = {typed_ ? QString::fromStdString(typed_->f->text()) : QString()};
    entry.examples = {{QStringLiteral("A*sin(B*x + C) + D*x + E")},
                      {QStringLiteral("x^3 - 2*x - 5")},
                      {QStringLiteral("exp(-x^2)")},
                      {QStringLiteral("sin(x)/x")},
                      {QStringLiteral("ln(x)")},
                      {QStringLiteral("sqrt(4 - x^2)")},
                      {QStringLiteral("abs(x)")},
                      {QStringLiteral("1/(1 + x^2)")}};
    entry.names = typedNamesHelp(QStringLiteral("x"), Plotto::tr("A to E"));
    entry.check = [](const QStringList& texts, QString& preview) {
        std::string error;
        const auto f = FuncGlobals::TypedFunction::make(texts.value(0).toStdString(), error);
        if (!f)
            return i18n::words(error);
        preview = Plotto::tr("Understood: y = %1\nDerivative: y' = %2")
                      .arg(QString::fromStdString(f->f->understood()), i18n::words(f->f->derivativeText()));
        return QString();
    };
    runTypedEntry(entry, [this](const QStringList& texts) { return setTypedFunction(texts.value(0)); });
}

QString GraphScreen::setTypedFunction(const QString& text)
{
    if (!config_.functionMenu)
        return Plotto::tr("This screen does not graph a function y = f(x).");
    std::string error;
    auto made = FuncGlobals::TypedFunction::make(text.toStdString(), error);
    if (!made)
        return i18n::words(error);
    typed_ = std::move(made);
    installTyped();
    lblFunc->setText(QStringLiteral("y = ") + text.trimmed());
    functionReplaced();
    rememberTyped(QStringLiteral("y = ") + text.trimmed(), [this, text] { setTypedFunction(text); });
    return QString();
}

bool GraphScreen::typedDefinedAt(std::initializer_list<double> xs, QLabel* label, const QString& before) const
{
    if (!typed_)
        return true;
    for (double x : xs)
        if (std::isnan(typed_->value(x))) {
            label->setText(before + Plotto::tr("undefined: no f(x) at x = %1").arg(shownTrimStr(x)));
            return false;
        }
    return true;
}

bool GraphScreen::typedSlopeAt(double slope, double x, QLabel* label) const
{
    if (!typed_ || !std::isnan(slope))
        return true;
    label->setText(Plotto::tr("no slope: f'(x) is undefined at x = %1").arg(shownTrimStr(x)));
    return false;
}

QString GraphScreen::typedTooLarge() { return Plotto::tr("cannot be computed: the numbers are too large"); }

void GraphScreen::installTyped()
{
    if (config_.functionMenu)
        FuncGlobals::TypedExplicit = typed_.get();
}
