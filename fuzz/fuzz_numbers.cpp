// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target: lenient and strict reading and the number-to-text rules on arbitrary bytes.
#include <cstdio>
#include <cstdlib>

#include "fuzz/NumberProperties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string failure = fuzzing::checkNumberText(text);
    if (!failure.empty()) {
        std::fprintf(stderr, "property failed: %s\n", failure.c_str());
        std::abort();
    }
    return 0;
}
