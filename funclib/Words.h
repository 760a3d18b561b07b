// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The sentences funclib writes for a teacher (a typed function's refusal, a Taylor series' reason),
// each a whole English template with numbered arguments ("unknown name '%1' at %2").
//
// funclib has no Qt: it fills a template in English (`fill`) and hands the text on as before. The Qt
// layer, which shows it, finds the template the text was made from (i18n::words in
// graphwin/Language.h reads `templates()`) and shows the template's translation with the same
// arguments, so that a translator gets whole sentences and may put the arguments in any order.
// QT_TRANSLATE_NOOP marks each template for lupdate, in the one context "Plotto".
#include <string>
#include <vector>

#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x  // as QtCore defines it, for lupdate to find the templates
#endif

namespace FuncGlobals::words {

// The typed functions' refusals (TypedReader, TypedExpression, TypedDerivative, FunctionSource).
// A place is 1-based, in characters.
inline constexpr const char* nothingTyped =
    QT_TRANSLATE_NOOP("Plotto", "nothing typed: type a function, for example x^2 - 4 at %1");
inline constexpr const char* unexpectedClose = QT_TRANSLATE_NOOP("Plotto", "unexpected ')' at %1");
inline constexpr const char* tooDeep = QT_TRANSLATE_NOOP("Plotto", "too deeply nested at %1");
inline constexpr const char* termAfter = QT_TRANSLATE_NOOP("Plotto", "missing a term after '%1' at %2");
inline constexpr const char* term = QT_TRANSLATE_NOOP("Plotto", "missing a term at %1");
inline constexpr const char* termBeforeClose = QT_TRANSLATE_NOOP("Plotto", "missing a term before ')' at %1");
inline constexpr const char* termBefore = QT_TRANSLATE_NOOP("Plotto", "missing a term before '%1' at %2");
inline constexpr const char* missingClose = QT_TRANSLATE_NOOP("Plotto", "missing ')' at %1");
inline constexpr const char* oneArgument =
    QT_TRANSLATE_NOOP("Plotto", "unexpected ',' (each function takes one argument) at %1");
inline constexpr const char* decimalComma = QT_TRANSLATE_NOOP(
    "Plotto", "unexpected ',' (write decimals with a point, and each function takes one argument) at %1");
inline constexpr const char* character = QT_TRANSLATE_NOOP("Plotto", "unexpected character '%1' at %2");
// %1 and %2 are the two terms typed side by side; %3 is the place.
inline constexpr const char* product = QT_TRANSLATE_NOOP("Plotto", "missing '*': write %1*%2 for a product at %3");
inline constexpr const char* digit = QT_TRANSLATE_NOOP("Plotto", "a number needs a digit at %1");
inline constexpr const char* tooLarge = QT_TRANSLATE_NOOP("Plotto", "number too large at %1");
inline constexpr const char* openAfter = QT_TRANSLATE_NOOP("Plotto", "missing '(' after '%1' at %2");
inline constexpr const char* lowerCoefficient =
    QT_TRANSLATE_NOOP("Plotto", "unknown name '%1' at %2 (the coefficients are the capitals A to F)");
inline constexpr const char* unknownProduct =
    QT_TRANSLATE_NOOP("Plotto", "unknown name '%1' at %4: write %2*%3 for a product");
inline constexpr const char* unknownName = QT_TRANSLATE_NOOP("Plotto", "unknown name '%1' at %2");
inline constexpr const char* tooLong = QT_TRANSLATE_NOOP("Plotto", "too long: at most %1 characters");
inline constexpr const char* notEvaluated = QT_TRANSLATE_NOOP("Plotto", "cannot be evaluated");
inline constexpr const char* noDerivativeEvaluated =
    QT_TRANSLATE_NOOP("Plotto", "no derivative: it cannot be evaluated");
inline constexpr const char* noDerivativeGinac =
    QT_TRANSLATE_NOOP("Plotto", "no derivative: the expression is undefined everywhere or cannot be differentiated");
inline constexpr const char* noDerivativeZero =
    QT_TRANSLATE_NOOP("Plotto", "no derivative: part of the expression is 0 where it divides or is a base");
inline constexpr const char* noDerivativeFunction =
    QT_TRANSLATE_NOOP("Plotto", "no derivative: it uses a function that cannot be differentiated here");

// The Taylor series' reasons (TaylorSeries); f^(%1)(a) is the derivative of that order at the centre.
inline constexpr const char* noFunction = QT_TRANSLATE_NOOP("Plotto", "no function chosen");
inline constexpr const char* hugeExponent =
    QT_TRANSLATE_NOOP("Plotto", "an exponent of %1 is too large to work out exactly");
inline constexpr const char* zeroDivides =
    QT_TRANSLATE_NOOP("Plotto", "part of the expression is 0 where it divides or is a base");
inline constexpr const char* notExact = QT_TRANSLATE_NOOP("Plotto", "the expression cannot be worked out exactly");
inline constexpr const char* coefficientTooLarge =
    QT_TRANSLATE_NOOP("Plotto", "the coefficient is too large for double precision");
inline constexpr const char* noValue = QT_TRANSLATE_NOOP("Plotto", "f(a) does not exist");
inline constexpr const char* noDerivativeAt = QT_TRANSLATE_NOOP("Plotto", "f^(%1)(a) does not exist");
inline constexpr const char* derivativeTooLong =
    QT_TRANSLATE_NOOP("Plotto", "the derivative grows too long to work out");

// The limits screen's findings (EpsilonDelta). A side's behaviour is a clause of its own ("tends to
// %1"), put into the sentence about both sides; the right side's clause drops "tends" when the left
// side's says it already ("The left side tends to 1 and the right side to 2").
inline constexpr const char* aNumber = QT_TRANSLATE_NOOP("Plotto", "a must be a number.");
inline constexpr const char* bothSides = QT_TRANSLATE_NOOP(
    "Plotto", "Both sides tend to %1: L = %1 at a = %2 (estimated from x = a +- h, h halving to %3 times "
              "max(1, |a|); the last values agree to %4).");
inline constexpr const char* onlyRight = QT_TRANSLATE_NOOP(
    "Plotto",
    "f is defined only on the right of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).");
inline constexpr const char* onlyLeft = QT_TRANSLATE_NOOP(
    "Plotto",
    "f is defined only on the left of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).");
inline constexpr const char* noLimitUndefined =
    QT_TRANSLATE_NOOP("Plotto", "f is not defined near a = %1 on either side: no limit there.");
inline constexpr const char* sidesDiffer =
    QT_TRANSLATE_NOOP("Plotto", "The left side %1 and the right side %2: no limit at a = %3.");
inline constexpr const char* tendsToInfinity = QT_TRANSLATE_NOOP("Plotto", "tends to infinity");
inline constexpr const char* tendsToMinusInfinity = QT_TRANSLATE_NOOP("Plotto", "tends to -infinity");
//: what one side of a does as x nears a ("The left side tends to 1 and ...")
inline constexpr const char* tendsTo = QT_TRANSLATE_NOOP("Plotto", "tends to %1");
inline constexpr const char* toInfinity = QT_TRANSLATE_NOOP("Plotto", "to infinity");
inline constexpr const char* toMinusInfinity = QT_TRANSLATE_NOOP("Plotto", "to -infinity");
//: the right side's clause when the left side's said "tends" ("... and the right side to 2")
inline constexpr const char* to = QT_TRANSLATE_NOOP("Plotto", "to %1");
inline constexpr const char* unsettled = QT_TRANSLATE_NOOP("Plotto", "does not settle");
inline constexpr const char* undefinedSide = QT_TRANSLATE_NOOP("Plotto", "is undefined");
inline constexpr const char* epsilonPositive = QT_TRANSLATE_NOOP("Plotto", "ε must be a positive number.");
inline constexpr const char* aAndL = QT_TRANSLATE_NOOP("Plotto", "a and L must be numbers.");
inline constexpr const char* outsideWindow = QT_TRANSLATE_NOOP(
    "Plotto", "a = %1 is not inside the window from %2 to %3: move a or widen the window to look for δ.");
inline constexpr const char* belowRounding = QT_TRANSLATE_NOOP(
    "Plotto", "ε = %1 is below what rounding in f lets the computer tell apart from L = %2 (it must be at least "
              "%3): no δ is looked for.");
inline constexpr const char* noDeltaUndefined =
    QT_TRANSLATE_NOOP("Plotto", "f is not defined near a = %1 on either side: no δ can be looked for.");
inline constexpr const char* noDelta = QT_TRANSLATE_NOOP(
    "Plotto", "For ε = %1 no δ works: points arbitrarily close to a leave the band (even x = %2 has |f(x) - L| = "
              "%3, not below ε).");
inline constexpr const char* edgeDelta = QT_TRANSLATE_NOOP(
    "Plotto", "For ε = %1 no x of the window leaves the band: δ = %2 is the distance from a to the window's nearer "
              "edge.");
inline constexpr const char* largestDelta =
    QT_TRANSLATE_NOOP("Plotto", "For ε = %1 the largest δ is %2: the graph first leaves the band at x = %3 (f = %4).");
// %1 is the sentence saying what was found.
inline constexpr const char* onlyLeftCounts =
    QT_TRANSLATE_NOOP("Plotto", "%1 f is not defined to the right of a: only x where it is defined count.");
inline constexpr const char* onlyRightCounts =
    QT_TRANSLATE_NOOP("Plotto", "%1 f is not defined to the left of a: only x where it is defined count.");
inline constexpr const char* gapsDoNotCount = QT_TRANSLATE_NOOP(
    "Plotto", "%1 f is undefined at some x of the window: they are not in its domain and do not count.");

// The area screen's crossings and reasons (screens/AreaBetween), and the convergence tables' notes,
// summaries and labels (screens/Convergence, whose numbers are %.10g, %.3e and %.2f texts).
inline constexpr const char* scanned = QT_TRANSLATE_NOOP("Plotto", "x = %1 (f = g at a scanned point)");
inline constexpr const char* signChange = QT_TRANSLATE_NOOP("Plotto", "x = %1 (sign change, TOMS 748)");
inline constexpr const char* touch =
    QT_TRANSLATE_NOOP("Plotto", "x = %1 (touch without sign change, Brent minimum of |f - g|)");
inline constexpr const char* stretch = QT_TRANSLATE_NOOP("Plotto", "x = %1 to %2 (f = g all along)");
inline constexpr const char* curveGaps = QT_TRANSLATE_NOOP("Plotto", "a curve is not defined everywhere on [a, b]");
inline constexpr const char* jumps =
    QT_TRANSLATE_NOOP("Plotto", "f - g jumps across 0 without crossing it near x = %1");
inline constexpr const char* unsettledIntegral = QT_TRANSLATE_NOOP(
    "Plotto", "the integral of f - g does not settle between x = %1 and x = %2 (f - g is unbounded there, or "
              "oscillates faster than the adaptive rule can follow)");
inline constexpr const char* noArea = QT_TRANSLATE_NOOP("Plotto", "No area: %1.");
inline constexpr const char* signedArea =
    QT_TRANSLATE_NOOP("Plotto", "Signed area %1 (adaptive Gauss-Kronrod, 61 points, split at the crossings)");
inline constexpr const char* noValueBecause = QT_TRANSLATE_NOOP("Plotto", "no value: %1");
//: a convergence table's cell: the error is below the reference's own accuracy %1
inline constexpr const char* below = QT_TRANSLATE_NOOP("Plotto", "below %1");
//: a convergence table's cell: the row's value is the reference itself
inline constexpr const char* reference = QT_TRANSLATE_NOOP("Plotto", "(reference)");
//: a convergence table's cell in place of a ratio, explained by the round-off note under the table
inline constexpr const char* roundOff = QT_TRANSLATE_NOOP("Plotto", "round-off");
inline constexpr const char* roundOffNote = QT_TRANSLATE_NOOP(
    "Plotto", "round-off: an error below %1 is mostly the rounding of double-precision arithmetic over the "
              "steps, not the method's own error, so its ratio is not shown.");
//: the label of a reference line of slope -%1 on the log-log plot
inline constexpr const char* slope = QT_TRANSLATE_NOOP("Plotto", "slope %1");
inline constexpr const char* nOdd = QT_TRANSLATE_NOOP("Plotto", "n odd");
inline constexpr const char* noValueCell = QT_TRANSLATE_NOOP("Plotto", "no value");
inline constexpr const char* undefinedAt = QT_TRANSLATE_NOOP("Plotto", "undefined at x = %1");
inline constexpr const char* errorValue = QT_TRANSLATE_NOOP("Plotto", "error value");
inline constexpr const char* integralGaps = QT_TRANSLATE_NOOP(
    "Plotto", "The function is not defined everywhere on the interval (for example at x = %1): the integral does "
              "not exist there.");
inline constexpr const char* integralUnbounded =
    QT_TRANSLATE_NOOP("Plotto", "The function is unbounded on the interval: the integral does not exist there.");
inline constexpr const char* exactValue =
    QT_TRANSLATE_NOOP("Plotto", "Exact value %1 (adaptive Gauss-Kronrod, 61 points)");
inline constexpr const char* integralFault = QT_TRANSLATE_NOOP("Plotto", "The integral cannot be computed: %1.");
inline constexpr const char* referenceEndpoint = QT_TRANSLATE_NOOP(
    "Plotto", "Reference endpoint y = %1 (adaptive Runge-Kutta-Fehlberg 7(8) in extended precision; accurate to %2)");
inline constexpr const char* verticalBeforeEnd = QT_TRANSLATE_NOOP(
    "Plotto", "The curve meets a vertical slope before the end x: there is no endpoint to compare with.");
inline constexpr const char* referenceFault = QT_TRANSLATE_NOOP("Plotto", "The reference cannot be computed: %1.");
inline constexpr const char* endUnreached =
    QT_TRANSLATE_NOOP("Plotto", "The adaptive integration could not reach the end x (the slope grows without bound).");
//: a row of the step methods' table: the step h (%1) and how many steps reach the end x (%2)
inline constexpr const char* stepRow = QT_TRANSLATE_NOOP("Plotto", "%1 (%2 steps)");
inline constexpr const char* meetsVertical = QT_TRANSLATE_NOOP("Plotto", "meets a vertical slope");
inline constexpr const char* leavesWindow = QT_TRANSLATE_NOOP("Plotto", "leaves the window");

// The entry's help, after the other functions' names (%1): ln (%2) or log (%3).
inline constexpr const char* naturalLogarithm =
    QT_TRANSLATE_NOOP("Plotto", "%1, and %2 or %3, both the natural logarithm");

//: which of two typed texts a refusal is about ("dy: missing ')' at 3"): %1 names the text (dy, dx,
//: x(t), y(t)) and %2 is the refusal
inline constexpr const char* inText = QT_TRANSLATE_NOOP("Plotto", "%1: %2");

// Every template, the more particular before the more general where one text could fit two (the
// unknown name with a hint before the plain one; "%1: %2" last).
const std::vector<const char*>& templates();

// `pattern` with %1, %2... replaced by `args` (in one pass: an argument's own % signs stay).
std::string fill(const char* pattern, const std::vector<std::string>& args);

}  // namespace FuncGlobals::words
