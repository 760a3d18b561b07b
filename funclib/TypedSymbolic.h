// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): a read tree as GiNaC's expression, for the
// exact derivative (TypedDerivative.cpp, which defines these) and for the exact Taylor coefficients
// (TaylorSeries.cpp).
#include <map>
#include <string>
#include <vector>

#include <ginac/ginac.h>

#include "funclib/TypedTree.h"

namespace FuncGlobals::typed {

// True when some divisor, power base or logarithm's argument in the tree is 0 wherever it is
// evaluated (`names`: the variables and coefficients to sample). GiNaC throws from the middle of its
// own code for such a tree, so it is never handed one.
bool dividesByZero(const Node& n, const std::vector<std::string>& names);

// A number as GiNaC keeps it: exact for a decimal text of at most 15 digits ("0.1" is 1/10), a float
// otherwise; throws Refusal for a number that is not finite.
GiNaC::ex exactNumber(double v, const std::string& shown);

// The tree over `symbols` (each variable and coefficient by its name); parts without variables are
// folded to one number first.
GiNaC::ex toGinac(const Node& n, const std::map<std::string, GiNaC::realsymbol>& symbols);

}  // namespace FuncGlobals::typed
