// SPDX-License-Identifier: GPL-3.0-or-later
// Typed functions: what the reader takes and how it understands it, what it refuses and where, the
// values (gaps as NaN) and the exact derivatives, each against values worked out by hand.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <tuple>

#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "funclib/StepMethods.h"
#include "funclib/TypedFunctions.h"
#include "fuzz/TypedProperties.h"
#include "tests/TestSupport.h"

using namespace FuncGlobals;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

std::unique_ptr<TypedExpression> read(const std::string& text, VariableNames vars = {"x"})
{
    std::string error;
    auto e = TypedExpression::compile(text, vars, error);
    EXPECT_TRUE(e) << text << ": " << error;
    return e;
}

void expectValue(double expected, double actual, const std::string& what)
{
    if (std::isnan(expected))
        EXPECT_TRUE(std::isnan(actual)) << what << " gave " << actual;
    else
        EXPECT_NEAR(expected, actual, 1e-12 * std::max(1.0, std::fabs(expected))) << what;
}

}  // namespace

TEST(TypedExpression, ValuesAndExactDerivatives)
{
    Coefficients = {2, 3, 0.5, -1, 4, 0};
    const double e = std::exp(1.0), pi = std::acos(-1.0), s1 = std::sin(1.0), c1 = std::cos(1.0);
    // The value and the slope at x; NaN: a gap, or no derivative there.
    // clang-format off
    const struct { const char* name; const char* text; double x, value, slope; } cases[] = {
        {"coefficients inside", "A*sin(B*x + C) + D*x + E", 0.25, 2 * std::sin(1.25) - 0.25 + 4,
         6 * std::cos(1.25) - 1},
        {"power before unary minus", "-x^2", 3, -9, -6},
        {"numbers folded before x", "(5 - 3)*x + 6/4*x + 2^3*x", 4, 46, 11.5},
        {"a power of a power", "(x^2)^3", 2, 64, 192}, {"negative exponent", "2^-x", 1, 0.5, -0.5 * std::log(2.0)},
        {"gaussian", "exp(-x^2)", 1, std::exp(-1.0), -2 * std::exp(-1.0)},
        {"sinc", "sin(x)/x", 0.5, std::sin(0.5) / 0.5, std::cos(0.5) / 0.5 - std::sin(0.5) / 0.25},
        {"sinc at 0 is a gap", "sin(x)/x", 0, kNaN, kNaN}, {"ln is natural", "ln(x)", e, 1, 1 / e},
        {"semicircle", "sqrt(4 - x^2)", 1, std::sqrt(3.0), -1 / std::sqrt(3.0)},
        {"outside the semicircle", "sqrt(4 - x^2)", 3, kNaN, kNaN}, {"abs left", "abs(x)", -2, 2, -1},
        {"abs right", "abs(x)", 2, 2, 1}, {"abs corner has no slope", "abs(x)", 0, 0, kNaN},
        {"abs of a power tower", "abs(2^x^x)", 1, 2, 2 * std::log(2.0)},
        {"abs of a negative tower", "abs(-3^x^x)", 1, 3, 3 * std::log(3.0)},
        {"witch of Agnesi", "1/(1 + x^2)", 1, 0.5, -0.5}, {"pole is a gap", "1/x", 0, kNaN, kNaN},
        {"overflow is a gap", "exp(x)", 1000, kNaN, kNaN}, {"constants", "e^x + pi", 0, 1 + pi, 1},
        {"reciprocal trigonometry", "sec(x) + csc(x) + cot(x)", 1, 1 / c1 + 1 / s1 + 1 / std::tan(1.0),
         std::tan(1.0) / c1 - 1 / (s1 * std::tan(1.0)) - 1 / std::pow(s1, 2)},
        {"python power", "x**2", 3, 9, 6}, {"decimal exponent", "1.5e1*x", 2, 30, 15},
        {"blanks anywhere", "  x  *  x ", 4, 16, 8},
        {"huge constant power folded, not expanded", "9^(9^9) + x", 1, kNaN, kNaN}};
    // clang-format on
    for (const auto& c : cases) {
        const TypedFunction typed{read(c.text)};
        if (!typed.f)
            continue;
        expectValue(c.value, typed.value(c.x), std::string(c.name) + " value");
        expectValue(c.slope, typed.slope(c.x), std::string(c.name) + " slope");
    }
}

TEST(TypedExpression, RefusesWithReasonAndPlace)
{
    // clang-format off
    const std::pair<std::string, const char*> cases[] = {
        {"sinn(x)", "unknown name 'sinn' at 1"}, {"sin(x + (1 - x)", "missing ')' at 16"},
        {"(x + 1", "missing ')' at 7"}, {"x + 1)", "unexpected ')' at 6"},
        {"2x", "missing '*': write 2*x for a product at 2"},
        {"3 sin(x)", "missing '*': write 3*sin for a product at 3"},
        {"x(x + 1)", "missing '*': write x*( for a product at 2"}, {"x +", "missing a term after '+' at 4"},
        {"x - ", "missing a term after '-' at 5"}, {"2*-", "missing a term after '-' at 4"},
        {"x * / 2", "missing a term before '/' at 5"}, {"", "nothing typed: type a function, for example x^2 - 4 at 1"},
        {"sin x", "missing '(' after 'sin' at 5"}, {"y + 1", "unknown name 'y' at 1"},
        {"a*x", "unknown name 'a' at 1 (the coefficients are the capitals A to F)"},
        {"Ax", "unknown name 'Ax' at 1: write A*x for a product"}, {"x # 2", "unexpected character '#' at 3"},
        {"x × 2", "unexpected character '×' at 3"}, {"max(x, 2)", "unknown name 'max' at 1"},
        {"sin(x, 2)", "unexpected ',' (each function takes one argument) at 6"}, {"1e999", "number too large at 1"},
        {std::string(TypedExpression::MaxLength + 1, 'x'), "too long: at most 240 characters"},
        {std::string(70, '-') + "x", "too deeply nested at 61"}};
    // clang-format on
    std::string error;
    for (const auto& [text, message] : cases) {
        EXPECT_FALSE(TypedExpression::compile(text, {"x"}, error)) << text;
        EXPECT_EQ(error, message) << text;
    }
    EXPECT_TRUE(TypedExpression::compile(std::string(100, '(') + "x" + std::string(100, ')'), {"x"}, error));
}

TEST(TypedExpression, UnderstoodTextShowsTheOrderOfOperations)
{
    const std::pair<const char*, const char*> cases[] = {
        {"-x^2", "-(x^2)"},       {"2^3^2", "2^(3^2)"},   {"x^3-2*x-5", "x^3 - 2*x - 5"}, {"x-(1-x)", "x - (1 - x)"},
        {"(x-1)-x", "x - 1 - x"}, {"1/(2*x)", "1/(2*x)"}, {"(-x)^2", "(-x)^2"},           {"LOG(x)", "ln(x)"},
        {"arcsin(x)", "asin(x)"}, {"(x^2)^3", "(x^2)^3"}, {"x^x^2", "x^(x^2)"},
    };
    for (const auto& [typed, understood] : cases) {
        auto f = read(typed);
        ASSERT_TRUE(f);
        EXPECT_EQ(f->understood(), understood) << typed;
    }
}

// The derivative as a textbook writes it: falling powers, terms without x last, " - " for a negative
// term, and the same order inside brackets; and the text shown reads back as the same function.
TEST(TypedExpression, DerivativesAreShownInTextbookOrder)
{
    // clang-format off
    const std::pair<const char*, const char*> cases[] = {
        {"x^3 - 2*x - 5", "3*x^2 - 2"}, {"5 - x^4 + 3*x", "-4*x^3 + 3"}, {"x^2 - x", "2*x - 1"},
        {"sin(x) + x^2", "2*x + cos(x)"}, {"(x - 1)^3", "3*(x - 1)^2"}, {"exp(-x)", "-exp(-x)"}, {"1/x", "-x^(-2)"},
        {"ln(x^2)", "2*x^(-1)"}, {"7", "0"}};
    // clang-format on
    for (const auto& [typed, text] : cases) {
        auto f = read(typed);
        ASSERT_TRUE(f && f->derivative()) << typed;
        EXPECT_EQ(f->derivativeText(), text) << typed;
        auto shown = read(f->derivativeText());
        ASSERT_TRUE(shown) << text;
        for (double x : {0.5, 1.5, 3.0})
            EXPECT_NEAR((*shown)(x), (*f->derivative())(x), 1e-12 * (1 + std::fabs((*shown)(x)))) << typed;
    }
}
// Every row of the table of functions, by each name it may be typed by: the byte code computes the
// row's value, undefined outside its domain; x*f(x) has an exact derivative that agrees with a
// central difference, is written with the table's names and reads back as the same function; a
// part that is 0 everywhere is kept from GiNaC exactly where the row is undefined at 0; and the
// entry's help says every name.
TEST(TypedFunctions, EveryRowReadsEvaluatesAndDifferentiates)
{
    Coefficients = {};
    const double samples[] = {-2.5, -0.9, -0.3, 0.2, 0.6, 1.7, 3.1};
    for (const TypedFunctionRow& row : typedFunctions()) {
        const std::string name = row.name;
        std::vector<std::string> spellings = {name, std::string(1, static_cast<char>(std::toupper(name[0]))) +
                                                        name.substr(1)};
        for (const char* alias : row.aliases)
            if (alias)
                spellings.emplace_back(alias);
        for (const std::string& typed : spellings) {
            auto f = read(typed + "(x)");
            ASSERT_TRUE(f);
            EXPECT_EQ(f->understood(), name + "(x)") << typed;
        }
        auto f = read("x*" + name + "(x)");
        ASSERT_TRUE(f && f->derivative()) << name << ": " << (f ? f->derivativeText() : "");
        const auto& symbolic = symbolicNames();
        if (std::any_of(symbolic.begin(), symbolic.end(), [&](const auto& s) { return s.second == &row; })) {
            EXPECT_NE(f->derivativeText().find(name + "("), std::string::npos) << f->derivativeText();
        }
        auto shown = read(f->derivativeText());
        ASSERT_TRUE(shown) << name;
        for (double x : samples) {
            const std::string at = name + " at " + std::to_string(x);
            if (row.definedAt && !row.definedAt(x)) {
                EXPECT_TRUE(std::isnan((*f)(x))) << at;
                continue;
            }
            EXPECT_EQ((*f)(x), x * row.value(x)) << at;
            const double h = 1e-6, difference = ((*f)(x + h) - (*f)(x - h)) / (2 * h);
            const double slope = (*f->derivative())(x);
            EXPECT_NEAR(slope, difference, 1e-6 * std::max(1.0, std::fabs(slope))) << at;
            EXPECT_NEAR((*shown)(x), slope, 1e-12 * std::max(1.0, std::fabs(slope))) << at;
        }
        // The domain: finite for every finite argument or not, as the row says; and f(x) - f(x), whose
        // exact derivative is 0, has a slope exactly where it has a value.
        const double far[] = {1e300, -1e300, 1000.0, -1000.0};
        if (!row.definedAt) {
            EXPECT_EQ(std::all_of(far, far + 4, [&](double x) { return std::isfinite(row.value(x)); }), !row.overflows)
                << name;
        }
        auto nothing = read(name + "(x) - " + name + "(x)");
        ASSERT_TRUE(nothing && nothing->derivative()) << name;
        for (double x : {-2.5, -0.3, 0.6, 1.7, 1000.0, -1000.0})
            EXPECT_EQ(std::isnan((*nothing)(x)), std::isnan((*nothing->derivative())(x))) << name << " at " << x;
        auto zero = read(name + "(x - x)");
        ASSERT_TRUE(zero);
        EXPECT_EQ(zero->derivativeText() == "no derivative: part of the expression is 0 where it divides or is a base",
                  !std::isfinite(row.value(0)))
            << name;
    }
    EXPECT_EQ(typedFunctionsHelp(), "sin cos tan cot sec csc asin acos atan sinh cosh tanh exp sqrt abs, and ln or "
                                    "log, both the natural logarithm");
}

TEST(TypedExpression, ReadsTheCoefficientsAtEachEvaluation)
{
    auto f = read("A*x + B");
    ASSERT_TRUE(f && f->derivative());
    Coefficients = {2, 1, 0, 0, 0, 0};
    EXPECT_EQ((*f)(3), 7);
    Coefficients.A = -1;
    EXPECT_EQ(std::pair((*f)(3), (*f->derivative())(3)), std::pair(-2.0, -1.0));
}

TEST(TypedSources, RatesAndCurvesName_TheTextAtFault)
{
    std::string error;
    EXPECT_FALSE(TypedRates::make("x - t", "1", error));
    EXPECT_EQ(error, "dy: unknown name 't' at 5");
    EXPECT_FALSE(TypedCurve::make("t - sin(t)", "1 - cos(x)", error));
    EXPECT_EQ(error, "y(t): unknown name 'x' at 9");
    auto rates = TypedRates::make("x - y^2", "1", error);
    ASSERT_TRUE(rates) << error;
    EXPECT_EQ((*rates->dy)(2, 3), -7);
}

TEST(TypedSources, DispatchFallsBackToTheFamilies)
{
    std::string error;
    auto typed = TypedFunction::make("x^2 - 4", error);
    ASSERT_TRUE(typed);
    FunctionId = 2;
    Coefficients = {1, 0, 1, 0, 0, 0};  // family 2: x^2 + 1
    TypedExplicit = nullptr;
    EXPECT_EQ(std::pair(ExplicitValue(3), ExplicitSlope(3)), std::pair(10.0, 6.0));
    TypedExplicit = typed.get();
    EXPECT_EQ(std::pair(ExplicitValue(3), ExplicitSlope(3)), std::pair(5.0, 6.0));
    EXPECT_FALSE(ExplicitDefined(std::nan("")));
    EXPECT_EQ(YFunc(3), 10);  // the family procedure itself is untouched by the typed selection
    auto underived = TypedFunction::make("x + 1/(x - x)", error);  // no derivative: its slopes are gaps
    ASSERT_TRUE(underived) << error;
    TypedExplicit = underived.get();
    double xs[] = {1, 2}, slopes[] = {0, 0};
    ExplicitSlopes(xs, slopes, 2);
    EXPECT_TRUE(std::isnan(slopes[0]) && std::isnan(slopes[1]));
    TypedExplicit = nullptr;

    auto firstStageVertical = TypedRates::make("1", "x", error);
    TypedRate = firstStageVertical.get();
    EXPECT_TRUE(std::isnan(StepMethods::step(StepMethods::byKey("rk4"), 0, 0, 1)));  // dx = 0 at the first stage
    // Every step method gives over typed rates the very steps it gives over the equal family (whose
    // steps the catalogue's tests work out by hand), and NaN where dx is 0 (no step, no error).
    auto same = TypedRates::make("A*x + B*y + C", "D*x + E*y + F", error);
    auto vertical = TypedRates::make("1", "0", error);
    ASSERT_TRUE(same && vertical);
    DyFuncId = DxFuncId = 1;
    Coefficients = {-1.5, 0.25, 2, 0.75, 1, -0.5};
    for (const StepMethods::Method& m : StepMethods::all()) {
        for (const auto& [x, y, h] :
             {std::tuple(4.0, 3.0, 0.1), std::tuple(-2.5, 1.25, -0.3), std::tuple(0.7, -3.1, 1.0)}) {
            TypedRate = nullptr;
            const double family = StepMethods::step(m, x, y, h);
            TypedRate = same.get();
            EXPECT_EQ(StepMethods::step(m, x, y, h), family) << m.key << " from " << x << ", " << y;
        }
        TypedRate = vertical.get();
        EXPECT_TRUE(std::isnan(StepMethods::step(m, 0, 0, 1))) << m.key;
    }
    TypedRate = nullptr;
}

TEST(TypedProperties, HoldForTheSeedsAndEveryKeptFinding)
{
    const std::filesystem::path fuzz = std::filesystem::path(PLOTTO_SOURCE_DIR) / "fuzz";
    EXPECT_GE(replayEach({fuzz / "typed-seeds", fuzz / "typed-regressions"}, fuzzing::checkTypedText), 15);
}

TEST(ExplicitSnapshot, EvaluatesWhatWasInUseAndPutsBackWhatIsInUseNow)
{
    using What = ExplicitSnapshot::What;
    struct Restore {
        std::int16_t id = FunctionId;
        CoefficientSet k = Coefficients;
        ~Restore() { FunctionId = id, Coefficients = k, TypedExplicit = nullptr; }
    } restore;
    FunctionId = 8;  // y = A*Ln(Bx + C) + D
    Coefficients = {2, 1, 0, 1, 0, 0};
    const ExplicitSnapshot logarithm(What::Value, nullptr), slope(What::Slope, nullptr);
    std::string error;
    const auto typed = TypedFunction::make("1/(x - A)", error);
    ASSERT_TRUE(typed) << error;
    Coefficients.A = 3;
    const ExplicitSnapshot pole(What::Value, typed);

    // Something else entirely in use when they are evaluated.
    FunctionId = 1;
    Coefficients = {5, 5, 5, 5, 5, 5};
    TypedExplicit = nullptr;
    const std::vector<double> logs = logarithm.at({std::exp(1.0), 1, -1, 0});
    EXPECT_DOUBLE_EQ(logs[0], 3);
    EXPECT_DOUBLE_EQ(logs[1], 1);
    EXPECT_TRUE(std::isnan(logs[2]) && std::isnan(logs[3])) << "undefined where the family is, not its 0";
    EXPECT_DOUBLE_EQ(slope.at(0.5), 4);  // (2 ln x)' = 2 / x
    EXPECT_DOUBLE_EQ(pole.at(4), 1);
    EXPECT_TRUE(std::isnan(pole.at(3)));
    EXPECT_EQ(std::tuple(int(FunctionId), Coefficients.A, Coefficients.F, TypedExplicit),
              std::tuple(1, 5.0, 5.0, static_cast<const TypedFunction*>(nullptr)));
    // A family's overflow is a gap in a snapshot, never a run-time error.
    FunctionId = 9;  // y = A*e^(Bx + C) + D
    Coefficients = {1, 1, 0, 0, 0, 0};
    const ExplicitSnapshot growth(What::Value, nullptr);
    EXPECT_TRUE(std::isnan(growth.at(1e6)));
    EXPECT_DOUBLE_EQ(growth.at(0), 1);
}
