// SPDX-License-Identifier: GPL-3.0-or-later
// Replays the fuzzer's seeds and every input it once found against the number properties.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fuzz/NumberProperties.h"

TEST(NumberTextProperties, HoldForTheSeedsAndEveryKeptFinding)
{
    int replayed = 0;
    for (const char* folder : {"fuzz/seeds", "fuzz/regressions"}) {
        const std::filesystem::path dir = std::filesystem::path(PLOTTO_SOURCE_DIR) / folder;
        if (!std::filesystem::exists(dir))
            continue;
        for (const auto& entry : std::filesystem::directory_iterator(dir)) {
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            EXPECT_EQ(fuzzing::checkNumberText(text), "") << entry.path();
            ++replayed;
        }
    }
    EXPECT_GE(replayed, 20);
}

TEST(NumberTextProperties, HoldForHandPickedEdges)
{
    for (const char* text : {"1.7976931348623157e308", "-4.9e-324", "2.2250738585072014e-308", "0.1", "1e15",
                             "999999999999999.5", "3.4028235e38", "1.17549435e-38", "-0"})
        EXPECT_EQ(fuzzing::checkNumberText(text), "") << text;
}
