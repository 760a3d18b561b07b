// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): the tree written out as text, for the teacher
// (the understood text) and for muparser (every operation bracketed, so that none of its own rules
// of precedence is left to decide anything).
#include <string>

#include "funclib/TypedTree.h"

namespace FuncGlobals::typed {

// A double with all its digits ("%.17g"), so that muparser reads back the same number.
std::string number(double v);

// Fully bracketed text for muparser: no rule of precedence is left to it.
void toMuparser(const Node& n, std::string& out);

// The understood text: the teacher's terms with spaced operators, and brackets wherever the order of
// operations decides something a reader could take otherwise.
void writeUnderstood(const Node& n, std::string& out);

}  // namespace FuncGlobals::typed
