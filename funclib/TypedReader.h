// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): the reader. It takes a text with the program's
// own grammar (the textbook's precedence, * written for every product, the functions of the table
// in TypedFunctions.h and no others) and returns its tree, or throws a Refusal with the reason and
// the place ("unknown name 'sinn' at 1").
#include <string>
#include <vector>

#include "funclib/TypedTree.h"

namespace FuncGlobals::typed {

// Reads `text` over `variables` (and A to F, e and pi); the tree is at most `maxDepth` levels deep.
NodePtr read(const std::string& text, const std::vector<std::string>& variables, int maxDepth);

}  // namespace FuncGlobals::typed
