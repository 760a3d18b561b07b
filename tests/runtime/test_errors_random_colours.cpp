// SPDX-License-Identifier: GPL-3.0-or-later
// Run-time errors, the fixed random sequence, the sixteen colours and checked arrays.
#include <string>

#include <gtest/gtest.h>

#include "runtime/BoundedArray.h"
#include "runtime/QBColor.h"
#include "runtime/Random.h"
#include "runtime/RuntimeError.h"

using namespace rt;

TEST(RuntimeErrors, CarryTheClassicNumbersAndMessages)
{
    const std::pair<int, std::string> table[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {380, "Invalid property value"},
    };
    for (const auto& [number, message] : table) {
        try {
            rt::raise(number);
            FAIL() << "raise returned";
        } catch (const std::exception& e) {
            const auto* error = dynamic_cast<const RuntimeError*>(&e);
            ASSERT_NE(error, nullptr);
            EXPECT_EQ(error->number(), number);
            EXPECT_EQ(std::string(e.what()), message);
        }
    }
}

TEST(Random, StartsTheSameSequenceOnEveryRun)
{
    resetRnd();
    const float expected[] = {0.7055475f, 0.533424f, 0.5795186f, 0.2895625f, 0.301948f, 0.7747401f};
    for (float e : expected)
        EXPECT_FLOAT_EQ(Rnd(), e);
    resetRnd();
    EXPECT_FLOAT_EQ(Rnd(), 0.7055475f);
}

TEST(Random, StaysInsideTheUnitInterval)
{
    resetRnd();
    for (int i = 0; i < 1 << 17; ++i) {
        const float r = Rnd();
        ASSERT_GE(r, 0.0f);
        ASSERT_LT(r, 1.0f);
    }
    resetRnd();
}

TEST(Colours, SixteenClassicColours)
{
    EXPECT_EQ(QBColor(0), 0x000000u);
    EXPECT_EQ(QBColor(1), 0x000080u);
    EXPECT_EQ(QBColor(6), 0x808000u);
    EXPECT_EQ(QBColor(7), 0xC0C0C0u);
    EXPECT_EQ(QBColor(8), 0x808080u);
    EXPECT_EQ(QBColor(12), 0xFF0000u);
    EXPECT_EQ(QBColor(15), 0xFFFFFFu);
    for (int bad : {-1, 16, 1000}) {
        try {
            QBColor(bad);
            FAIL() << bad;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number(), InvalidProcedureCall);
        }
    }
}

TEST(BoundedArray, ChecksEveryIndex)
{
    BoundedArray<int, 0, 20> a;
    a[0] = 1;
    a[20] = 2;
    EXPECT_EQ(a[0] + a[20], 3);
    for (long bad : {-1L, 21L, 100000L}) {
        try {
            a[bad] = 0;
            FAIL() << bad;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number(), SubscriptOutOfRange);
        }
    }
}
