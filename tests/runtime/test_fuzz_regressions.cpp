// SPDX-License-Identifier: GPL-3.0-or-later
// Replays the fuzzer's seeds and every input it once found against the number properties.
#include <gtest/gtest.h>

#include "fuzz/NumberProperties.h"
#include "tests/TestSupport.h"

TEST(NumberTextProperties, HoldForTheSeedsAndEveryKeptFinding)
{
    const std::filesystem::path fuzz = std::filesystem::path(PLOTTO_SOURCE_DIR) / "fuzz";
    EXPECT_GE(replayEach({fuzz / "seeds", fuzz / "regressions"}, fuzzing::checkNumberText), 20);
}

TEST(NumberTextProperties, HoldForHandPickedEdges)
{
    for (const char* text : {"1.7976931348623157e308", "-4.9e-324", "2.2250738585072014e-308", "0.1", "1e15",
                             "999999999999999.5", "3.4028235e38", "1.17549435e-38", "-0"})
        EXPECT_EQ(fuzzing::checkNumberText(text), "") << text;
}
