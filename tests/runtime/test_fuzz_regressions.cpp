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
