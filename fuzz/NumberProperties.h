// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The properties every input must keep in number reading and writing, shared by the fuzzer and by
// the regression test that replays what the fuzzer once found. Returns an empty string when all hold,
// otherwise a description of the first that failed.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "runtime/Numbers.h"

namespace fuzzing {

inline bool close(double a, double b, double relative) { return a == b || std::fabs(a - b) <= std::fabs(b) * relative; }

inline std::string checkNumberText(std::string_view text)
{
    double v = 0;
    try {
        v = rt::Val(text);
    } catch (const rt::RuntimeError& e) {
        // Only a number too large for a double may fail, and strict reading must fail alike.
        if (e.number() != rt::Overflow)
            return "Val raised " + std::to_string(e.number());
        try {
            rt::CDbl(text);
        } catch (const rt::RuntimeError& strict) {
            if (strict.number() == rt::Overflow || strict.number() == rt::TypeMismatch)
                return {};
            return "CDbl raised " + std::to_string(strict.number());
        }
        return "CDbl read a number that Val found too large";
    }
    if (!std::isfinite(v))
        return "Val gave a value that is not finite";
    // Strict reading, when it accepts the text, agrees with lenient reading.
    try {
        if (rt::CDbl(text) != v)
            return "CDbl and Val disagree";
    } catch (const rt::RuntimeError& e) {
        if (e.number() != rt::TypeMismatch && e.number() != rt::Overflow)
            return "CDbl raised " + std::to_string(e.number());
    }
    // What Str and the plain conversion write reads back to fifteen digits; the largest doubles may
    // round up past the double range, which reading reports as Overflow.
    for (const std::string& written : {rt::Str(v), rt::CStr(v)}) {
        double back = 0;
        try {
            back = rt::Val(written);
        } catch (const rt::RuntimeError&) {
            if (std::fabs(v) > 1.7976931348623e308)
                continue;
            return "reading back \"" + written + "\" failed";
        }
        if (!close(back, v, 1e-14))
            return "\"" + written + "\" reads back as another number";
    }
    if (!(rt::Str(v)[0] == ' ' || rt::Str(v)[0] == '-'))
        return "Str gave no sign position";
    // The same for the single nearest the value, to seven digits.
    if (std::fabs(v) <= 3.4028234e38) {
        const float f = static_cast<float>(v);
        for (const std::string& written : {rt::Str(f), rt::CStr(f)}) {
            const double back = rt::Val(written);
            if (!close(back, static_cast<double>(f), 1e-6))
                return "single \"" + written + "\" reads back as another number";
        }
    }
    return {};
}

}  // namespace fuzzing
