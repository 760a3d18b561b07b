// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A fixed array with the bounds the program declares (for example 0 to 20), whose every access is
// checked: an index outside the bounds raises Subscript out of range (9).
#include <array>
#include <cstddef>

#include "runtime/RuntimeError.h"

namespace rt {

template <class T, int Lo, int Hi>
class BoundedArray {
    static_assert(Lo <= Hi);

public:
    static constexpr int lower = Lo;
    static constexpr int upper = Hi;

    T& operator[](long index)
    {
        check(index);
        return items_[static_cast<std::size_t>(index - Lo)];
    }
    const T& operator[](long index) const
    {
        check(index);
        return items_[static_cast<std::size_t>(index - Lo)];
    }

private:
    static void check(long index)
    {
        if (index < Lo || index > Hi)
            raise(SubscriptOutOfRange);
    }
    std::array<T, static_cast<std::size_t>(Hi - Lo + 1)> items_{};
};

}  // namespace rt
