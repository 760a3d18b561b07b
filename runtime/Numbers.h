// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Numbers as the classic run time treats them: lenient and strict reading of text, the number-to-text
// rules, floor, whole-number conversions with banker's rounding, single precision, and arithmetic that
// raises the run time's errors instead of producing infinities or NaNs.
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/RuntimeError.h"

namespace rt {

// Lenient reading: skips leading blanks, tabs and line breaks, then reads the longest leading part
// that forms a decimal number ("1.2.3" -> 1.2, "1e" -> 1, "abc" -> 0). Overflow for "1e999".
double Val(std::string_view text);
// Val's number without its error, for what the program does beyond a person's own action (a
// description, a copy, a table): nothing where Val would raise Overflow.
std::optional<double> TryVal(std::string_view text);

// Strict reading: the whole text, blanks around it aside, must be a decimal number; anything else
// raises Type mismatch (13). Overflow for a number beyond the double range.
double CDbl(std::string_view text);

// Number to text with a leading blank for a non-negative number: " .5", "-3", " 1E+15".
// Doubles keep 15 significant digits, singles 7.
std::string Str(double v);
std::string Str(float v);
inline std::string Str(int v) { return Str(static_cast<double>(v)); }

// The plain conversion of a number written into a box without Str: "0.5", "-2.5", "1E+15".
std::string CStr(double v);
std::string CStr(float v);
inline std::string CStr(int v) { return CStr(static_cast<double>(v)); }

// Removes blanks at both ends.
std::string Trim(std::string_view text);

// Floor: Int(-8.4) = -9. Whole-number conversion in registers for the magnitudes the program meets
// in its loops; the library floor for the rest (and for NaN and infinities).
inline double Int(double v)
{
    if (v > -4503599627370496.0 && v < 4503599627370496.0) {
        const double t = static_cast<double>(static_cast<long long>(v));
        return t > v ? t - 1.0 : t;
    }
    return std::floor(v);
}

// Raises Overflow (6) for an infinite or NaN value; returns the value otherwise. Every computed value
// passes through this before it is stored, compared or converted, as the classic run time checks
// each floating-point result.
[[noreturn]] void raiseNonFinite();
inline double Chk(double v)
{
    if (!std::isfinite(v)) [[unlikely]]
        raiseNonFinite();
    return v;
}

// Rounded half up to 1/scale, as the screens show results: Int(v * scale + 0.5) / scale, each step
// checked (Overflow (6) for a value too large to scale).
inline double RoundHalfUp(double v, double scale) { return Int(Chk(Chk(v * scale) + 0.5)) / scale; }

// a / b: Division by zero (11) for a non-zero a over 0, Overflow (6) for 0 / 0 or a result too large.
[[noreturn]] void raiseDivision(double a, double b);
inline double Div(double a, double b)
{
    if (b == 0.0 || !std::isfinite(a) || !std::isfinite(b)) [[unlikely]]
        raiseDivision(a, b);
    return Chk(a / b);
}

// a ^ b: 0 to a negative power is Division by zero (11); a negative base to a fractional power is
// Invalid procedure call (5); a result too large is Overflow (6).
double Pow(double a, double b);

// Conversions to 16-bit and 32-bit integers: round half to even, Overflow (6) out of range.
std::int16_t CInt(double v);
std::int32_t CLng(double v);

// Conversion to single precision: round to float, Overflow (6) beyond its range. Inline, as Chk is:
// the parametric plot converts twice a step.
inline float CSng(double v)
{
    if (!(std::fabs(v) <= static_cast<double>(FLT_MAX))) [[unlikely]]
        raiseNonFinite();
    return static_cast<float>(v);
}

// Integer remainder with the sign of the dividend; Division by zero (11) for a zero divisor.
int Mod(int a, int b);

}  // namespace rt
