// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/FormTable.h"

#include <stdexcept>
#include <string>

#include "graphwin/FormStyle.h"
#include "graphwin/Language.h"

namespace form {

namespace {

[[noreturn]] void tableMistake(const QString& caption, const char* what)
{
    throw std::logic_error("form table, row \"" + caption.toStdString() + "\": " + what);
}

// A table's English text in the language in use (tables mark their texts for the catalogues with
// QT_TRANSLATE_NOOP("Plotto", ...)); a box's caption is its first text and stays as it is.
QString shown(const char* text) { return text ? Plotto::tr(text) : QString(); }

QWidget* create(const Control& row, QWidget* parent)
{
    const QString caption = row.kind == Kind::Box ? row.caption : shown(row.caption.toUtf8().constData());
    switch (row.kind) {
    case Kind::Label:
    case Kind::Stepper: return new ClickLabel(parent, caption, row.kind == Kind::Stepper);
    case Kind::Box: return new TextBox(parent, caption);
    case Kind::Button:
        // The click goes through the guarded entry point, as every person's action does.
        if (!row.handlers.Click)
            tableMistake(row.caption, "a button needs its Click");
        return makeButton(parent, caption, row.handlers.Click);
    case Kind::Check: return new CheckBox(parent, caption);
    case Kind::Option: return new OptionButton(parent, caption);
    case Kind::HScroll:
    case Kind::VScroll: return new ScrollBar(row.kind == Kind::HScroll ? Qt::Horizontal : Qt::Vertical, parent);
    case Kind::Frame: return new QGroupBox(caption, parent);
    case Kind::Grid: return new Grid(parent, row.look.rows, row.look.columns);
    case Kind::Outline: {
        auto* outline = new QFrame(parent);
        outline->setFrameStyle(QFrame::Box | QFrame::Plain);
        outline->setAttribute(Qt::WA_TransparentForMouseEvents);
        return outline;
    }
    }
    tableMistake(row.caption, "unknown kind");
}

void applyLook(const Control& row, QWidget* w)
{
    const Look& look = row.look;
    if (auto* label = qobject_cast<ClickLabel*>(w)) {
        if (look.align)
            label->setAlignment(look.align);
        if (look.wrap)
            label->setWordWrap(true);
        if (look.raised)
            label->setFrameStyle(QFrame::Panel | QFrame::Raised);
        if (look.boxed)
            label->setFrameStyle(QFrame::Box | QFrame::Plain);  // all four edges, on white too
    } else if (look.align || look.wrap || look.raised || look.boxed) {
        tableMistake(row.caption, "alignment, wrapping and frames are for labels");
    }
    if (look.checked) {
        auto* button = qobject_cast<QAbstractButton*>(w);
        if (!button || !button->isCheckable())
            tableMistake(row.caption, "only a check or an option starts ticked");
        button->setChecked(true);
    }
    if (auto* bar = qobject_cast<ScrollBar*>(w)) {
        bar->setMin(look.bar.min);
        bar->setMax(look.bar.max);
        bar->setPageStep(look.bar.large);
        bar->setSingleStep(look.bar.small);
        bar->setValue(look.bar.value);
    }
    if (look.tip)
        w->setToolTip(shown(look.tip));
    if (look.name)
        w->setAccessibleName(shown(look.name));
}

void wire(const Control& row, QWidget* w)
{
    const Handlers& h = row.handlers;
    auto refuse = [&row](bool given, const char* event) {
        if (given)
            tableMistake(row.caption, event);
    };
    if (auto* label = qobject_cast<ClickLabel*>(w)) {
        label->Click = h.Click;
        label->DblClick = h.DblClick;
        label->MouseDown = h.MouseDown;
        refuse(h.Change || h.Scroll || h.Spoken, "a label answers Click, DblClick and MouseDown only");
    } else if (auto* box = qobject_cast<TextBox*>(w)) {
        box->Change = h.Change;
        box->Click = h.Click;
        refuse(h.DblClick || h.MouseDown || h.Scroll || h.Spoken, "a box answers Change and Click only");
    } else if (auto* bar = qobject_cast<ScrollBar*>(w)) {
        bar->Change = h.Change;
        bar->Scroll = h.Scroll;
        bar->Spoken = h.Spoken;
        refuse(h.Click || h.DblClick || h.MouseDown, "a scroll bar answers Change and Scroll only");
    } else if (auto* check = qobject_cast<CheckBox*>(w)) {
        check->Click = h.Click;
        refuse(h.Change || h.DblClick || h.MouseDown || h.Scroll || h.Spoken, "a check box answers Click only");
    } else if (auto* option = qobject_cast<OptionButton*>(w)) {
        option->Click = h.Click;
        refuse(h.Change || h.DblClick || h.MouseDown || h.Scroll || h.Spoken, "an option answers Click only");
    } else if (row.kind == Kind::Button) {
        refuse(h.Change || h.DblClick || h.MouseDown || h.Scroll || h.Spoken, "a button answers Click only");
    } else {
        refuse(h.Click || h.Change || h.DblClick || h.MouseDown || h.Scroll || h.Spoken,
               "frames, grids and outlines answer nothing");
    }
}

}  // namespace

void buildForm(QWidget* parent, const std::vector<Control>& table)
{
    for (const Control& row : table) {
        QWidget* w = create(row, parent);
        if (!row.name.assign(w))
            tableMistake(row.caption, "the member cannot hold this kind of control");
        w->setObjectName(row.name.name());
        w->setProperty(kSourceCaption, row.caption);
        placeTwips(w, row.place.left, row.place.top, row.place.width, row.place.height);
        applyLook(row, w);
        if (row.kind != Kind::Box && !caption::of(w).isEmpty())
            caption::watch(w);
        wire(row, w);
        if (!row.contents.empty()) {
            if (row.kind != Kind::Frame)
                tableMistake(row.caption, "only a frame holds rows");
            buildForm(w, row.contents);
        }
    }
}

}  // namespace form
