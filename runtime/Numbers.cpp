// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Numbers.h"

#include <cerrno>
#include <cfloat>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale.h>

namespace rt {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the longest prefix of `s` that forms a decimal number: an optional sign, digits with at
// most one point (at least one digit in all), and an optional exponent with at least one digit.
// Returns 0 when no number starts there.
std::size_t numberLength(std::string_view s)
{
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        ++i;
    std::size_t digits = 0;
    while (i < s.size() && isDigit(s[i])) {
        ++i;
        ++digits;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && isDigit(s[i])) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0)
        return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-'))
            ++j;
        std::size_t expDigits = 0;
        while (j < s.size() && isDigit(s[j])) {
            ++j;
            ++expDigits;
        }
        if (expDigits > 0)
            i = j;
    }
    return i;
}

// Converts a text already known to be a well-formed decimal number, independently of the locale
// that the toolkit may have set. Nothing for a magnitude beyond the double range; a value too small
// for a double becomes 0 or a denormal, as strtod gives it.
std::optional<double> parseFinite(std::string_view number)
{
    static locale_t cLocale = newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
    std::string copy(number);
    errno = 0;
    double v = strtod_l(copy.c_str(), nullptr, cLocale);
    if (errno == ERANGE && std::isinf(v))
        return std::nullopt;
    return v;
}

// The same, raising Overflow where the number is beyond the double range.
double parseNumber(std::string_view number)
{
    const std::optional<double> v = parseFinite(number);
    if (!v)
        raise(Overflow);
    return *v;
}

struct Digits {
    std::string mantissa;  // significant digits, no trailing zeros, at least one digit
    int exponent = 0;  // decimal exponent of the first digit
};

Digits roundToDigits(double magnitude, int significant)
{
    Digits d;
    if (magnitude == 0.0) {
        d.mantissa = "0";
        return d;
    }
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*e", significant - 1, magnitude);
    const char* p = buf;
    for (; *p && *p != 'e'; ++p)
        if (isDigit(*p))
            d.mantissa.push_back(*p);
    d.exponent = std::atoi(p + 1);
    while (d.mantissa.size() > 1 && d.mantissa.back() == '0')
        d.mantissa.pop_back();
    return d;
}

// The shared number-to-text rule. `blank` gives a non-negative number its leading blank (Str);
// `zeroBeforePoint` writes "0.5" rather than ".5" (the plain conversion).
std::string format(double v, int significant, bool blank, bool zeroBeforePoint)
{
    if (std::isnan(v))
        return blank ? " NaN" : "NaN";
    if (std::isinf(v))
        return v < 0 ? "-inf" : (blank ? " inf" : "inf");
    const bool negative = v < 0;  // negative zero is written as zero
    Digits d = roundToDigits(std::fabs(v), significant);
    const int k = static_cast<int>(d.mantissa.size());
    const int e = d.exponent;
    const int afterPoint = std::max(0, k - 1 - e);

    std::string out;
    if (negative)
        out.push_back('-');
    else if (blank)
        out.push_back(' ');

    if (e < significant && afterPoint <= significant) {
        if (e >= 0) {
            for (int i = 0; i <= e; ++i)
                out.push_back(i < k ? d.mantissa[i] : '0');
            if (k - 1 > e) {
                out.push_back('.');
                out.append(d.mantissa, static_cast<std::size_t>(e + 1), std::string::npos);
            }
        } else {
            if (zeroBeforePoint)
                out.push_back('0');
            out.push_back('.');
            out.append(static_cast<std::size_t>(-e - 1), '0');
            out.append(d.mantissa);
        }
    } else {
        out.push_back(d.mantissa[0]);
        if (k > 1) {
            out.push_back('.');
            out.append(d.mantissa, 1, std::string::npos);
        }
        char exp[16];
        std::snprintf(exp, sizeof exp, "E%c%02d", e < 0 ? '-' : '+', std::abs(e));
        out.append(exp);
    }
    return out;
}

}  // namespace

std::optional<double> TryVal(std::string_view text)
{
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    std::string_view rest = text.substr(i);
    std::size_t n = numberLength(rest);
    return n == 0 ? std::optional<double>(0.0) : parseFinite(rest.substr(0, n));
}

double Val(std::string_view text)
{
    const std::optional<double> v = TryVal(text);
    if (!v)
        raise(Overflow);
    return *v;
}

double CDbl(std::string_view text)
{
    std::size_t b = 0, e = text.size();
    while (b < e && isBlank(text[b]))
        ++b;
    while (e > b && isBlank(text[e - 1]))
        --e;
    std::string_view body = text.substr(b, e - b);
    if (body.empty() || numberLength(body) != body.size())
        raise(TypeMismatch);
    return parseNumber(body);
}

std::string Str(double v) { return format(v, 15, true, false); }
std::string Str(float v) { return format(static_cast<double>(v), 7, true, false); }
std::string CStr(double v) { return format(v, 15, false, true); }
std::string CStr(float v) { return format(static_cast<double>(v), 7, false, true); }

std::string Trim(std::string_view text)
{
    std::size_t b = 0, e = text.size();
    while (b < e && text[b] == ' ')
        ++b;
    while (e > b && text[e - 1] == ' ')
        --e;
    return std::string(text.substr(b, e - b));
}

void raiseNonFinite() { raise(Overflow); }

void raiseDivision(double a, double b)
{
    if (!std::isfinite(a) || !std::isfinite(b))
        raise(Overflow);
    raise(a == 0.0 ? Overflow : DivisionByZero);
}

double Pow(double a, double b)
{
    Chk(a);
    Chk(b);
    if (a == 0.0 && b < 0.0)
        raise(DivisionByZero);
    if (a < 0.0 && b != std::floor(b))
        raise(InvalidProcedureCall);
    return Chk(std::pow(a, b));
}

namespace {

// Rounds half to even without a library call: adding and taking away 1.5 * 2^52 leaves the value
// rounded to a whole number in the default rounding mode. Valid for magnitudes below 2^51.
inline double roundHalfEven(double v)
{
    constexpr double magic = 6755399441055744.0;
    volatile double shifted = v + magic;  // kept apart so that the two steps are not folded away
    return shifted - magic;
}

// Rounds half to even into an integer type, Overflow outside its range (and for NaN or infinity).
template <class Integer>
Integer toInteger(double v)
{
    constexpr double lo = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr double hi = static_cast<double>(std::numeric_limits<Integer>::max());
    if (!(v > lo - 1.0 && v < hi + 1.0))
        raise(Overflow);
    const double r = roundHalfEven(v);
    if (r < lo || r > hi)
        raise(Overflow);
    return static_cast<Integer>(r);
}

}  // namespace

std::int16_t CInt(double v) { return toInteger<std::int16_t>(v); }
std::int32_t CLng(double v) { return toInteger<std::int32_t>(v); }

int Mod(int a, int b)
{
    if (b == 0)
        raise(DivisionByZero);
    return a % b;
}

}  // namespace rt
