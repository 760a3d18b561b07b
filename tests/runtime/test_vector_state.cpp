// SPDX-License-Identifier: GPL-3.0-or-later
// The vector-state helper: an AVX instruction leaves the upper state dirty where the CPU reports it,
// and the boundary helper notes that and leaves it clean.
#include <gtest/gtest.h>

#include "runtime/VectorState.h"

#if defined(__x86_64__)

namespace {
// A 256-bit load that the compiler does not see, so that it adds no VZEROUPPER after it: the state
// is left dirty, as a toolkit routine may leave it.
void useUpperHalves(float* out)
{
    static const float one = 1.5f;
    __asm__ volatile("vbroadcastss (%1), %%ymm1\n\tvmovss %%xmm1, (%0)" : : "r"(out), "r"(&one) : "xmm1", "memory");
}
}  // namespace

TEST(VectorState, TheBoundaryHelperNotesAndClearsADirtyState)
{
    if (!rt::vectorStateReported() || !__builtin_cpu_supports("avx"))
        GTEST_SKIP() << "this CPU does not report its upper vector state";
    float out[1] = {0};
    useUpperHalves(out);
    EXPECT_TRUE(rt::upperVectorStateDirty());
    rt::cleanVectorStateForHotLoop();
    const bool after = rt::upperVectorStateDirty();
    EXPECT_TRUE(rt::dirtyAtLastHotLoop());
    EXPECT_FALSE(after);
    EXPECT_EQ(out[0], 1.5f);
}
#endif
