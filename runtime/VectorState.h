// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The state of the upper halves of the AVX registers, and the one place that clears it.
//
// Why this exists: the toolkit (and the C library routines it calls to fill images) use 256-bit AVX
// instructions and may return with the upper halves of the vector registers still in use ("dirty").
// Plotto's own arithmetic is compiled for baseline x86-64, with SSE instructions; on many Intel
// cores every SSE instruction executed while the upper state is dirty pays a transition penalty,
// which made sin/cos-heavy loops up to fifteen times slower after a toolkit call. A VZEROUPPER
// after the toolkit call returns, before a hot loop starts, gives the loop a clean state. It is
// issued only where the CPU has AVX, so the program still runs on any x86-64 CPU.
namespace rt {

// True when the CPU can report the upper vector state (XGETBV with ECX = 1).
bool vectorStateReported();
// True when the CPU reports the upper halves of the AVX registers in use (XINUSE bit 2); false
// when it is clean or cannot be read.
bool upperVectorStateDirty();
// Call after a toolkit call returns and before a hot loop starts: notes whether the state was
// dirty, then clears it where the CPU has AVX.
void cleanVectorStateForHotLoop();
// Whether the state was dirty at the most recent cleanVectorStateForHotLoop (benchmarks report it).
bool dirtyAtLastHotLoop();

}  // namespace rt
