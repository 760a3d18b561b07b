// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): the tree a text is read into, the refusal the
// reader and the derivative throw, and the value of a tree in doubles, which folds the parts without
// variables and samples a part to see whether it is 0 everywhere.
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "funclib/TypedFunctions.h"

namespace FuncGlobals::typed {

enum class Op { Number, Variable, Constant, Negate, Add, Subtract, Multiply, Divide, Power, Call };

struct Node {
    Op op = Op::Number;
    double value = 0;  // Number; the constant's value for Constant
    std::string name;  // Variable and Constant: the name as the evaluators know it
    std::string shown;  // the literal as typed (Number) or the canonical name (Constant)
    const TypedFunctionRow* function = nullptr;  // Call: the row of the table, never null
    std::size_t at = 0;  // where it starts in the text, in bytes
    std::vector<std::unique_ptr<Node>> args;
};
using NodePtr = std::unique_ptr<Node>;

// Thrown by the reader with the reason and the place, and by the derivative for what GiNaC cannot
// be given; compile() turns it into words.
struct Refusal {
    std::string message;
};

// True when no variable (nor coefficient) occurs in the tree.
bool withoutVariables(const Node& n);

// The value of a tree in doubles with its variables at `at` (NaN where undefined); a tree without
// variables needs none.
double valueAt(const Node& n, const std::map<std::string, double>& at);
inline double fold(const Node& n) { return valueAt(n, {}); }

}  // namespace FuncGlobals::typed
