// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Thin wrappers over the Qt controls that give them the classic events. A person's action reaches
// the handler through the guarded entry point; the program's own write (`assign`, `setValue`, ...)
// changes the control with Qt's signals blocked and then calls the handler itself, directly, so that
// a run-time error travels on to the outermost handler of the event.
#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>

class QAction;
class QMenu;
class QMenuBar;

// Button codes and shift bits of the mouse handlers.
enum MouseButtonCode { LeftButton = 1, RightButton = 2, MiddleButton = 4 };

using MouseHandler = std::function<void(int Button, int Shift, double X, double Y)>;

// The button code and shift state of a Qt mouse event.
int buttonCode(Qt::MouseButton button);
int shiftCode(Qt::KeyboardModifiers modifiers);

class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent, const QString& text = QString());
    // The Change handler, run on every change of the text.
    std::function<void()> Change;
    // The Click handler, run when a left press over the box is released.
    std::function<void()> Click;
    // The program's write: sets the text and, when it differs, runs Change directly. A Change handler
    // that keeps rewriting its own box (two corrections that undo each other) is not followed deeper
    // than kMaxNestedChanges: the text is then written without running Change again.
    void assign(const QString& text);
    void assign(const std::string& text) { assign(QString::fromStdString(text)); }
    // Val of the text, for the classic handlers: raises Overflow for a number beyond the double range.
    double value() const;
    // The same number for everything else the program does with a box (descriptions, copies, tables,
    // the trace, lessons, the view): nothing where value() would raise, so that none of these can
    // end the program with one of the classic errors.
    std::optional<double> number() const;
    static constexpr int kMaxNestedChanges = 16;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    // Ctrl+C copies the box's text only when some of it is selected; otherwise the key is left to
    // the window (which copies its graph).
    bool event(QEvent* event) override;

private:
    void runChange();
    int changeDepth_ = 0;
};

// A grid of text cells addressed by row and column, row 0 included (it holds the headings); widths
// are given in twips.
class Grid : public QTableWidget {
    Q_OBJECT
public:
    Grid(QWidget* parent, int rows, int columns);
    void setCell(int row, int column, const QString& text);
    QString cell(int row, int column) const;
    void setColumnWidthTwips(int column, double twips);
    void setColumnAlignment(int column, Qt::Alignment alignment);
    // Column widths and row heights at a form zoom (1 at the normal size).
    void applyZoom(double zoom);
    // The grid as tab-separated lines for a spreadsheet: the heading row, then every row that holds
    // a value beyond its first column.
    QString tabSeparated() const;
    // Whether a cell's text fits its column. A heading or a word (a translated one is often longer)
    // that does not is drawn shortened with an ellipsis and shows whole in its tooltip, and the
    // screen reader reads the whole text; a number keeps the classic grid's look.
    bool cellFits(int row, int column) const;
    // The tooltip of a cell: its whole text where it is words shortened with an ellipsis, else "".
    QString cellTip(int row, int column) const;

private:
    std::vector<double> columnTwips_;
    double zoom_ = 1.0;
};

// A label with mouse events: MouseDown on every press (the second press of a double click too),
// Click on the release of a left press over it, DblClick on a double click (whose closing release
// raises nothing). A stepper label is light green.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    ClickLabel(QWidget* parent, const QString& caption, bool stepper = false);
    MouseHandler MouseDown;
    std::function<void()> Click;
    std::function<void()> DblClick;

    // True when the label answers the mouse (and so, when focused, the keyboard too).
    bool interactive() const { return MouseDown || Click || DblClick; }
    // For a stepper label, the box it steps (its value is what a screen reader says of the label).
    TextBox* steps = nullptr;
    // What the keyboard or an assistive tool does in place of a click: a press of `button` in the
    // label's middle (MouseDown), then Click for the left button.
    void activate(int button, int shift = 0);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    // From the keyboard: Up, Right, +, Space and Enter act as a left click (MouseDown, then Click);
    // Down, Left and - as a right press (MouseDown with the right button); with Shift, a left key
    // also raises DblClick, as the second click of a double click would.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // MouseDown for a press, at the press's position in twips.
    void raiseMouseDown(QMouseEvent* event);
    // Tells assistive tools the stepped box's new value.
    void announceStep();
    bool releaseEndsDoubleClick_ = false;
};

class ScrollBar : public QScrollBar {
    Q_OBJECT
public:
    ScrollBar(Qt::Orientation orientation, QWidget* parent);
    std::function<void()> Change;  // arrow or trough click, release of the thumb, program's change
    std::function<void()> Scroll;  // while the thumb is dragged
    // What the bar's position means, as a screen reader should say it ("t = 1.008"); empty: the
    // position itself.
    std::function<QString()> Spoken;
    // Spoken's text, or nothing when it is unset. Spoken reads the screen's boxes by their number(),
    // so that no text in them can raise an error here.
    std::optional<QString> meaning() const;
    // The program's writes. Value outside Min..Max raises Invalid property value (380); a change of
    // Min or Max that moves the value runs Change. Max may lie below Min: the bar then runs the other
    // way, from Min at its start to Max at its end.
    void setValueChecked(int value);
    void setMax(int max);
    void setMin(int min);
    int Max() const { return max_; }
    int Min() const { return min_; }

protected:
    void paintEvent(QPaintEvent* event) override;  // adds a focus ring

private:
    void applyRange();
    int min_ = 0, max_ = 99;
    bool applyingRange_ = false;
    // Runs a change of Min or Max with signals blocked; runs Change when it moved the value.
    void changeLimit(const std::function<void()>& write);
    int lastChangeValue_ = 0;
};

class CheckBox : public QCheckBox {
    Q_OBJECT
public:
    CheckBox(QWidget* parent, const QString& caption);
    std::function<void()> Click;  // on every change of the value
};

class OptionButton : public QRadioButton {
    Q_OBJECT
public:
    OptionButton(QWidget* parent, const QString& caption);
    std::function<void()> Click;  // when the button becomes selected
    void select();
};

// The rule of the light-green labels: a left press adds 1 to the box, a right press subtracts 1,
// other buttons do nothing. The result is written back by the plain conversion, or by Str (with its
// leading blank) where a screen asks for that.
enum class StepText { Plain, WithStr };
void stepBox(TextBox* box, int Button, StepText text = StepText::Plain);

// The ring drawn around a focused control the style marks too faintly: two pixels of dark blue,
// at least 3:1 against white, grey and the stepper labels' light green.
void paintFocusRing(QWidget* widget);

// The names of the boxes among `boxes` whose text is no number the program can use, said in words
// ("Start x holds 1e400, which is not a number."), or "" when every one is.
QString notNumbers(std::initializer_list<std::pair<QString, const QLineEdit*>> boxes);

// Numbers as label and box texts: Str, and Str without its blanks.
QString qStr(double v);
QString qStr(float v);
QString qTrimStr(double v);
// A number shown to a person as a result (a label, a description): Str, or Str without its blanks,
// with the language's decimal separator (i18n::decimals). Boxes keep the classic text: what the
// program writes into a box is read back by the classic rules.
QString shownStr(double v);
QString shownStr(float v);  // a single's digits, as qStr(float)
QString shownTrimStr(double v);

// A menu array: a menu whose entry 0 is the hidden design entry and whose entries 1..count are added
// at load time. `startMenuArray` adds the design entry; `fillMenuArray` adds the missing entries with
// their captions and sends each choice to `click` with its index.
void startMenuArray(QMenu* menu, std::vector<QAction*>& entries);
void fillMenuArray(QMenu* menu, std::vector<QAction*>& entries, int count, const std::function<QString(int)>& caption,
                   const std::function<void(int)>& click);

// A plot colour looked up when the first point is drawn, not before: a colour number that does not
// exist raises its error only if something is drawn in it.
class FirstUseColour {
public:
    explicit FirstUseColour(std::function<int()> number) : number_(std::move(number)) { }
    QRgb get();

private:
    std::function<int()> number_;
    QRgb colour_ = 0;
    bool known_ = false;
};

// Gives an object (a menu entry, say) its member's name as its object name: the key by which lessons
// find it, whatever its caption says or is translated to.
#define NAME_AS_MEMBER(member) (member)->setObjectName(QStringLiteral(#member))

// A push button whose Click runs the handler through the guarded entry point.
QPushButton* makeButton(QWidget* parent, const QString& caption, std::function<void()> click);
// A menu entry whose Click runs the handler through the guarded entry point.
void onTriggered(QAction* action, std::function<void()> click);

// The "&File" menu every window has: "&About", a separator and the leaving entry.
struct FileMenu {
    QAction *menu, *about, *separator, *exit;
};
FileMenu addFileMenu(QMenuBar* bar, const QString& exitCaption, std::function<void()> about,
                     std::function<void()> exit);
