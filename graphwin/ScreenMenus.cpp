// SPDX-License-Identifier: GPL-3.0-or-later
// A screen's menu bar: the File menu, the function menu's place, the Tools menu (typed functions,
// projector mode, hearing the curve, export and printing) with the lesson commands, which every screen shares, and the
// place of the lesson shown at the bar's right. (The View menu: ScreenView.cpp.)
#include <functional>
#include <vector>

#include <QAccessible>
#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/Language.h"

namespace {

// The lesson commands that the program's owner of the lesson set, for every screen.
GraphScreen::LessonCommands& lessonCommands()
{
    static GraphScreen::LessonCommands commands;
    return commands;
}

// Runs `place` whenever the menu bar it watches is shown, moved or resized.
class PlaceFollower : public QObject {
public:
    PlaceFollower(QWidget* bar, std::function<void()> place) : QObject(bar), place_(std::move(place)) { }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::Show)
            place_();
        return false;
    }

private:
    std::function<void()> place_;
};

// Every screen, each of whose menu bars shows where the lesson stands.
std::vector<GraphScreen*>& allScreens()
{
    static std::vector<GraphScreen*> screens;
    return screens;
}

}  // namespace

QMenu* GraphScreen::addMenu(const QString& caption)
{
    // The Tools menu stays last: a screen's own menus go before it.
    auto* menu = new QMenu(caption, menuBar);
    menuBar->insertMenu(mnuTools, menu);
    return menu;
}

void GraphScreen::buildMenus()
{
    const FileMenu file = addFileMenu(
        menuBar, Plotto::tr("E&xit"), [this] { mnuAbout_Click(); }, [this] { mnuExit_Click(); });
    mnuFile = file.menu;
    mnuAbout = file.about;
    sep1 = file.separator;
    mnuExit = file.exit;
    if (config_.functionMenu) {
        QMenu* select = addMenu(Plotto::tr(config_.functionMenuCaption.toUtf8().constData()));
        mnuSelect = select->menuAction();
        startMenuArray(select, mnuFunc);
    }
    buildToolsMenu();
}

QAction* GraphScreen::addToolsEntry(const QString& caption, QKeySequence key, std::function<void()> run)
{
    QAction* a = toolsMenu_->addAction(caption);
    a->setShortcut(key);
    a->setShortcutContext(Qt::WindowShortcut);
    connect(a, &QAction::triggered, this, [run = std::move(run)] { guarded(run); });
    return a;
}

void GraphScreen::buildToolsMenu()
{
    toolsMenu_ = menuBar->addMenu(Plotto::tr("&Tools"));
    mnuTools = toolsMenu_->menuAction();
    mnuTypeFunction = addToolsEntry(config_.functionMenu ? Plotto::tr("&Type a Function...") : Plotto::tr("&Type..."),
                                    QKeySequence(Qt::CTRL | Qt::Key_E), [this] { mnuTypeFunction_Click(); });
    mnuProjector = addToolsEntry(Plotto::tr("&Projector Mode"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
                                 [this] { mnuProjector_Click(); });
    mnuProjector->setCheckable(true);
    mnuHearCurve = addToolsEntry(Plotto::tr("&Hear the Curve"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H),
                                 [this] { mnuHearCurve_Click(); });
    surface->KeyDown = [this](int key, Qt::KeyboardModifiers modifiers) { return exploreKey(key, modifiers); };
    toolsMenu_->addSeparator();
    mnuExportGraph = addToolsEntry(Plotto::tr("&Export Graph..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
                                   [this] { mnuExportGraph_Click(); });
    mnuPrint = addToolsEntry(Plotto::tr("P&rint..."), QKeySequence(Qt::CTRL | Qt::Key_P), [this] { mnuPrint_Click(); });
    mnuPrintPreview = addToolsEntry(Plotto::tr("Pr&int Preview..."), {}, [this] { mnuPrintPreview_Click(); });
    NAME_AS_MEMBER(mnuExportGraph);
    NAME_AS_MEMBER(mnuPrint);
    NAME_AS_MEMBER(mnuPrintPreview);
    // The mode belongs to the run: each screen's entry shows it as it is when its menu opens.
    connect(toolsMenu_, &QMenu::aboutToShow, this,
            [this] { mnuProjector->setChecked(DrawingSurface::projectorMode()); });
    buildLessonCommands();
    buildViewMenu();
}

void GraphScreen::setLessonCommands(LessonCommands commands)
{
    lessonCommands() = std::move(commands);
    refreshLessonPlaces();
}

void GraphScreen::refreshLessonPlaces()
{
    for (GraphScreen* s : allScreens())
        s->refreshLessonPlace();
}

void GraphScreen::refreshLessonPlace()
{
    const QString place = lessonCommands().place ? lessonCommands().place() : QString();
    lblLessonPlace->setText(place);
    lblLessonPlace->setVisible(!place.isEmpty());
    lessonPlaceRoom_->setVisible(!place.isEmpty());
    placeLessonPlace();
    const bool open = !place.isEmpty();
    mnuNextStep->setEnabled(open);
    mnuPreviousStep->setEnabled(open);
    const bool owned = static_cast<bool>(lessonCommands().add);
    mnuAddStep->setEnabled(owned);
    mnuSaveLesson->setEnabled(owned);
    mnuExportWorksheet->setEnabled(owned);
    mnuOpenLesson->setEnabled(owned);
}

void GraphScreen::buildLessonCommands()
{
    toolsMenu_->addSeparator();
    mnuAddStep = addToolsEntry(Plotto::tr("&Add This Screen to the Lesson"),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A), [this] {
                                   if (lessonCommands().add)
                                       lessonCommands().add(*this);
                               });
    mnuOpenLesson = addToolsEntry(Plotto::tr("&Open Lesson..."), QKeySequence(Qt::CTRL | Qt::Key_O), [] {
        if (lessonCommands().open)
            lessonCommands().open();
    });
    mnuSaveLesson = addToolsEntry(Plotto::tr("&Save Lesson..."), QKeySequence(Qt::CTRL | Qt::Key_S), [] {
        if (lessonCommands().save)
            lessonCommands().save();
    });
    mnuExportWorksheet = addToolsEntry(Plotto::tr("Export Lesson as &Worksheet..."), {}, [] {
        if (lessonCommands().worksheet)
            lessonCommands().worksheet();
    });
    NAME_AS_MEMBER(mnuExportWorksheet);
    // Page Down and Page Up, which every presentation clicker sends; only while a lesson is open.
    mnuNextStep = addToolsEntry(Plotto::tr("&Next Step"), QKeySequence(Qt::Key_PageDown), [] {
        if (lessonCommands().next)
            lessonCommands().next();
    });
    mnuPreviousStep = addToolsEntry(Plotto::tr("Pre&vious Step"), QKeySequence(Qt::Key_PageUp), [] {
        if (lessonCommands().previous)
            lessonCommands().previous();
    });
    lessonPlaceRoom_ = new QWidget(menuBar);
    menuBar->setCornerWidget(lessonPlaceRoom_, Qt::TopRightCorner);
    lblLessonPlace = new QLabel(this);
    lblLessonPlace->setObjectName(QStringLiteral("lblLessonPlace"));
    lblLessonPlace->setContentsMargins(8, 0, 12, 0);
    lblLessonPlace->setAccessibleDescription(Plotto::tr("The step of the lesson shown"));
    menuBar->installEventFilter(new PlaceFollower(menuBar, [this] { placeLessonPlace(); }));
    allScreens().push_back(this);
    refreshLessonPlace();
}

void GraphScreen::placeLessonPlace()
{
    // The place is a label of the window itself, not of the bar: a menu bar shows a screen reader its
    // menus only, and the place must be found in the window's tree. It lies at the bar's right end,
    // over the bar's corner, which keeps the menus clear of it.
    lblLessonPlace->setFont(menuBar->font());
    const QSize size = lblLessonPlace->sizeHint();
    lessonPlaceRoom_->setFixedSize(size);
    lblLessonPlace->setGeometry(QRect(menuBar->mapTo(this, QPoint(menuBar->width() - size.width(), 0)),
                                      QSize(size.width(), menuBar->height())));
    lblLessonPlace->raise();
}

void GraphScreen::announceLessonPlace()
{
    if (lblLessonPlace->text().isEmpty())
        return;
    QAccessibleEvent named(lblLessonPlace, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&named);
    announce(lblLessonPlace->text() + QLatin1Char('.'));
}

void GraphScreen::leaveLessonPlaces() { std::erase(allScreens(), this); }

void GraphScreen::mnuProjector_Click()
{
    DrawingSurface::setProjectorMode(!DrawingSurface::projectorMode());
    mnuProjector->setChecked(DrawingSurface::projectorMode());
}
