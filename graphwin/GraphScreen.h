// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The machinery every demonstration screen shares: the graph square with its window mapping, axes
// and ticks, the plot of the selected explicit family, the four limit boxes with their arrow labels,
// zoom and defaults, the coefficient panel and the function menu with its cycling label.
// Screens differ only in the documented ways, which the Config states; a screen adds its own
// controls and overrides the handlers whose behaviour it changes.
#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <QDialog>
#include <QJsonObject>
#include <QKeySequence>
#include <QString>
#include <QStringList>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "graphwin/AudioTrace.h"
#include "graphwin/Controls.h"
#include "graphwin/DrawingSurface.h"
#include "graphwin/FormTable.h"
#include "graphwin/GraphExport.h"
#include "graphwin/GraphScene.h"
#include "graphwin/GraphView.h"
#include "graphwin/GraphWindow.h"
#include "graphwin/TypedEntry.h"
#include "runtime/RuntimeError.h"

class QAction;
class QMenu;
class QMenuBar;
class GraphViewer;

class GraphScreen : public QDialog {
    Q_OBJECT
public:
    enum class Zoom { AboutCentre, TowardsOrigin };

    struct Config {
        QString caption;
        double surfaceWidth = 11235;
        double surfaceHeight = 7140;
        int squareLeft = 2400;
        int frameTop = 100;  // top of the outline shape shpSquare (the square itself starts at 100)
        Zoom zoom = Zoom::AboutCentre;
        bool validatingLimits = false;  // refuse a window whose minimum is not below its maximum
        int coefficientCount = 5;  // 5 (A to E) or 6 (A to F)
        std::array<const char*, 6> coefficientDefaults{"1", "1", "0", "0", "0", "0"};
        bool functionMenu = true;  // the explicit families' menu and function label
        QString functionMenuCaption = QT_TRANSLATE_NOOP("Plotto", "&Select Function");
        QString functionLabelCaption = QStringLiteral("y = A(Bx - C)^2 + D");
        QString plotCaption = QT_TRANSLATE_NOOP("Plotto", "&Plotto!");
        QString cleanCaption = QT_TRANSLATE_NOOP("Plotto", "&Erase Graph");
        QString zoomCaption = QT_TRANSLATE_NOOP("Plotto", "&Zoom In");
        QString defaultsCaption = QT_TRANSLATE_NOOP("Plotto", "&Reset to Default");
        // A screen added to the classic eight: a person's action on it that meets one of the classic
        // run-time errors (equal window limits, a number too large) is told in words, and the
        // program carries on.
        bool errorsInWords = false;
    };

    ~GraphScreen() override;

    // The drawing surface (the window's client area) and the square's frame.
    DrawingSurface* surface = nullptr;
    QWidget* shpSquare = nullptr;
    GraphWindow graph;

    // Window limits and their arrow labels.
    TextBox *txtXmin = nullptr, *txtXmax = nullptr, *txtYmin = nullptr, *txtYmax = nullptr;
    ClickLabel *lblXminL = nullptr, *lblXminR = nullptr, *lblXmaxL = nullptr, *lblXmaxR = nullptr;
    ClickLabel *lblYminL = nullptr, *lblYminR = nullptr, *lblYmaxL = nullptr, *lblYmaxR = nullptr;

    // Coefficient panel; txtF and lblF exist only on screens with six coefficients.
    ClickLabel* lblVariables = nullptr;
    TextBox *txtA = nullptr, *txtB = nullptr, *txtC = nullptr, *txtD = nullptr, *txtE = nullptr, *txtF = nullptr;
    ClickLabel *lblA = nullptr, *lblB = nullptr, *lblC = nullptr, *lblD = nullptr, *lblE = nullptr, *lblF = nullptr;
    ClickLabel* lblFunc = nullptr;

    QPushButton *cmdPlotto = nullptr, *cmdClean = nullptr, *cmdZoomIn = nullptr, *cmdSetDefault = nullptr;
    QPushButton* cmdExit = nullptr;

    QMenuBar* menuBar = nullptr;
    QAction *mnuFile = nullptr, *mnuAbout = nullptr, *sep1 = nullptr, *mnuExit = nullptr;
    QAction* mnuSelect = nullptr;
    std::vector<QAction*> mnuFunc;  // index 0 is the design entry; 1 to ExplicitFamilyCount the families

    // Graph window and plotting.
    virtual void CleanGraph();
    virtual void cmdPlotto_Click();
    void cmdClean_Click();

    // Window limits.
    void txtXmin_Change();
    void txtXmax_Change();
    void txtYmin_Change();
    void txtYmax_Change();
    void lblXminL_Click();
    void lblXminR_Click();
    void lblXmaxL_Click();
    void lblXmaxR_Click();
    void lblYminL_Click();
    void lblYminR_Click();
    void lblYmaxL_Click();
    void lblYmaxR_Click();
    void lblXminL_DblClick();
    void lblXminR_DblClick();
    void lblXmaxL_DblClick();
    void lblXmaxR_DblClick();
    void lblYminL_DblClick();
    void lblYminR_DblClick();
    void lblYmaxL_DblClick();
    void lblYmaxR_DblClick();
    virtual void cmdZoomIn_Click();
    virtual void cmdSetDefault_Click();

    // Coefficient panel and function menu.
    void txtA_Change();
    void txtB_Change();
    void txtC_Change();
    void txtD_Change();
    void txtE_Change();
    void txtF_Change();
    void lblA_MouseDown(int Button, int Shift, double X, double Y);
    void lblB_MouseDown(int Button, int Shift, double X, double Y);
    void lblC_MouseDown(int Button, int Shift, double X, double Y);
    void lblD_MouseDown(int Button, int Shift, double X, double Y);
    void lblE_MouseDown(int Button, int Shift, double X, double Y);
    void lblF_MouseDown(int Button, int Shift, double X, double Y);
    void lblFunc_MouseDown(int Button, int Shift, double X, double Y);
    virtual void mnuFunc_Click(int Index);

    // Life of the screen.
    virtual void Form_Load();
    virtual void Form_Activate();
    // What the launcher runs as it shows the screen: Form_Activate, whose classic run-time error a
    // screen that tells errors in words (Config::errorsInWords) tells as it does a control's.
    void activate();
    virtual void mnuAbout_Click() = 0;
    void cmdExit_Click();
    void mnuExit_Click();

    // Typed functions (the Tools menu, Ctrl+E). Takes `text` as this screen's y = f(x) in x and A to E
    // and returns "", or returns the reason it cannot be taken and changes nothing. A screen without
    // an explicit function refuses every text.
    QString setTypedFunction(const QString& text);
    QAction *mnuTools = nullptr, *mnuTypeFunction = nullptr;
    // Projector mode (Tools, Ctrl+Shift+P): wider lines, larger marks and darker light colours on
    // every screen, for the rest of the run.
    QAction* mnuProjector = nullptr;
    void mnuProjector_Click();
    // Opens the entry of the screen's function (Ctrl+E).
    virtual void mnuTypeFunction_Click();
    // True while the screen shows a typed function instead of a family.
    virtual bool typedInUse() const { return typed_ != nullptr; }

    // Hearing a drawn curve and walking along it, for a student who cannot see the graph. Tools, Hear
    // the Curve (Ctrl+Shift+H) plays the chosen curve (the last drawn, or the one chosen with Up and
    // Down) from the window's left edge to its right. With the graph focused, Left and Right walk
    // along it a pixel column at a time (Ctrl: a tenth of the window), Home and End go to its ends,
    // N goes to the nearest root, turn or crossing of the y-axis; each step is said in words (the
    // first line of the description) and marked on the graph. Where the arrow keys move a cross-hair
    // (the slope field) the walk takes them with Shift.
    QAction* mnuHearCurve = nullptr;
    void mnuHearCurve_Click();

    // The graph at print quality (Tools): Export Graph (Ctrl+Shift+E) writes the graph square as SVG,
    // PDF or PNG with its caption (the description Ctrl+C copies), Print (Ctrl+P) and Print Preview
    // put it on a page, scaled to fit with its shape kept.
    QAction *mnuExportGraph = nullptr, *mnuPrint = nullptr, *mnuPrintPreview = nullptr;
    void mnuExportGraph_Click();
    void mnuPrint_Click();
    void mnuPrintPreview_Click();
    // What is exported: the surface, the graph square's outline and the caption.
    graphexport::Graph exportedGraph() const;
    // Writes the graph to `path` (the format by its extension): "" or what went wrong, in words.
    QString exportGraph(const QString& path, const graphexport::Options& options) const;
    // Paints the graph on `device`'s page (a printer, a picture), one page, fitted with its shape kept.
    void printGraph(QPaintDevice& device, const QRectF& page, const graphexport::Options& options) const;
    bool exploreKey(int key, Qt::KeyboardModifiers modifiers);
    // The chosen curve's points as the trace plays them, and its samples; empty when nothing is drawn.
    std::vector<audio::Point> tracePoints() const;
    std::vector<float> traceSamples() const;
    // What the walk or the trace said last ("x = 1.25, y = 3.56"); empty after a clear.
    QString announcement() const;
    static constexpr double kTraceSeconds = 3;
    static constexpr int kTraceRate = 22050;

    // The screen's function, for a lesson: {"family": n} for the family its label shows,
    // {"typed": text} for a typed one, {} while it shows none. The slope-field and parametric
    // screens name their two functions. `checkFunctionState` says why a state cannot be taken ("" when
    // it can); `setFunctionState` does what choosing it by hand does. All three read the screen's
    // `functionParts()`.
    QJsonObject functionState() const;
    QString checkFunctionState(const QJsonObject& state) const;
    void setFunctionState(const QJsonObject& state);

    // Lessons: the commands of the Tools menu run what the program's owner of the lesson set here
    // (the lesson belongs to the run, not to one screen). `place` says where the lesson stands
    // ("Step 3 of 7"), shown at the right of every screen's menu bar.
    struct LessonCommands {
        std::function<void(GraphScreen&)> add;
        std::function<void()> save, open, next, previous, worksheet;
        std::function<QString()> place;
    };
    static void setLessonCommands(LessonCommands commands);
    static void refreshLessonPlaces();
    // Says where the lesson stands ("Step 2 of 4."), as a step has opened on this screen.
    void announceLessonPlace();
    QAction *mnuAddStep = nullptr, *mnuSaveLesson = nullptr, *mnuOpenLesson = nullptr;
    QAction *mnuNextStep = nullptr, *mnuPreviousStep = nullptr, *mnuExportWorksheet = nullptr;
    QLabel* lblLessonPlace = nullptr;  // a label of the window, kept over its room at the menu bar's right

    // Makes the screen usable from the keyboard and by a screen reader: every control gets an
    // accessible name (its caption, or for a box the label beside or above it), the labels that answer
    // the mouse take the focus, and Tab runs through the panels in order (left panel, the window
    // limits, then the columns on the right, each from top to bottom). Runs when the screen is first
    // shown.
    void arrangeForKeyboard();

    // What the screen shows, in words, from what its handlers hold: the window, what is drawn since
    // the last clear and the screen's results. It is the graph's accessible description (refreshed
    // after every action) and the text that Ctrl+C copies with the picture.
    QString describe() const;
    // The screen's own results, a line each, as the description ends with them (a worksheet's numbers).
    QStringList results() const;
    // The selected family's caption with the coefficients' values (or the typed function's text).
    QString describeFamily() const;
    void refreshDescription();
    // Ctrl+C: a focused grid as tab-separated text; otherwise the graph square as an image at the
    // window's resolution, with the description.
    void copyGraph();

    // The view: the View menu, and the wheel, a drag and a box on the graph (GraphViewer). Zooms about
    // a world point (which stays where it is on the square), pans, goes back to the window before
    // the first zoom and through the windows shown. The limit boxes show the new window without
    // their change handlers (a view is not a person's new limits: nothing is erased), and every
    // drawing kept since the last clear is drawn again at it. Nothing here raises a run-time error:
    // a window the arithmetic cannot show, or a drawing that cannot be made at it, is said in words.
    // Each returns whether the graph now shows a new window.
    QAction *mnuView = nullptr, *mnuViewZoomIn = nullptr, *mnuViewZoomOut = nullptr;
    QAction *mnuViewOriginal = nullptr, *mnuViewBack = nullptr, *mnuViewForward = nullptr;
    std::optional<view::Limits> shownWindow() const;
    bool showWindow(const view::Limits& limits);
    bool zoomViewAt(double x, double y, double factor);
    bool zoomView(double factor);
    bool panView(double dx, double dy);
    bool originalWindow();
    bool backWindow();
    bool forwardWindow();
    // What the graph says of the point under the pointer at (xTwips, yTwips): its x and y to the
    // decimals a pixel tells apart, or the drawn curve it is near with its value there; "" outside
    // the square.
    QString readoutAt(double xTwips, double yTwips) const;
    GraphViewer* viewer() const { return viewer_; }
    // A point of the construction that a person may drag on the graph: where it is in the world,
    // whether it moves along x only, what it is ("the first guess") and what dragging it to (x, y)
    // does (the same as typing the value and pressing the screen's button).
    struct DragHandle {
        QString name;
        double x = 0, y = 0;
        bool alongX = true;
        std::function<void(double x, double y)> moveTo;
    };
    virtual std::vector<DragHandle> dragHandles() { return {}; }
    // A dragged x as a box shows it: to the decimals a pixel of the window tells apart.
    QString draggedValue(double x) const;
    // Whether every drawing since the last clear would be drawn again at another window.
    bool everyDrawingKept() const { return scene_->complete(); }

protected:
    // Tells a screen reader `text` (read with the description until the next clear), with a marker
    // on the square at `marker` when given.
    void announce(const QString& text, std::optional<QPointF> marker = std::nullopt);
    void showEvent(QShowEvent* event) override;
    explicit GraphScreen(Config config);
    // Draws with `draw` now and keeps it as a step of the picture (GraphScene), to be drawn again by
    // the same code when the view changes; `keep` holds the typed functions it uses alive.
    void keepDrawing(const QString& what, std::function<void()> draw, std::shared_ptr<const void> keep = {},
                     const QString& kind = {});
    // Draws the picture again at the same window without the kept steps of `kind`, so that a dragged
    // construction can be drawn anew; false when the picture was not whole (nothing is erased then).
    bool eraseKept(const QString& kind);
    // Runs a screen's own handlers for a drag (an addition, not a person's press): a classic error
    // ends only the drag's action and is said in words.
    void runForDrag(const std::function<void()>& action);
    // What was just drawn outside the graph's steps is drawn again by the screen's own clear (a
    // formula beside the graph): the picture is still whole.
    void settleDrawing() { scene_->settle(); }

    const Config& config() const { return config_; }
    int squareLeft() const { return config_.squareLeft; }

    // The explicit family's plot over the square's columns, in QBColor(FunctionId mod 7).
    void plotFunction();
    // The same column walk for the function in use or its derivative, described and kept for the
    // audio trace as `name`.
    void plotExplicit(FuncGlobals::ExplicitSnapshot::What what, const QString& name);
    // The left edge, in twips, of the screen's right-hand column of buttons (1680 wide, 420 high).
    double buttonColumn() const;
    // Fills the function captions and the menu, and selects a family.
    void loadFunctionMenu();
    // Writes the default limits "-10", "10", "-10", "10".
    void writeDefaultLimits();
    // Moves the four limits as the screen's zoom does (each write fires its box's Change).
    void zoomLimits();
    // Copies every coefficient box into the module's coefficients, without the change hook.
    void copyCoefficients();
    // Runs after the program or a person changed coefficient box `index` (0 = A) and the coefficient
    // was copied; a screen that must react to it overrides this.
    virtual void coefficientChanged(int index);
    // Shows a help sequence of (title, text) message boxes.
    void showHelp(std::initializer_list<std::pair<const char*, const char*>> boxes);
    // Adds a top-level menu to the menu bar.
    QMenu* addMenu(const QString& caption);
    // Writes the screen's typed function (or none) into the module state, as the coefficients are.
    virtual void installTyped();
    // Runs `body`. While a typed function is in use, a run-time error inside it ends only `body` and
    // is handed to `fault`: a typed function never ends the program. Otherwise errors go on as ever.
    template <class Body, class Fault>
    void typedGuard(Body&& body, Fault&& fault)
    {
        if (!typedInUse()) {
            body();
            return;
        }
        try {
            body();
        } catch (const rt::RuntimeError& error) {
            fault(error);
        }
    }
    // One part of the screen's function (the explicit function; dy or dx; x(t) or y(t)), as a lesson
    // keeps it: the keys of its family number (1 to `count`) and of its typed text (in `variables`
    // and the coefficients), the family its label shows now (0: none) and how one is chosen.
    struct FunctionPart {
        const char* family;
        const char* typed;
        int count;
        FuncGlobals::VariableNames variables;
        int shown;
        std::function<void(int)> choose;
    };
    // A press on a function label: the left button moves `id` to the next family, the right to the
    // one before (wrapping by Mod of `count`, so 0 can come out: the caller decides what 0 means);
    // false, and `id` unchanged, for another button.
    static bool stepFamily(std::int16_t& id, int Button, int count);
    // The screen's parts, in order (none on a screen without a function menu).
    virtual std::vector<FunctionPart> functionParts();
    // The typed texts in use, one a part, or none while the families are.
    virtual QStringList typedTexts() const;
    // Takes typed texts for all the parts at once, as the entry's OK does: "" or the refusal.
    virtual QString setTypedTexts(const QStringList& texts);
    // The family the function label shows (0 before one is chosen).
    int shownFamily_ = 0;
    // Offers `caption` again in the Tools menu (the session's typed functions, newest first); the
    // entry runs `apply`.
    void rememberTyped(const QString& caption, std::function<void()> apply);
    // Shows `entry` and, on OK, hands the lines to `take` (which may still refuse them).
    void runTypedEntry(TypedEntryLayout entry, const std::function<QString(const QStringList&)>& take);
    // Called after the screen took a typed function or went back to the families; a screen clears
    // results that belonged to the function before.
    virtual void functionReplaced() { }
    std::shared_ptr<const FuncGlobals::TypedFunction> typed_;
    // With a typed function in use: false, and `label` saying where in words, when it is undefined at
    // one of `xs`. Always true for a family, whose undefined points have the value 0.
    bool typedDefinedAt(std::initializer_list<double> xs, QLabel* label, const QString& before = {}) const;
    // With a typed function in use: false, and `label` saying so, when its derivative is undefined at x.
    bool typedSlopeAt(double slope, double x, QLabel* label) const;
    // What a label says when a typed function's numbers are too large to compute a result.
    static QString typedTooLarge();

    // A drawn curve as the trace and the walk meet it: its name, the window it was drawn in, and a way
    // to make its points again (an explicit curve at `columns` pixel columns across the window, any
    // other as it was drawn), so that drawing it costs no more than before. `f` is y at x for an
    // explicit curve (it refines roots and turns), empty for others.
    struct TracedCurve {
        QString name;
        audio::Range range;
        std::function<std::vector<audio::Point>(int columns)> points;
        std::function<double(double)> f;
    };
    // Adds a curve drawn since the last clear; it becomes the chosen one.
    void noteTraced(TracedCurve curve);
    // The explicit function in use now (its value or its slope), over the window, named `name`.
    TracedCurve explicitCurve(const QString& name, FuncGlobals::ExplicitSnapshot::What what,
                              std::shared_ptr<const FuncGlobals::TypedFunction> typed) const;
    // A curve of points as drawn (bars' heights, an integral curve, a parametric curve).
    TracedCurve drawnCurve(const QString& name, std::vector<audio::Point> points) const;
    // The window the graph is drawn in, from its mapping.
    audio::Range traceRange() const;

    // Adds the screen's own results to its description, a line each.
    virtual void describeResults(QStringList& lines) const;
    // Records what was drawn, for the description (cleared with the picture).
    void noteDrawn(const QString& what);

private:
    friend class GraphViewer;
    // The explicit function's column walk (plotExplicit's drawing), for a typed function or a family.
    void drawExplicit(FuncGlobals::ExplicitSnapshot::What what, bool typed);
    void buildViewMenu();
    // Stops the view (GraphViewer) from watching the surface, as the screen goes.
    void leaveView();
    // Shows `limits` when they can be shown; `remember` puts the window in the history.
    bool moveView(const view::Limits& limits, bool remember);
    // Clears the picture (the screen's own clear) and draws `steps` again; what could not be drawn.
    QStringList redrawKept(GraphScene::Steps steps);
    // Shows a window of the history (Back, Forward), or says `none` where there is none.
    bool stepView(const std::optional<view::Limits>& limits, const QString& none);
    // Starts the history afresh when a person's limits replaced the window it knows.
    void followTypedLimits();
    std::unique_ptr<GraphScene> scene_;
    view::History viewHistory_;
    bool viewStarted_ = false;
    GraphViewer* viewer_ = nullptr;
    // Joins (leaves) the screens whose description is refreshed after every action.
    void joinDescriptions();
    void leaveDescriptions();
    void buildLimits();
    void buildCoefficients();
    void buildButtons();
    void buildMenus();
    void limitChanged(TextBox* minBox, TextBox* maxBox);
    void stepLimit(TextBox* box, double delta, bool narrows, TextBox* minBox, TextBox* maxBox);
    void copyCoefficient(int index);
    void coefficientEdited(int index);
    void stepCoefficient(int index, int Button);
    TextBox* coefficientBox(int index) const;

    void buildToolsMenu();
    // An entry of the Tools menu with its key (working anywhere in the window), running `run` as a
    // handler runs.
    QAction* addToolsEntry(const QString& caption, QKeySequence key, std::function<void()> run);
    void buildLessonCommands();
    // Leaves the screens whose menu bar shows where the lesson stands (as the screen goes).
    void leaveLessonPlaces();
    void refreshLessonPlace();
    QWidget* lessonPlaceRoom_ = nullptr;  // the menu bar's corner, as large as the place
    void placeLessonPlace();
    // Grows the menu bar and its menus with the form, and tells the style the form's zoom.
    void applyFormZoom(double zoom);
    QFont menuFont_;
    QMenu* toolsMenu_ = nullptr;
    QAction* historySeparator_ = nullptr;
    QList<QAction*> history_;

    // The walk: the curves drawn since the clear `tracedAfterClear_` (what the walk said belongs to
    // the same picture), the chosen one (-1: the last), its points at the present size and the point
    // the walk is at. `walkCurve_` is the curve walk_ was made for (-1: none yet).
    void forgetAfterClear();
    bool sinceClear() const { return tracedAfterClear_ == surface->clears(); }
    const TracedCurve* chosenCurve() const;
    int traceColumns() const;
    bool walkReady();
    void walkTo(std::size_t index, const QString& before = {});
    std::optional<QPointF> markerAt(double x, double y) const;
    QString spokenPoint(double x, double y, double finer = 1) const;
    std::vector<TracedCurve> traced_;
    std::uint64_t tracedAfterClear_ = 0;
    int chosen_ = -1;
    std::vector<audio::Point> walk_;
    int walkCurve_ = -1;
    int walkColumns_ = 0;
    std::size_t walkAt_ = 0;
    QString announcement_;
    static inline bool silenceSaid_ = false;

    Config config_;
    bool arranged_ = false;
    QStringList drawn_;
    std::uint64_t drawnAfterClear_ = 0;
    int drawnBeyond_ = 0;
    static constexpr int kMaxDescribed = 12;
    class FormArea* formArea_ = nullptr;
};
