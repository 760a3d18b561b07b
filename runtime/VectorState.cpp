// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/VectorState.h"

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#include <immintrin.h>
#define PLOTTO_X86 1
#endif

namespace rt {

namespace {

bool lastDirty = false;

#if PLOTTO_X86
bool readable()
{
    unsigned a = 0, b = 0, c = 0, d = 0;
    if (!__get_cpuid(1, &a, &b, &c, &d) || !(c & bit_OSXSAVE))
        return false;
    if (!__get_cpuid_count(0xD, 1, &a, &b, &c, &d))
        return false;
    return (a & (1u << 2)) != 0;  // XGETBV with ECX = 1 is supported
}

__attribute__((target("avx"))) void zeroUpper() { _mm256_zeroupper(); }
#endif

}  // namespace

bool vectorStateReported()
{
#if PLOTTO_X86
    static const bool known = readable();
    return known;
#else
    return false;
#endif
}

bool upperVectorStateDirty()
{
#if PLOTTO_X86
    if (!vectorStateReported())
        return false;
    unsigned lo = 0, hi = 0;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(1));
    (void)hi;
    return (lo & (1u << 2)) != 0;  // XINUSE for the upper halves of the YMM registers
#else
    return false;
#endif
}

void cleanVectorStateForHotLoop()
{
    lastDirty = upperVectorStateDirty();
#if PLOTTO_X86
    static const bool avx = __builtin_cpu_supports("avx");
    if (avx)
        zeroUpper();
#endif
}

bool dirtyAtLastHotLoop() { return lastDirty; }

}  // namespace rt
