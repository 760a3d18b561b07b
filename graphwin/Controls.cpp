// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/Controls.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "graphwin/Dialogs.h"
#include "graphwin/Language.h"
#include "graphwin/TwipArea.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"

int buttonCode(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton: return LeftButton;
    case Qt::RightButton: return RightButton;
    case Qt::MiddleButton: return MiddleButton;
    default: return 0;
    }
}

int shiftCode(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

TextBox::TextBox(QWidget* parent, const QString& text) : QLineEdit(text, parent)
{
    connect(this, &QLineEdit::textChanged, this, [this] { guarded(this, [this] { runChange(); }); });
}

void TextBox::runChange()
{
    if (!Change)
        return;
    struct Depth {
        int& d;
        explicit Depth(int& depth) : d(++depth) { }
        ~Depth() { --d; }
    } depth(changeDepth_);
    Change();
}

void TextBox::assign(const QString& text)
{
    if (text == this->text())
        return;
    {
        QSignalBlocker block(this);
        setText(text);
    }
    if (changeDepth_ < kMaxNestedChanges)
        runChange();
}

// Where the language writes a decimal comma, a box takes "1,5" as 1.5 too (English reads it as 1, as
// the classic rules do).
double TextBox::value() const { return rt::Val(i18n::typedDecimals(text()).toStdString()); }
std::optional<double> TextBox::number() const { return rt::TryVal(i18n::typedDecimals(text()).toStdString()); }

bool TextBox::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) && !hasSelectedText()) {
            event->ignore();
            return false;
        }
    }
    return QLineEdit::event(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && Click)
        guarded(this, Click);
}

namespace {

// A text of a grid's cell that is not a number ("Schätzung Nr.", "n odd").
bool isWords(const QString& text)
{
    bool number = false;
    QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&number);
    return !number && !text.trimmed().isEmpty();
}

// Draws a grid's words shortened with an ellipsis where they do not fit, and shows them whole in a
// tooltip there; numbers as the classic grid draws them.
class GridDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // The width the text needs beyond the room it has, in pixels (0 or less when it fits).
    static int overflow(const QStyleOptionViewItem& option, const QWidget* view)
    {
        const QStyle* style = view ? view->style() : QApplication::style();
        const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &option, view);
        return option.fontMetrics.horizontalAdvance(option.text) - room.width() + 1;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (isWords(option->text))
            option->textElideMode = Qt::ElideRight;
    }

public:
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        const auto* grid = qobject_cast<const Grid*>(view);
        const QString tip = grid ? grid->cellTip(index.row(), index.column()) : QString();
        if (event->type() == QEvent::ToolTip && !tip.isEmpty()) {
            QToolTip::showText(event->globalPos(), tip, view);
            return true;
        }
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
};

}  // namespace

Grid::Grid(QWidget* parent, int rows, int columns) : QTableWidget(rows, columns, parent)
{
    setItemDelegate(new GridDelegate(this));
    horizontalHeader()->hide();
    verticalHeader()->hide();
    QFont small = font();
    small.setPointSizeF(8.25);
    setFont(small);
    setTextElideMode(Qt::ElideNone);
    setWordWrap(false);
    verticalHeader()->setDefaultSectionSize(17);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    // Arrow keys move inside the grid; Tab leaves it.
    setTabKeyNavigation(false);
    // Row 0 holds the headings: drawn as a header row, on a shaded background (the text keeps the
    // grid's font, so that it scales with the form).
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c) {
            auto* item = new QTableWidgetItem;
            if (r == 0)
                item->setBackground(QColor(0xD8, 0xD8, 0xD8));
            setItem(r, c, item);
        }
}

void Grid::setCell(int row, int column, const QString& text)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        rt::raise(rt::SubscriptOutOfRange);
    // A table shows its numbers with the language's decimal separator.
    const QString shown = i18n::decimals(text);
    item(row, column)->setText(shown);
    // The heading row also names the columns for assistive tools (the header itself stays hidden;
    // row 0 shows the headings as the form draws them).
    if (row == 0)
        setHorizontalHeaderItem(column, new QTableWidgetItem(shown));
}

QString Grid::tabSeparated() const
{
    QStringList lines;
    for (int r = 0; r < rowCount(); ++r) {
        QStringList cells;
        bool holdsValue = r == 0;
        for (int c = 0; c < columnCount(); ++c) {
            cells << cell(r, c);
            holdsValue = holdsValue || (c > 0 && !cells.back().isEmpty());
        }
        if (holdsValue)
            lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

bool Grid::cellFits(int row, int column) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(model()->index(row, column));
    option.text = cell(row, column);
    const QVariant own = item(row, column) ? item(row, column)->data(Qt::FontRole) : QVariant();
    option.font = own.isValid() ? own.value<QFont>() : font();
    option.fontMetrics = QFontMetrics(option.font);
    option.features |= QStyleOptionViewItem::HasDisplay;
    return GridDelegate::overflow(option, this) <= 0;
}

QString Grid::cellTip(int row, int column) const
{
    const QString text = cell(row, column);
    return isWords(text) && !cellFits(row, column) ? text : QString();
}

QString Grid::cell(int row, int column) const
{
    const QTableWidgetItem* i = item(row, column);
    return i ? i->text() : QString();
}

void Grid::setColumnWidthTwips(int column, double twips)
{
    if (column >= 0 && column < columnCount()) {
        columnTwips_.resize(static_cast<std::size_t>(columnCount()), -1);
        columnTwips_[static_cast<std::size_t>(column)] = twips;
    }
    setColumnWidth(column, static_cast<int>(twips / 15 * zoom_));
}

void Grid::applyZoom(double zoom)
{
    zoom_ = zoom;
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(std::max(1, static_cast<int>(std::lround(17 * zoom_))));
    for (std::size_t c = 0; c < columnTwips_.size(); ++c)
        if (columnTwips_[c] >= 0)
            setColumnWidth(static_cast<int>(c), static_cast<int>(columnTwips_[c] / 15 * zoom_));
}

void Grid::setColumnAlignment(int column, Qt::Alignment alignment)
{
    for (int r = 0; r < rowCount(); ++r)
        item(r, column)->setTextAlignment(alignment);
}

ClickLabel::ClickLabel(QWidget* parent, const QString& caption, bool stepper) : QLabel(caption, parent)
{
    if (stepper) {
        setAutoFillBackground(true);
        QPalette p = palette();
        p.setColor(QPalette::Window, QColor(0xC0, 0xFF, 0xC0));
        setPalette(p);
        setAlignment(Qt::AlignCenter);
    }
}

void ClickLabel::mousePressEvent(QMouseEvent* event)
{
    releaseEndsDoubleClick_ = false;
    raiseMouseDown(event);
}

void ClickLabel::raiseMouseDown(QMouseEvent* event)
{
    if (!MouseDown)
        return;
    const int button = buttonCode(event->button()), shift = shiftCode(event->modifiers());
    const double t = twipsPerPixel(this);
    const double x = event->position().x() * t, y = event->position().y() * t;
    guarded(this, [&] { MouseDown(button, shift, x, y); });
    announceStep();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (releaseEndsDoubleClick_) {
        releaseEndsDoubleClick_ = false;
        return;
    }
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && Click)
        guarded(this, Click);
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    // The second press of a double click is a press like any other: a stepper steps again, so quick
    // presses are never lost. Its release raises no Click; the double click raises DblClick.
    releaseEndsDoubleClick_ = true;
    raiseMouseDown(event);
    if (event->button() == Qt::LeftButton && DblClick)
        guarded(this, DblClick);
}

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget* parent) : QScrollBar(orientation, parent)
{
    min_ = minimum();
    max_ = maximum();
    // A range set through Qt's own API (a test, say) becomes Min and Max as they are.
    connect(this, &QAbstractSlider::rangeChanged, this, [this](int lo, int hi) {
        if (applyingRange_)
            return;
        min_ = lo;
        max_ = hi;
    });
    connect(this, &QAbstractSlider::valueChanged, this, [this](int v) {
        if (isSliderDown()) {
            if (Scroll)
                guarded(this, Scroll);
            return;
        }
        lastChangeValue_ = v;
        if (Change)
            guarded(this, Change);
    });
    connect(this, &QAbstractSlider::sliderReleased, this, [this] {
        if (value() == lastChangeValue_)
            return;
        lastChangeValue_ = value();
        if (Change)
            guarded(this, Change);
    });
}

std::optional<QString> ScrollBar::meaning() const
{
    if (!Spoken)
        return std::nullopt;
    return Spoken();
}

void ScrollBar::setValueChecked(int v)
{
    if (v < minimum() || v > maximum())
        rt::raise(rt::InvalidPropertyValue);
    if (v == value())
        return;
    {
        QSignalBlocker block(this);
        setValue(v);
    }
    lastChangeValue_ = v;
    if (Change)
        Change();
}

void ScrollBar::changeLimit(const std::function<void()>& write)
{
    const int before = value();
    {
        QSignalBlocker block(this);
        write();
    }
    if (value() != before) {
        lastChangeValue_ = value();
        if (Change)
            Change();
    }
}

void ScrollBar::applyRange()
{
    applyingRange_ = true;
    setRange(std::min(min_, max_), std::max(min_, max_));
    applyingRange_ = false;
    setInvertedAppearance(max_ < min_);
    setInvertedControls(max_ < min_);
}

void ScrollBar::setMax(int max)
{
    max_ = max;
    changeLimit([this] { applyRange(); });
}

void ScrollBar::setMin(int min)
{
    min_ = min;
    changeLimit([this] { applyRange(); });
}

CheckBox::CheckBox(QWidget* parent, const QString& caption) : QCheckBox(caption, parent)
{
    connect(this, &QAbstractButton::toggled, this, [this] {
        if (Click)
            guarded(this, Click);
    });
}

OptionButton::OptionButton(QWidget* parent, const QString& caption) : QRadioButton(caption, parent)
{
    connect(this, &QAbstractButton::toggled, this, [this](bool on) {
        if (on && Click)
            guarded(this, Click);
    });
}

void OptionButton::select()
{
    if (isChecked())
        return;
    {
        QSignalBlocker block(this);
        setChecked(true);
    }
    if (Click)
        Click();
}

QPushButton* makeButton(QWidget* parent, const QString& caption, std::function<void()> click)
{
    auto* button = new QPushButton(caption, parent);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button,
                     [button, click = std::move(click)] { guarded(button, click); });
    return button;
}

void onTriggered(QAction* action, std::function<void()> click)
{
    QObject::connect(action, &QAction::triggered, action,
                     [action, click = std::move(click)] { guarded(action, click); });
}

FileMenu addFileMenu(QMenuBar* bar, const QString& exitCaption, std::function<void()> about, std::function<void()> exit)
{
    QMenu* file = bar->addMenu(Plotto::tr("&File"));
    FileMenu m{file->menuAction(), file->addAction(Plotto::tr("&About")), file->addSeparator(),
               file->addAction(exitCaption)};
    onTriggered(m.about, std::move(about));
    onTriggered(m.exit, std::move(exit));
    m.about->setObjectName(QStringLiteral("mnuAbout"));
    m.exit->setObjectName(QStringLiteral("mnuExit"));
    return m;
}

void stepBox(TextBox* box, int Button, StepText text)
{
    double delta = 0;
    if (Button == LeftButton)
        delta = 1;
    else if (Button == RightButton)
        delta = -1;
    else
        return;
    const double v = rt::Chk(box->value() + delta);
    box->assign(text == StepText::WithStr ? rt::Str(v) : rt::CStr(v));
}

QString notNumbers(std::initializer_list<std::pair<QString, const QLineEdit*>> boxes)
{
    QStringList said;
    for (const auto& [name, box] : boxes)
        if (!rt::TryVal(i18n::typedDecimals(box->text()).toStdString()))
            said << Plotto::tr("%1 holds %2, which is not a number.").arg(name, box->text());
    return said.join(QLatin1Char(' '));
}

QString qStr(double v) { return QString::fromStdString(rt::Str(v)); }
QString qStr(float v) { return QString::fromStdString(rt::Str(v)); }
QString qTrimStr(double v) { return QString::fromStdString(rt::Trim(rt::Str(v))); }
QString shownStr(double v) { return i18n::decimals(qStr(v)); }
QString shownStr(float v) { return i18n::decimals(qStr(v)); }
QString shownTrimStr(double v) { return i18n::decimals(qTrimStr(v)); }

void startMenuArray(QMenu* menu, std::vector<QAction*>& entries)
{
    QAction* design = menu->addAction(QStringLiteral("-"));
    design->setVisible(false);
    entries.push_back(design);
}

void fillMenuArray(QMenu* menu, std::vector<QAction*>& entries, int count, const std::function<QString(int)>& caption,
                   const std::function<void(int)>& click)
{
    for (int i = 1; i <= count; ++i) {
        if (static_cast<int>(entries.size()) <= i) {
            QAction* entry = menu->addAction(QString());
            onTriggered(entry, [click, i] { click(i); });
            entries.push_back(entry);
        }
        entries[static_cast<std::size_t>(i)]->setText(caption(i));
    }
}

QRgb FirstUseColour::get()
{
    if (!known_) {
        colour_ = 0xFF000000u | rt::QBColor(number_());
        known_ = true;
    }
    return colour_;
}
