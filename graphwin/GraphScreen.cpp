// SPDX-License-Identifier: GPL-3.0-or-later
// What every screen's form holds and does: its controls built (the square, the limit boxes with
// their arrow labels, the coefficient panel, the buttons), the graph cleared with its axes, the plot
// of the function in use, the limits' zoom and defaults, the coefficients copied into the module
// state, the function menu with its cycling label, and the window's opening size and zoom. (Menus:
// ScreenMenus.cpp; typed functions: ScreenTyped.cpp; the view: ScreenView.cpp; descriptions:
// ScreenAccess.cpp; the trace and the walk: ScreenTrace.cpp; keyboard order: Keyboard.cpp.)
#include "graphwin/GraphScreen.h"

#include <algorithm>
#include <cmath>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include "funclib/FuncGlobals.h"
#include "graphwin/Access.h"
#include "graphwin/Axes.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormArea.h"
#include "graphwin/FormStyle.h"
#include "graphwin/Language.h"
#include "runtime/CountedLoop.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"

namespace {

constexpr double kBoxWidth = 600, kBoxHeight = 300, kArrowWidth = 180;
// What a window manager typically adds around a window: borders and a title bar.
const QSize kWindowBorders(8, 40);
constexpr const char* kCoefficientNames = "ABCDEF";

}  // namespace

GraphScreen::GraphScreen(Config config) : config_(std::move(config))
{
    setWindowTitle(config_.caption);
    setFont(QFont(QStringLiteral("Times New Roman"), 10));
    setProperty(kErrorsInWords, config_.errorsInWords);

    // The window can be resized, maximized and shown full screen (F11); the form inside scales as a
    // whole with it.
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    setSizeGripEnabled(false);
    formArea_ = new FormArea(this);
    surface = new DrawingSurface(config_.surfaceWidth, config_.surfaceHeight, formArea_);
    scene_ = std::make_unique<GraphScene>(*surface);
    formArea_->setForm(surface);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    menuBar = new QMenuBar(this);
    layout->setMenuBar(menuBar);
    installFormStyle();
    menuFont_ = menuBar->font();
    connect(surface, &DrawingSurface::zoomChanged, this, [this](double zoom) { applyFormZoom(zoom); });
    layout->addWidget(formArea_);
    addFullScreenKey(this);

    form::buildForm(surface,
                    {{&shpSquare,
                      form::Kind::Outline,
                      "",
                      {double(config_.squareLeft), double(config_.frameTop), GraphWindow::Frame, GraphWindow::Frame}}});

    buildLimits();
    buildCoefficients();
    buildButtons();
    buildMenus();

    // Keyboard and assistive access: the graph square is a Tab stop, Ctrl+C copies the graph (or a
    // focused grid), and the description follows every action.
    installAccessibleInterfaces();
    graph.Left = config_.squareLeft;
    surface->setFocusArea(QRectF(graph.Left, GraphWindow::Top, GraphWindow::Side, GraphWindow::Side));
    auto* copy = new QShortcut(QKeySequence::Copy, this);
    connect(copy, &QShortcut::activated, this, [this] { guarded([this] { copyGraph(); }); });
    joinDescriptions();
}

GraphScreen::~GraphScreen()
{
    leaveView();
    leaveDescriptions();
    leaveLessonPlaces();
    if (typed_ && FuncGlobals::TypedExplicit == typed_.get())
        FuncGlobals::TypedExplicit = nullptr;
}

double GraphScreen::buttonColumn() const { return config_.squareLeft + GraphWindow::Side + 600; }

void GraphScreen::buildLimits()
{
    using form::Kind;
    const auto on = form::bind(this);
    const double L = config_.squareLeft, W = kBoxWidth, H = kBoxHeight, A = kArrowWidth;
    // Each limit box stands between the arrow that lowers it and the arrow that raises it.
    // clang-format off
    form::buildForm(surface, {
        // name       kind           caption  place                        handlers
        {FORM_NAME(txtXmin),  Kind::Box,     "-10",  {L - 240,        3240, W, H}, {.Change = on(&GraphScreen::txtXmin_Change)}},
        {FORM_NAME(lblXminL), Kind::Stepper, "<",    {L - 240 - A,    3240, A, H}, {.Click = on(&GraphScreen::lblXminL_Click), .DblClick = on(&GraphScreen::lblXminL_DblClick)}},
        {FORM_NAME(lblXminR), Kind::Stepper, ">",    {L - 240 + W,    3240, A, H}, {.Click = on(&GraphScreen::lblXminR_Click), .DblClick = on(&GraphScreen::lblXminR_DblClick)}},
        {FORM_NAME(txtXmax),  Kind::Box,     "10",   {L + 6240,       3240, W, H}, {.Change = on(&GraphScreen::txtXmax_Change)}},
        {FORM_NAME(lblXmaxL), Kind::Stepper, "<",    {L + 6240 - A,   3240, A, H}, {.Click = on(&GraphScreen::lblXmaxL_Click), .DblClick = on(&GraphScreen::lblXmaxL_DblClick)}},
        {FORM_NAME(lblXmaxR), Kind::Stepper, ">",    {L + 6240 + W,   3240, A, H}, {.Click = on(&GraphScreen::lblXmaxR_Click), .DblClick = on(&GraphScreen::lblXmaxR_DblClick)}},
        {FORM_NAME(txtYmin),  Kind::Box,     "-10",  {L + 2880,       6360, W, H}, {.Change = on(&GraphScreen::txtYmin_Change)}},
        {FORM_NAME(lblYminL), Kind::Stepper, "<",    {L + 2880 - A,   6360, A, H}, {.Click = on(&GraphScreen::lblYminL_Click), .DblClick = on(&GraphScreen::lblYminL_DblClick)}},
        {FORM_NAME(lblYminR), Kind::Stepper, ">",    {L + 2880 + W,   6360, A, H}, {.Click = on(&GraphScreen::lblYminR_Click), .DblClick = on(&GraphScreen::lblYminR_DblClick)}},
        {FORM_NAME(txtYmax),  Kind::Box,     "10",   {L + 3000,          0, W, H}, {.Change = on(&GraphScreen::txtYmax_Change)}},
        {FORM_NAME(lblYmaxL), Kind::Stepper, "<",    {L + 3000 - A,      0, A, H}, {.Click = on(&GraphScreen::lblYmaxL_Click), .DblClick = on(&GraphScreen::lblYmaxL_DblClick)}},
        {FORM_NAME(lblYmaxR), Kind::Stepper, ">",    {L + 3000 + W,      0, A, H}, {.Click = on(&GraphScreen::lblYmaxR_Click), .DblClick = on(&GraphScreen::lblYmaxR_DblClick)}},
    });
    // clang-format on
}

void GraphScreen::buildCoefficients()
{
    using form::Kind;
    // The panel has five or six rows, so its table is written row by row: the box, then the
    // stepper label on its left.
    // clang-format off
    std::vector<form::Control> table{
        {FORM_NAME(lblVariables), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Variables"), {120, 600, 1455, 300}, {}, {.align = Qt::AlignCenter}}};
    TextBox** boxes[6] = {&txtA, &txtB, &txtC, &txtD, &txtE, &txtF};
    ClickLabel** labels[6] = {&lblA, &lblB, &lblC, &lblD, &lblE, &lblF};
    for (int i = 0; i < config_.coefficientCount; ++i) {
        const double top = 960 + 360 * i;
        const QChar name = QChar::fromLatin1(kCoefficientNames[i]);
        table.push_back({form::Slot(boxes[i], QStringLiteral("txt") + name), Kind::Box,
                         QString::fromLatin1(config_.coefficientDefaults[i]),
                         {840, top, 1215, kBoxHeight}, {.Change = [this, i] { coefficientEdited(i); }}});
        table.push_back({form::Slot(labels[i], QStringLiteral("lbl") + name), Kind::Stepper, name + QLatin1Char('='),
                         {240, top, 495, kBoxHeight},
                         {.MouseDown = [this, i](int Button, int, double, double) { stepCoefficient(i, Button); }}});
    }
    if (config_.functionMenu)
        table.push_back({FORM_NAME(lblFunc), Kind::Label, config_.functionLabelCaption,
                         {120, 960 + 360.0 * config_.coefficientCount + 120, 1800, 660},
                         {.MouseDown = form::bind(this)(&GraphScreen::lblFunc_MouseDown)},
                         {.align = Qt::AlignCenter, .wrap = true, .boxed = true}});
    // clang-format on
    form::buildForm(surface, table);
}

void GraphScreen::buildButtons()
{
    using form::Kind;
    const auto on = form::bind(this);
    const double C = buttonColumn(), W = 1680, H = 420;
    // clang-format off
    form::buildForm(surface, {
        // name            kind          caption                   place           handlers
        {FORM_NAME(cmdPlotto),     Kind::Button, config_.plotCaption,      {C,  600, W, H}, {.Click = on(&GraphScreen::cmdPlotto_Click)}},
        {FORM_NAME(cmdClean),      Kind::Button, config_.cleanCaption,     {C, 1200, W, H}, {.Click = on(&GraphScreen::cmdClean_Click)}},
        {FORM_NAME(cmdZoomIn),     Kind::Button, config_.zoomCaption,      {C, 1800, W, H}, {.Click = on(&GraphScreen::cmdZoomIn_Click)}},
        {FORM_NAME(cmdSetDefault), Kind::Button, config_.defaultsCaption,  {C, 2400, W, H}, {.Click = on(&GraphScreen::cmdSetDefault_Click)}},
        {FORM_NAME(cmdExit),       Kind::Button, QT_TRANSLATE_NOOP("Plotto", "E&xit"),  {C, 6000, W, H}, {.Click = on(&GraphScreen::cmdExit_Click)}},
    });
    // clang-format on
}

void GraphScreen::applyFormZoom(double zoom)
{
    FormStyle::setWindowZoom(this, zoom);
    QFont font = menuFont_;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * zoom);
    else if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * zoom))));
    menuBar->setFont(font);
    for (QMenu* menu : menuBar->findChildren<QMenu*>())
        menu->setFont(font);
    for (QWidget* w : surface->findChildren<QWidget*>())
        if (qobject_cast<QAbstractButton*>(w) || qobject_cast<QScrollBar*>(w))
            w->update();  // indicators and scroll-bar parts are measured by the style at the zoom
}

void GraphScreen::loadFunctionMenu()
{
    using namespace FuncGlobals;
    FunctionId = 1;
    FunctionCount = ExplicitFamilyCount;
    for (int i = 1; i <= ExplicitFamilyCount; ++i)
        FuncCaption[i] = ExplicitCaption(i);
    fillMenuArray(
        mnuSelect->menu(), mnuFunc, ExplicitFamilyCount, [](int i) { return QString::fromStdString(FuncCaption[i]); },
        [this](int i) { mnuFunc_Click(i); });
}

void GraphScreen::Form_Load()
{
    if (config_.functionMenu)
        loadFunctionMenu();
}

void GraphScreen::Form_Activate()
{
    CleanGraph();
    copyCoefficients();
    installTyped();
}

void GraphScreen::copyCoefficients()
{
    for (int i = 0; i < config_.coefficientCount; ++i)
        copyCoefficient(i);
}

void GraphScreen::activate()
{
    try {
        Form_Activate();
    } catch (const rt::RuntimeError& error) {
        if (!config_.errorsInWords)
            throw;
        reportRuntimeErrorFrom(this, error);
    }
}

void GraphScreen::CleanGraph()
{
    surface->Cls();
    const double xmin = txtXmin->value(), xmax = txtXmax->value();
    const double ymin = txtYmin->value(), ymax = txtYmax->value();
    graph.set(xmin, xmax, ymin, ymax);

    drawAxes(*surface, graph, {txtXmin, txtXmax, txtYmin, txtYmax});
    scene_->restart();
}

void GraphScreen::plotFunction() { plotExplicit(FuncGlobals::ExplicitSnapshot::What::Value, describeFamily()); }

void GraphScreen::plotExplicit(FuncGlobals::ExplicitSnapshot::What what, const QString& name)
{
    //: a drawn curve and the colour it is drawn in: "y = x^2, in blue"
    noteDrawn(Plotto::tr("%1, in %2").arg(name, colourName(rt::Mod(FuncGlobals::FunctionId, 7))));
    const bool typed = typedInUse();
    keepDrawing(
        name,
        [this, what, name, typed, function = typed_] {
            noteTraced(explicitCurve(name, what, function));
            drawExplicit(what, typed);
        },
        typed_);
}

void GraphScreen::cmdPlotto_Click() { plotFunction(); }

void GraphScreen::cmdClean_Click() { CleanGraph(); }

void GraphScreen::limitChanged(TextBox* minBox, TextBox* maxBox)
{
    if (config_.validatingLimits && minBox->value() >= maxBox->value()) {
        MsgBox(Plotto::tr("You graphing window is compromised.  It will be reset to the defaults."),
               Plotto::tr("Error"));
        cmdSetDefault_Click();
        return;
    }
    CleanGraph();
}

void GraphScreen::txtXmin_Change() { limitChanged(txtXmin, txtXmax); }
void GraphScreen::txtXmax_Change() { limitChanged(txtXmin, txtXmax); }
void GraphScreen::txtYmin_Change() { limitChanged(txtYmin, txtYmax); }
void GraphScreen::txtYmax_Change() { limitChanged(txtYmin, txtYmax); }

void GraphScreen::stepLimit(TextBox* box, double delta, bool narrows, TextBox* minBox, TextBox* maxBox)
{
    if (narrows && config_.validatingLimits && !(minBox->value() + std::fabs(delta) < maxBox->value()))
        return;
    box->assign(rt::CStr(rt::Chk(box->value() + delta)));
}

void GraphScreen::lblXminL_Click() { stepLimit(txtXmin, -1, false, txtXmin, txtXmax); }
void GraphScreen::lblXminR_Click() { stepLimit(txtXmin, 1, true, txtXmin, txtXmax); }
void GraphScreen::lblXmaxL_Click() { stepLimit(txtXmax, -1, true, txtXmin, txtXmax); }
void GraphScreen::lblXmaxR_Click() { stepLimit(txtXmax, 1, false, txtXmin, txtXmax); }
void GraphScreen::lblYminL_Click() { stepLimit(txtYmin, -1, false, txtYmin, txtYmax); }
void GraphScreen::lblYminR_Click() { stepLimit(txtYmin, 1, true, txtYmin, txtYmax); }
void GraphScreen::lblYmaxL_Click() { stepLimit(txtYmax, -1, true, txtYmin, txtYmax); }
void GraphScreen::lblYmaxR_Click() { stepLimit(txtYmax, 1, false, txtYmin, txtYmax); }
void GraphScreen::lblXminL_DblClick() { stepLimit(txtXmin, -4, false, txtXmin, txtXmax); }
void GraphScreen::lblXminR_DblClick() { stepLimit(txtXmin, 4, true, txtXmin, txtXmax); }
void GraphScreen::lblXmaxL_DblClick() { stepLimit(txtXmax, -4, true, txtXmin, txtXmax); }
void GraphScreen::lblXmaxR_DblClick() { stepLimit(txtXmax, 4, false, txtXmin, txtXmax); }
void GraphScreen::lblYminL_DblClick() { stepLimit(txtYmin, -4, false, txtYmin, txtYmax); }
void GraphScreen::lblYminR_DblClick() { stepLimit(txtYmin, 4, true, txtYmin, txtYmax); }
void GraphScreen::lblYmaxL_DblClick() { stepLimit(txtYmax, -4, true, txtYmin, txtYmax); }
void GraphScreen::lblYmaxR_DblClick() { stepLimit(txtYmax, 4, false, txtYmin, txtYmax); }

void GraphScreen::zoomLimits()
{
    using rt::Chk;
    using rt::CStr;
    if (config_.zoom == Zoom::TowardsOrigin) {
        for (TextBox* box : {txtXmin, txtXmax, txtYmin, txtYmax})
            box->assign(CStr(box->value() / 2));
        return;
    }
    const double xrange = Chk(txtXmax->value() - txtXmin->value());
    txtXmin->assign(CStr(Chk(txtXmin->value() + xrange / 4)));
    txtXmax->assign(CStr(Chk(txtXmax->value() - xrange / 4)));
    const double yrange = Chk(txtYmax->value() - txtYmin->value());
    txtYmin->assign(CStr(Chk(txtYmin->value() + yrange / 4)));
    txtYmax->assign(CStr(Chk(txtYmax->value() - yrange / 4)));
}

void GraphScreen::cmdZoomIn_Click()
{
    zoomLimits();
    CleanGraph();
    cmdPlotto_Click();
}

void GraphScreen::writeDefaultLimits()
{
    txtXmin->assign(QStringLiteral("-10"));
    txtXmax->assign(QStringLiteral("10"));
    txtYmin->assign(QStringLiteral("-10"));
    txtYmax->assign(QStringLiteral("10"));
}

void GraphScreen::cmdSetDefault_Click()
{
    writeDefaultLimits();
    CleanGraph();
    cmdPlotto_Click();
}

TextBox* GraphScreen::coefficientBox(int index) const
{
    TextBox* const boxes[6] = {txtA, txtB, txtC, txtD, txtE, txtF};
    return index >= 0 && index < 6 ? boxes[index] : nullptr;
}

void GraphScreen::copyCoefficient(int index)
{
    TextBox* box = coefficientBox(index);
    if (!box)
        return;
    double* const targets[6] = {&FuncGlobals::Coefficients.A, &FuncGlobals::Coefficients.B,
                                &FuncGlobals::Coefficients.C, &FuncGlobals::Coefficients.D,
                                &FuncGlobals::Coefficients.E, &FuncGlobals::Coefficients.F};
    *targets[index] = box->value();
}

void GraphScreen::coefficientEdited(int index)
{
    if (!coefficientBox(index))
        return;
    copyCoefficient(index);
    coefficientChanged(index);
}

void GraphScreen::coefficientChanged(int) { }

void GraphScreen::stepCoefficient(int index, int Button)
{
    if (TextBox* box = coefficientBox(index))
        stepBox(box, Button);
}

void GraphScreen::txtA_Change() { coefficientEdited(0); }
void GraphScreen::txtB_Change() { coefficientEdited(1); }
void GraphScreen::txtC_Change() { coefficientEdited(2); }
void GraphScreen::txtD_Change() { coefficientEdited(3); }
void GraphScreen::txtE_Change() { coefficientEdited(4); }
void GraphScreen::txtF_Change() { coefficientEdited(5); }
void GraphScreen::lblA_MouseDown(int Button, int, double, double) { stepCoefficient(0, Button); }
void GraphScreen::lblB_MouseDown(int Button, int, double, double) { stepCoefficient(1, Button); }
void GraphScreen::lblC_MouseDown(int Button, int, double, double) { stepCoefficient(2, Button); }
void GraphScreen::lblD_MouseDown(int Button, int, double, double) { stepCoefficient(3, Button); }
void GraphScreen::lblE_MouseDown(int Button, int, double, double) { stepCoefficient(4, Button); }
void GraphScreen::lblF_MouseDown(int Button, int, double, double) { stepCoefficient(5, Button); }

bool GraphScreen::stepFamily(std::int16_t& id, int Button, int count)
{
    if (Button == LeftButton)
        id = rt::CInt(rt::Mod(id + 1, count));
    else if (Button == RightButton)
        id = rt::CInt(rt::Mod(id - 1, count));
    else
        return false;
    return true;
}

void GraphScreen::lblFunc_MouseDown(int Button, int, double, double)
{
    using namespace FuncGlobals;
    if (!stepFamily(FunctionId, Button, FunctionCount))
        return;
    if (FunctionId == 0)
        FunctionId = FunctionCount;
    mnuFunc_Click(FunctionId);
}

void GraphScreen::mnuFunc_Click(int Index)
{
    using namespace FuncGlobals;
    // A family chosen from the menu (or by the function label) replaces a typed function.
    const bool leavingTyped = typed_ != nullptr;
    typed_.reset();
    installTyped();
    if (leavingTyped)
        functionReplaced();
    FunctionId = rt::CInt(Index);
    const std::string& caption = FuncCaption[FunctionId];
    if (lblFunc)
        lblFunc->setText(QString::fromStdString(caption));
    shownFamily_ = FunctionId;
}

void GraphScreen::showHelp(std::initializer_list<std::pair<const char*, const char*>> boxes)
{
    for (const auto& [title, text] : boxes)
        MsgBox(Plotto::tr(text), Plotto::tr(title));  // the texts are marked QT_TRANSLATE_NOOP("Plotto", ...)
}

void GraphScreen::cmdExit_Click() { mnuExit_Click(); }

void GraphScreen::mnuExit_Click() { hide(); }

void GraphScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Focus is marked from the moment the window opens, not only after the first Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
    if (!arranged_) {
        arrangeForKeyboard();
        arranged_ = true;
        // The first opening: the normal size, or the largest that fits the screen.
        if (QScreen* where = screen()) {
            applyFormZoom(1.0);  // the frame is measured with the menu bar at the normal size
            const QSize frame(kWindowBorders.width(), menuBar->sizeHint().height() + kWindowBorders.height());
            resize(openingSize(surface->normalSize(), frame, where->availableGeometry().size()) - kWindowBorders);
        }
    }
}
