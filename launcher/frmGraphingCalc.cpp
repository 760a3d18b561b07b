// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcher/frmGraphingCalc.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "graphwin/FormArea.h"
#include "graphwin/FormStyle.h"

#include "graphwin/Controls.h"
#include "graphwin/Dialogs.h"
#include "graphwin/Language.h"
#include "screens/frmClasses.h"
#include "screens/frmRiemann.h"

frmGraphingCalc::frmGraphingCalc()
{
    setWindowTitle(Plotto::tr("Plotto!   Calculus Calculator"));
    setFont(QFont(QStringLiteral("Times New Roman"), 11));

    auto* layout = new QVBoxLayout(this);
    menuBar = new QMenuBar(this);
    layout->setMenuBar(menuBar);

    const FileMenu file = addFileMenu(
        menuBar, Plotto::tr("&Quit"), [this] { mnuAbout_Click(); }, [this] { mnuExit_Click(); });
    mnuFile = file.menu;
    mnuAbout = file.about;
    Sep1 = file.separator;
    mnuExit = file.exit;

    selections_ = menuBar->addMenu(Plotto::tr("&Selections"));
    mnuSelect = selections_->menuAction();
    // The screens added to the seed's eight, each an entry here and not a button.
    more_ = menuBar->addMenu(Plotto::tr("More &Demonstrations"));
    mnuMore = more_->menuAction();

    auto* heading = new QLabel(Plotto::tr("Choose a demonstration"), this);
    heading->setAlignment(Qt::AlignCenter);
    layout->addWidget(heading);

    grid_ = new QGridLayout;
    screens_.resize(screens::all().size());
    layout->addLayout(grid_);
    // One button and one Selections entry per screen of the registry; the seed's names for them follow.
    for (const screens::Entry& entry : screens::all())
        addScreen(entry);
    const std::tuple<const char*, QPushButton**, QAction**> named[] = {{"sums", &cmdSums, &mnuRiemann},
                                                                       {"grapher", &cmdFuncClasses, &mnuGrapher},
                                                                       {"animation", &cmdAnimate, &mnuAnimate},
                                                                       {"slope-field", &cmdSlopeField, &mnuSlopeField},
                                                                       {"newton", &cmdNewton, &mnuNewton},
                                                                       {"tangent", &cmdTangent, &mnuTangent},
                                                                       {"mvt", &cmdMVT, &mnuMVT},
                                                                       {"parametric", &cmdParam, &mnuParam}};
    for (const auto& [key, button, action] : named) {
        const auto at = static_cast<std::size_t>(screens::find(QString::fromLatin1(key)) - screens::all().data());
        *button = buttons_[at];
        *action = entries_[at];
    }
    cmdExit = makeButton(this, Plotto::tr("&Quit"), [this] { cmdExit_Click(); });
    layout->addWidget(cmdExit, 0, Qt::AlignHCenter);

    // Enter presses the focused button, as Space does (outside a dialog a button answers only Space
    // unless it is an auto-default button).
    for (QPushButton* b : findChildren<QPushButton*>()) {
        b->setMinimumSize(240, 40);
        b->setAutoDefault(true);
    }
    // Focus is marked from the start, not only after the first Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
    // Tab follows the buttons in teaching order, Quit last.
    QWidget* previous = nullptr;
    for (int i = 0; i < grid_->count(); ++i) {
        QWidget* b = grid_->itemAt(i)->widget();
        if (previous)
            QWidget::setTabOrder(previous, b);
        previous = b;
    }
    if (previous)
        QWidget::setTabOrder(previous, cmdExit);
    // The window opens at its natural size and can be resized, maximized or shown full screen (F11):
    // its text and buttons then grow with it by one factor.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    normalSize_ = sizeHint();
    resize(normalSize_);
    setMinimumSize(1, 1);
    addFullScreenKey(this);
    installFormStyle();
    buildLessonMenu();
    buildLanguageMenu();
}

void frmGraphingCalc::buildLanguageMenu()
{
    QMenu* tools = menuBar->addMenu(Plotto::tr("&Tools"));
    mnuTools = tools->menuAction();
    QMenu* language = tools->addMenu(Plotto::tr("&Language"));
    mnuLanguage = language->menuAction();
    auto* group = new QActionGroup(language);
    const auto& all = i18n::languages();
    QString taken;
    for (int i = 0; i < static_cast<int>(all.size()); ++i) {
        // Each language's name in itself, with the first letter of its name that no entry above took as
        // its Alt letter (English E, Español s, ...).
        QString name = QString::fromUtf8(all[i].name);
        for (qsizetype k = 0; k < name.size(); ++k)
            if (name.at(k).isLetter() && !taken.contains(name.at(k).toLower())) {
                taken += name.at(k).toLower();
                name.insert(k, QLatin1Char('&'));
                break;
            }
        QAction* entry = language->addAction(name);
        entry->setObjectName(QStringLiteral("mnuLanguage_") + QString::fromLatin1(all[i].code));
        entry->setCheckable(true);
        entry->setChecked(i18n::current() == QLatin1String(all[i].code));
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, i] { guarded([&] { mnuLanguage_Click(i); }); });
        mnuLanguages.push_back(entry);
    }
}

void frmGraphingCalc::mnuLanguage_Click(int Index)
{
    const QString code = QString::fromLatin1(i18n::languages().at(static_cast<std::size_t>(Index)).code);
    if (code == i18n::current())
        return;
    i18n::remember(code);
    i18n::install(code);
    MsgBox(Plotto::tr("The screens you open from now on speak this language; the launcher does from the next "
                      "start of Plotto."),
           Plotto::tr("Language"));
}

void frmGraphingCalc::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const double zoom = std::clamp(std::min(static_cast<double>(width()) / normalSize_.width(),
                                            static_cast<double>(height()) / normalSize_.height()),
                                   0.25, 4.0);
    QFont f = font();
    f.setPointSizeF(11 * zoom);
    setFont(f);
    FormStyle::setWindowZoom(this, zoom);
    for (QMenu* menu : findChildren<QMenu*>())  // popups do not take the window's font by themselves
        menu->setFont(f);
    for (QPushButton* b : findChildren<QPushButton*>())
        b->setMinimumSize(static_cast<int>(240 * zoom), static_cast<int>(40 * zoom));
}

frmGraphingCalc::~frmGraphingCalc()
{
    GraphScreen::setLessonCommands({});  // the screens' lesson commands end with the launcher
}

void frmGraphingCalc::addScreen(const screens::Entry& entry)
{
    auto open = [this, &entry] { openScreen(entry); };
    if (entry.kind == screens::Entry::Kind::Addition) {
        QAction* action = more_->addAction(Plotto::tr(entry.entry));
        onTriggered(action, open);
        buttons_.push_back(nullptr);
        entries_.push_back(action);
        return;
    }
    QPushButton* b = makeButton(this, Plotto::tr(entry.button), open);
    // Keep the buttons in teaching order, two to a row, whichever screens exist.
    b->setProperty("place", entry.place);
    QList<QPushButton*> buttons;
    for (int i = 0; i < grid_->count(); ++i)
        buttons.append(static_cast<QPushButton*>(grid_->itemAt(i)->widget()));
    buttons.append(b);
    std::stable_sort(buttons.begin(), buttons.end(), [](QPushButton* x, QPushButton* y) {
        return x->property("place").toInt() < y->property("place").toInt();
    });
    for (QPushButton* existing : buttons)
        grid_->removeWidget(existing);
    for (int i = 0; i < buttons.size(); ++i)
        grid_->addWidget(buttons[i], i / 2, i % 2);
    QAction* action = selections_->addAction(Plotto::tr(entry.entry));
    onTriggered(action, open);
    buttons_.push_back(b);
    entries_.push_back(action);
}

GraphScreen& frmGraphingCalc::screen(const screens::Entry& entry)
{
    auto& slot = screens_[static_cast<std::size_t>(&entry - screens::all().data())];
    if (!slot)
        slot = entry.make();
    return *slot;
}

GraphScreen& frmGraphingCalc::screen(const char* key) { return screen(*screens::find(QString::fromLatin1(key))); }

void frmGraphingCalc::showScreen(GraphScreen& first)
{
    // A lesson moves from one screen to another by closing the one shown: the next is then shown here.
    for (GraphScreen* next = &first; next;) {
        GraphScreen& screen = *next;
        pending_ = nullptr;
        if (pendingStep_ >= 0) {  // a lesson's step: the screen activated and the step applied, or refused
            step_ = std::exchange(pendingStep_, -1);
            GraphScreen::refreshLessonPlaces();
            applyStep(screen);
        } else {
            screen.activate();
        }
        shown_ = &screen;
        screen.exec();
        shown_ = nullptr;
        next = pending_;
    }
}

void frmGraphingCalc::cmdFuncClasses_Click() { showScreen(screen("grapher")); }
void frmGraphingCalc::cmdSums_Click() { showScreen(screen("sums")); }
void frmGraphingCalc::mnuGrapher_Click() { cmdFuncClasses_Click(); }
void frmGraphingCalc::mnuRiemann_Click() { cmdSums_Click(); }
void frmGraphingCalc::cmdAnimate_Click() { showScreen(screen("animation")); }
void frmGraphingCalc::mnuAnimate_Click() { cmdAnimate_Click(); }
void frmGraphingCalc::cmdParam_Click() { showScreen(screen("parametric")); }
void frmGraphingCalc::mnuParam_Click() { cmdParam_Click(); }
void frmGraphingCalc::cmdSlopeField_Click() { showScreen(screen("slope-field")); }
void frmGraphingCalc::mnuSlopeField_Click() { cmdSlopeField_Click(); }
void frmGraphingCalc::cmdNewton_Click() { showScreen(screen("newton")); }
void frmGraphingCalc::mnuNewton_Click() { cmdNewton_Click(); }
void frmGraphingCalc::cmdTangent_Click() { showScreen(screen("tangent")); }
void frmGraphingCalc::mnuTangent_Click() { cmdTangent_Click(); }
void frmGraphingCalc::cmdMVT_Click() { showScreen(screen("mvt")); }
void frmGraphingCalc::mnuMVT_Click() { cmdMVT_Click(); }

void frmGraphingCalc::cmdExit_Click() { mnuExit_Click(); }
void frmGraphingCalc::mnuExit_Click() { endProgram(0); }

void frmGraphingCalc::mnuAbout_Click()
{
    MsgBox(Plotto::tr("This program was made to graphically illustrate a few Calculus concepts.  They are shown on "
                      "the buttons and the pull down menu.  The 'About' menu option for each screen will explain "
                      "the use of that screen."),
           Plotto::tr("Calculus Demonstrations"));
    MsgBox(Plotto::tr("This program is free.  Give it to your Calculus students or whoever could benefit from its "
                      "use.  Send your questions and suggestions to the Plotto issue tracker."),
           Plotto::tr("Distribute Freely"));
    MsgBox(Plotto::tr("Read the ABOUTs on each screen.  There are handy things to know about clicking labels on the "
                      "screens....."),
           Plotto::tr("More ABOUTs"));
}
