// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of a typed function's tree (see TypedText.h): the understood text the entry shows, and
// the fully bracketed text muparser compiles.
#include "funclib/TypedText.h"

#include <cstdio>

namespace FuncGlobals::typed {

std::string number(double v)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g", v);
    return buffer;
}

// Fully bracketed text for muparser: no rule of precedence is left to it.
void toMuparser(const Node& n, std::string& out)
{
    switch (n.op) {
    case Op::Number:
    case Op::Constant: out += '(' + number(n.value) + ')'; return;
    case Op::Variable: out += n.name; return;
    case Op::Negate:
        out += "(-(";
        toMuparser(*n.args[0], out);
        out += "))";
        return;
    case Op::Call:
        // The byte code knows every function of the table by its name (see TypedExpression.cpp).
        out += n.function->name;
        out += '(';
        toMuparser(*n.args[0], out);
        out += ')';
        return;
    default: break;
    }
    const char* sign = n.op == Op::Add        ? "+"
                       : n.op == Op::Subtract ? "-"
                       : n.op == Op::Multiply ? "*"
                       : n.op == Op::Divide   ? "/"
                                              : "^";
    out += '(';
    toMuparser(*n.args[0], out);
    out += sign;
    toMuparser(*n.args[1], out);
    out += ')';
}

namespace {

int binding(Op op)
{
    switch (op) {
    case Op::Add:
    case Op::Subtract: return 1;
    case Op::Multiply:
    case Op::Divide: return 2;
    case Op::Negate: return 3;
    case Op::Power: return 4;
    default: return 5;
    }
}

}  // namespace

// The understood text: the teacher's terms with spaced operators, and brackets wherever the order of
// operations decides something a reader could take otherwise (around a power's operands that are
// not single terms, and around a power that is negated).
void writeUnderstood(const Node& n, std::string& out)
{
    auto child = [&out](const Node& c, bool bracket) {
        if (bracket)
            out += '(';
        writeUnderstood(c, out);
        if (bracket)
            out += ')';
    };
    switch (n.op) {
    case Op::Number: out += n.shown; return;
    case Op::Constant:
    case Op::Variable: out += n.op == Op::Constant ? n.shown : n.name; return;
    case Op::Call:
        out += n.function->name;
        out += '(';
        writeUnderstood(*n.args[0], out);
        out += ')';
        return;
    case Op::Negate:
        out += '-';
        child(*n.args[0], binding(n.args[0]->op) <= 4 && n.args[0]->op != Op::Negate);
        return;
    case Op::Power:
        child(*n.args[0], binding(n.args[0]->op) <= 4);
        out += '^';
        child(*n.args[1], binding(n.args[1]->op) <= 4);
        return;
    default: break;
    }
    // A right operand of the same binding keeps its brackets even where algebra would drop them:
    // a + (b - c) is not rounded as a + b - c, and the text must say how the value is computed.
    const int b = binding(n.op);
    child(*n.args[0], binding(n.args[0]->op) < b);
    out += n.op == Op::Add ? " + " : n.op == Op::Subtract ? " - " : n.op == Op::Multiply ? "*" : "/";
    child(*n.args[1], binding(n.args[1]->op) <= b);
}

}  // namespace FuncGlobals::typed
