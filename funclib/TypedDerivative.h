// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): the exact derivative. The tree is handed to
// GiNaC (parts without variables folded to one number first, each function as its row of the table
// writes it), GiNaC differentiates it, and the result comes back as fully bracketed muparser text.
#include <string>
#include <vector>

#include "funclib/TypedTree.h"

namespace FuncGlobals::typed {

struct ExactDerivative {
    std::string bracketed;  // for muparser; NaN wherever the function itself is undefined
    std::string shown;  // as GiNaC simplifies and prints it, with the table's names ("2*x^(-1)")
    std::string failure;  // when it was not found, why, in words; "" when it was
};

// The derivative of `tree` with respect to the first of `variables` (A to F are read as constants);
// `bracketed` is the function's own muparser text. Throws whatever GiNaC throws for an expression it
// refuses outright (a division by what simplifies to 0, a logarithm of 0).
ExactDerivative exactDerivative(const Node& tree, const std::vector<std::string>& variables,
                                const std::string& bracketed);

}  // namespace FuncGlobals::typed
