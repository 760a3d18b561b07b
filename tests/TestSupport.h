// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Helpers shared by the suites.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

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

// Checks every file of the folders (a fuzzer's seeds and the findings kept from it; a folder not made
// yet has none) with `check`, which returns what failed or "" when all holds; returns how many there were.
template <class Check>
int replayEach(std::initializer_list<std::filesystem::path> folders, Check check)
{
    int replayed = 0;
    std::error_code missing;
    for (const std::filesystem::path& dir : folders)
        for (const auto& entry : std::filesystem::directory_iterator(dir, missing)) {
            std::ifstream in(entry.path(), std::ios::binary);
            EXPECT_EQ(check(std::string(std::istreambuf_iterator<char>(in), {})), "") << entry.path();
            ++replayed;
        }
    return replayed;
}
