// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Helpers shared by the suites.
#include "runtime/RuntimeError.h"

// The number of the run-time error that `f` raises, or 0 when it raises none.
template <class F>
int errorOf(F&& f)
{
    try {
        f();
    } catch (const rt::RuntimeError& e) {
        return e.number();
    }
    return 0;
}
