// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/Dialogs.h"
#include "graphwin/FormStyle.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QWidget>

#include "graphwin/Language.h"
#include "graphwin/TwipArea.h"

namespace {

DialogScript* activeScript = nullptr;
RuntimeErrorHold* activeHold = nullptr;
std::function<void(int)> endHandler;

QWidget* dialogParent()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

}  // namespace

void setDialogScript(DialogScript* script) { activeScript = script; }

void MsgBox(const QString& prompt, const QString& title)
{
    if (activeScript) {
        activeScript->shown.emplace_back(title, prompt);
        return;
    }
    QMessageBox box(QMessageBox::NoIcon, title, prompt, QMessageBox::Ok, dialogParent());
    box.setFont(FormStyle::zoomed(QApplication::font(), box.parentWidget()));
    box.exec();
}

bool YesNoBox(const QString& prompt, const QString& title)
{
    if (activeScript)
        return scriptedAnswer(title, prompt) == QLatin1String("yes");
    QMessageBox box(QMessageBox::Question, title, prompt, QMessageBox::Yes | QMessageBox::No, dialogParent());
    box.setDefaultButton(QMessageBox::No);
    box.setFont(FormStyle::zoomed(QApplication::font(), box.parentWidget()));
    return box.exec() == QMessageBox::Yes;
}

DialogScript* dialogScript() { return activeScript; }

QString scriptedAnswer(const QString& title, const QString& prompt)
{
    activeScript->shown.emplace_back(title, prompt);
    if (activeScript->answers.empty())
        return QString();
    QString answer = activeScript->answers.front();
    activeScript->answers.pop_front();
    return answer;
}

QString FileBox(bool saving, const QString& title, const QString& directory)
{
    return FileBox(saving, title, directory, Plotto::tr("Plotto lessons (*.plotto);;All files (*)"),
                   QStringLiteral("plotto"));
}

QString FileBox(bool saving, const QString& title, const QString& directory, const QString& filter,
                const QString& extension)
{
    if (activeScript)
        return scriptedAnswer(title, QStringLiteral("file"));
    QString path = saving ? QFileDialog::getSaveFileName(dialogParent(), title, directory, filter)
                          : QFileDialog::getOpenFileName(dialogParent(), title, directory, filter);
    if (saving && !path.isEmpty() && !extension.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += QLatin1Char('.') + extension;
    return path;
}

QString InputBox(const QString& prompt, const QString& title, const QString& defaultText, double xTwips, double yTwips)
{
    if (activeScript)
        return scriptedAnswer(title, prompt);
    QInputDialog dialog(dialogParent());
    dialog.setFont(FormStyle::zoomed(QApplication::font(), dialog.parentWidget()));
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(defaultText);
    // The position is measured from the window's top-left corner, at the window's zoom, so that the
    // box opens over its window wherever the window is.
    if (xTwips >= 0 && yTwips >= 0) {
        QWidget* window = dialog.parentWidget() ? dialog.parentWidget()->window() : nullptr;
        const double perPixel = window ? twipsPerPixel(window->findChild<TwipArea*>()) : 15.0;
        const QPoint origin = window ? window->frameGeometry().topLeft() : QPoint();
        dialog.move(origin + QPoint(static_cast<int>(xTwips / perPixel), static_cast<int>(yTwips / perPixel)));
    }
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.textValue();
}

RuntimeErrorHold::RuntimeErrorHold() : outer_(std::exchange(activeHold, this)) { }

RuntimeErrorHold::~RuntimeErrorHold() { activeHold = outer_; }

void RuntimeErrorHold::hold(int number)
{
    if (first_ == 0)
        first_ = number;
}

void reportRuntimeError(const rt::RuntimeError& error)
{
    if (activeHold) {
        activeHold->hold(error.number());
        return;
    }
    const QString text =
        QStringLiteral("Run-time error '%1':\n\n%2").arg(error.number()).arg(QString::fromUtf8(error.what()));
    if (activeScript) {
        activeScript->shown.emplace_back(QStringLiteral("Plotto"), text);
        activeScript->errors.push_back(error.number());
        return;
    }
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Plotto"), text, QMessageBox::Ok, dialogParent());
    box.exec();
    endProgram(1);
}

void reportRuntimeErrorFrom(const QObject* source, const rt::RuntimeError& error)
{
    if (activeHold) {
        activeHold->hold(error.number());
        return;
    }
    const QObject* o = source;
    while (o && !o->isWidgetType())
        o = o->parent();  // a menu entry belongs to its menu, which belongs to its window
    const QWidget* window = o ? static_cast<const QWidget*>(o)->window() : nullptr;
    if (!window || !window->property(kErrorsInWords).toBool()) {
        reportRuntimeError(error);
        return;
    }
    MsgBox(Plotto::tr("That could not be done: %1 (error %2). Nothing else is affected; change what was typed "
                      "and try again.")
               .arg(QString::fromUtf8(error.what()))
               .arg(error.number()),
           window->windowTitle());
}

void endProgram(int exitCode)
{
    if (endHandler) {
        endHandler(exitCode);
        return;
    }
    QApplication::closeAllWindows();
    QCoreApplication::exit(exitCode);  // leaves every nested event loop as well as the main one
}

void setProgramEndHandler(std::function<void(int)> handler) { endHandler = std::move(handler); }

namespace {
int nextHookId = 1;
std::vector<std::pair<int, std::function<void()>>>& actionHooks()
{
    static std::vector<std::pair<int, std::function<void()>>> hooks;
    return hooks;
}
}  // namespace

int addActionEndedHook(std::function<void()> hook)
{
    actionHooks().emplace_back(nextHookId, std::move(hook));
    return nextHookId++;
}

void removeActionEndedHook(int id)
{
    auto& hooks = actionHooks();
    std::erase_if(hooks, [id](const auto& entry) { return entry.first == id; });
}

detail::ActionScope::ActionScope() = default;

detail::ActionScope::~ActionScope()
{
    // Every action's end counts, not only the outermost one's: a screen opened modally from a
    // launcher click runs all its own actions inside that click. A hook's own work is no action.
    static bool running = false;
    if (running)
        return;
    struct Running {
        Running() { running = true; }
        ~Running() { running = false; }
    } mark;
    const auto hooks = actionHooks();  // a hook may add or remove hooks: run over a copy
    for (const auto& [id, hook] : hooks)
        hook();
}
