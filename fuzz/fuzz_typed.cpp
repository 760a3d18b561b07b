// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target: typed functions, read, compiled, differentiated and evaluated from arbitrary text.
#include <cstdio>
#include <cstdlib>

#include "fuzz/TypedProperties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string failure = fuzzing::checkTypedText(text);
    if (!failure.empty()) {
        std::fprintf(stderr, "property failed: %s\n", failure.c_str());
        std::abort();
    }
    return 0;
}
