// SPDX-License-Identifier: GPL-3.0-or-later
// The screen as a screen reader and a copy meet it: the description of the picture and its results,
// refreshed after every action, and Ctrl+C. Names and Tab order are in Keyboard.cpp.
#include <vector>

#include <QApplication>

#include "funclib/FuncGlobals.h"
#include "graphwin/Access.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"

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
    // What the walk along a curve said last comes first, as the point a student is at.
    if (const QString said = announcement(); !said.isEmpty())
        lines << said;
    lines << Plotto::tr("Window: x from %1 to %2, y from %3 to %4.")
                 .arg(txtXmin->text(), txtXmax->text(), txtYmin->text(), txtYmax->text());
    if (drawnAfterClear_ == surface->clears() && !drawn_.isEmpty()) {
        for (const QString& what : drawn_)
            lines << Plotto::tr("Drawn: %1.").arg(what);
        if (drawnBeyond_ > 0)
            lines << Plotto::tr("And %1 more drawings.").arg(drawnBeyond_);
    }
    describeResults(lines);
    return lines.join(QLatin1Char('\n'));
}

void GraphScreen::describeResults(QStringList&) const { }

QStringList GraphScreen::results() const
{
    QStringList lines;
    describeResults(lines);
    return lines;
}

QString GraphScreen::describeFamily() const
{
    using namespace FuncGlobals;
    QString text = typed_ ? Plotto::tr("the typed function y = %1").arg(QString::fromStdString(typed_->f->text()))
                   : FunctionId >= 1 && FunctionId <= ExplicitFamilyCount
                       ? QString::fromStdString(FuncCaption[FunctionId])
                       : Plotto::tr("y = 0 (no function chosen)");
    const TextBox* boxes[6] = {txtA, txtB, txtC, txtD, txtE, txtF};
    QStringList values;
    for (int i = 0; i < config_.coefficientCount; ++i)
        if (boxes[i])
            values
                << QStringLiteral("%1 = %2").arg(QChar::fromLatin1(static_cast<char>('A' + i))).arg(boxes[i]->text());
    //: a function and its coefficients' values ("y = A*x^2 with A = 1, B = 0")
    return Plotto::tr("%1 with %2").arg(text, values.join(QStringLiteral(", ")));
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
    copyToClipboard(surface->picture(QRectF(L, config_.frameTop, GraphWindow::Frame,
                                            GraphWindow::Frame + (GraphWindow::Top - config_.frameTop))),
                    describe());
}
