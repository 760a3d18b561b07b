// SPDX-License-Identifier: GPL-3.0-or-later
// The value of a typed function's tree in doubles (see TypedTree.h); the byte code evaluates the
// same operations, and each function through the same row of the table.
#include "funclib/TypedTree.h"

#include <cmath>

namespace FuncGlobals::typed {

bool withoutVariables(const Node& n)
{
    if (n.op == Op::Variable)
        return false;
    for (const NodePtr& a : n.args)
        if (!withoutVariables(*a))
            return false;
    return true;
}

double valueAt(const Node& n, const std::map<std::string, double>& at)
{
    auto arg = [&](int i) { return valueAt(*n.args[i], at); };
    switch (n.op) {
    case Op::Number:
    case Op::Constant: return n.value;
    case Op::Variable: {
        const auto found = at.find(n.name);
        return found == at.end() ? std::nan("") : found->second;
    }
    case Op::Negate: return -arg(0);
    case Op::Add: return arg(0) + arg(1);
    case Op::Subtract: return arg(0) - arg(1);
    case Op::Multiply: return arg(0) * arg(1);
    case Op::Divide: return arg(0) / arg(1);
    case Op::Power: return std::pow(arg(0), arg(1));
    case Op::Call: break;
    }
    return n.function->value(arg(0));
}

}  // namespace FuncGlobals::typed
