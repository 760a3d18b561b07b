// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The Taylor polynomials of an explicit function about a centre a, term by term: the coefficients
// f^(k)(a)/k! from exact symbolic derivatives (GiNaC, through the typed functions' reader), exact
// where they are rational and as doubles, with words where a derivative does not exist at a or a
// number grows past what a double holds. A family is read as its typed formula with the values of
// its coefficients. Window-free: the Taylor screen draws and lists what this finds.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "funclib/Families.h"

namespace FuncGlobals {

struct TaylorTerm {
    enum class State { Found, Undefined, TooLarge };
    int degree = 0;
    State state = State::Found;
    std::string exact;  // f^(k)(a)/k! written exactly ("-1/6") where it is rational; "" otherwise
    double value = 0;  // f^(k)(a)/k! as a double (Found only)
    std::string why;  // for Undefined and TooLarge, in words
};

class TaylorSeries {
public:
    static constexpr int kMaxDegree = 30;

    // The series of a typed y = f(x) (x and A to E, the coefficients taken from `k`) about `centre`,
    // or of explicit family `family` (1 to ExplicitFamilyCount) read as its typed formula.
    static TaylorSeries ofText(const std::string& text, double centre, const CoefficientSet& k);
    static TaylorSeries ofFamily(int family, double centre, const CoefficientSet& k);

    TaylorSeries(TaylorSeries&&) noexcept;
    TaylorSeries& operator=(TaylorSeries&&) noexcept;
    ~TaylorSeries();

    // Why the function could not be read (the reader's refusal), "" when it was.
    const std::string& refusal() const { return refusal_; }
    double centre() const { return centre_; }

    // The term of degree k (0 to kMaxDegree), worked out on first asking together with those before
    // it. Once a term is Undefined or TooLarge, every later one is too.
    const TaylorTerm& term(int k);

    // P_n(x) from the double coefficients (every term up to n must have been asked for and Found;
    // NaN otherwise). No text, no GiNaC: one Horner pass, for the per-point loops.
    double polynomial(int n, double x) const;

    // The Lagrange bound of |f(x) - P_n(x)|: M |x - a|^(n+1) / (n+1)!, M the largest |f^(n+1)| over
    // samples between a and x. NaN where f^(n+1) is undefined or too large there.
    double lagrangeBound(int n, double x);

    // The term written as a formula about the centre: "-x^3/6", "(x - 1)^2/2", "0.540302(x - 1)".
    static std::string termText(const TaylorTerm& term, double centre);

private:
    TaylorSeries();
    struct Symbolic;
    std::unique_ptr<Symbolic> symbolic_;
    std::vector<TaylorTerm> terms_;
    // The bounds worked out, by degree: the x each was for and its value (a grid asks again per click).
    std::vector<std::pair<double, double>> bounds_;
    std::string refusal_;
    double centre_ = 0;
};

}  // namespace FuncGlobals
