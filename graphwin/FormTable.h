// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A form described as a table: one row per control, saying which member of the screen receives it,
// what kind of control it is, its caption, where it stands in twips and which handlers it runs.
// `buildForm` creates, places and wires the rows in table order, so the table reads like the form
// and its order is the order in which the controls are created (Tab breaks its ties by that order).
//
//   const auto on = form::bind(this);
//   form::buildForm(surface, {
//       // name          kind           caption           place (twips)          handlers
//       {FORM_NAME(lblX), Kind::Stepper, "Tangent at x =", {60, 600, 1380, 300},   {.MouseDown =
//       on(&frmX::lblX_MouseDown)}}, {FORM_NAME(txtX), Kind::Box,     "1",              {1500, 600, 1020, 300},
//       {.Change = on(&frmX::txtX_Change)}},
//   });
//
// FORM_NAME(member) gives the control its member's name as its object name: the key by which lessons
// and tests find it, whatever its caption says or is translated to.
#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

#include <QGroupBox>
#include <QString>

#include "graphwin/Controls.h"
#include "graphwin/DrawingSurface.h"

// A row's member, named as the member is named in the code.
#define FORM_NAME(member) ::form::Slot(&member, QStringLiteral(#member))

namespace form {

enum class Kind {
    Label,  // a ClickLabel
    Stepper,  // a light-green ClickLabel that steps the box beside it
    Box,  // a TextBox; the caption is its first text
    Button,  // a push button
    Check,  // a CheckBox
    Option,  // an OptionButton
    HScroll,  // a horizontal ScrollBar
    VScroll,  // a vertical ScrollBar
    Frame,  // a QGroupBox titled with the caption; its rows stand inside it
    Grid,  // a Grid of text cells
    Outline,  // a plain rectangle drawn round a part of the form, deaf to the mouse
};

// The screen's member that receives a control. Any pointer to a member whose type the control's kind
// creates will do; a row whose member cannot hold its kind is a mistake in the table and stops the
// build (std::logic_error), so every screen's construction shows it at once.
class Slot {
public:
    Slot() = default;
    template <class W>
    requires std::is_base_of_v<QWidget, W>
    Slot(W** member, QString name = {})  // NOLINT(google-explicit-constructor): the table names members plainly
        : name_(std::move(name)), assign_([member](QWidget* w) {
              auto* typed = dynamic_cast<W*>(w);
              if (!typed)
                  return false;
              *member = typed;
              return true;
          })
    { }
    // Stores the created widget in the member; false when the member's type cannot hold it.
    bool assign(QWidget* widget) const { return !assign_ || assign_(widget); }
    // The control's object name ("txtGuess"), empty for a row that names no member.
    const QString& name() const { return name_; }

private:
    QString name_;
    std::function<bool(QWidget*)> assign_;
};

// A place in twips within the parent: left, top, width, height.
struct Twips {
    double left = 0, top = 0, width = 0, height = 0;
};

// The handlers a row runs, by the name of the event. Each kind answers only some events (a label:
// Click, DblClick, MouseDown; a box: Change, Click; a button, check or option: Click; a bar: Change,
// Scroll, and Spoken for what its position means); a handler for an event its kind does not raise
// is a mistake in the table.
struct Handlers {
    std::function<void()> Click = {}, DblClick = {}, Change = {}, Scroll = {};
    MouseHandler MouseDown = {};
    std::function<QString()> Spoken = {};
};

// A scroll bar's range, steps and first value (the defaults are a new bar's).
struct Bar {
    int min = 0, max = 99, small = 1, large = 10, value = 0;
};

// How a row looks beyond its caption and place.
struct Look {
    Qt::Alignment align = {};  // a label's alignment (the label's own default when empty)
    bool wrap = false;  // a label's words wrap
    bool checked = false;  // a check or option starts ticked
    bool raised = false;  // a label stands out as a raised panel
    bool boxed = false;  // a label has a plain box round all four edges
    const char* tip = nullptr;
    const char* name = nullptr;  // the name a screen reader says, where the caption does not serve
    Bar bar = {};
    int rows = 0, columns = 0;  // a grid's size
};

struct Control {
    Slot name;
    Kind kind;
    QString caption;
    Twips place;
    Handlers handlers = {};
    Look look = {};
    std::vector<Control> contents = {};  // a frame's rows, placed within the frame
};

// The property in which buildForm keeps a control's caption as the table wrote it, in English,
// whatever language the control shows.
inline constexpr char kSourceCaption[] = "sourceCaption";

// Creates the rows on `parent` in order (a frame's contents right after the frame), places them,
// gives them their look and then their handlers, so that nothing set while building runs a handler.
void buildForm(QWidget* parent, const std::vector<Control>& table);

// A handler of the screen `screen` as a table entry: `bind(this)(&frmX::cmdGo_Click)`. Handlers with
// no arguments become Click/Change/Scroll entries, those with a press's arguments MouseDown entries.
template <class Screen>
auto bind(Screen* screen)
{
    return [screen](auto handler) {
        using H = decltype(handler);
        if constexpr (std::is_invocable_v<H, Screen*>)
            return std::function<void()>([screen, handler] { (screen->*handler)(); });
        else
            return MouseHandler(
                [screen, handler](int b, int s, double x, double y) { (screen->*handler)(b, s, x, y); });
    };
}

}  // namespace form
