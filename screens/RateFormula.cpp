// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/RateFormula.h"

#include <vector>

#include "runtime/Numbers.h"

namespace {

// Splits "Ax + By + C" at its joining " + " into its terms, texts as they stand.
std::vector<std::string_view> terms(std::string_view formula)
{
    std::vector<std::string_view> out;
    std::size_t start = 0;
    for (;;) {
        const std::size_t plus = formula.find(" + ", start);
        out.push_back(formula.substr(start, plus == std::string_view::npos ? std::string_view::npos : plus - start));
        if (plus == std::string_view::npos)
            return out;
        start = plus + 3;
    }
}

}  // namespace

std::string FormulaWithCoefficients(std::string_view formula, std::string_view letters,
                                    const std::array<double, 3>& values)
{
    // The walk over the caption. A term holding a letter whose coefficient is 0 is cut whole: the
    // leading term with the " +" after it (its letter and the next three characters in the families
    // with two-character leading terms), a later term with the " + " before it. In a kept term a
    // letter of value 1 is dropped and any other letter becomes its value's trimmed text. A letter
    // that is not one of the family's own (the dx catalogue's "C*e^y") stays as written.
    auto valueOf = [&](char letter) -> const double* {
        const std::size_t i = letters.find(letter);
        return i == std::string_view::npos ? nullptr : &values[i];
    };
    std::string out;
    bool kept = false;
    const std::vector<std::string_view> parts = terms(formula);
    for (std::size_t t = 0; t < parts.size(); ++t) {
        std::string text;
        bool cut = false;
        for (char ch : parts[t]) {
            const double* v = valueOf(ch);
            if (!v)
                text += ch;
            else if (*v == 0)
                cut = true;
            else if (*v != 1)
                text += rt::Trim(rt::Str(*v));
        }
        if (cut) {
            if (t == 0 && parts.size() > 1)
                out = " ";  // what the leading cut leaves of the joining " + "
            continue;
        }
        if (kept && !text.empty() && text[0] == '-')
            out += " - " + text.substr(1);
        else
            out += (kept ? " + " : "") + text;
        kept = true;
    }
    return kept ? out : std::string();
}
