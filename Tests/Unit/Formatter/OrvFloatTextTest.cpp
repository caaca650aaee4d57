#include "Core/Formatter/OrvFloatText.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

TEST(FOrvFloatTextTest, SanitizeFloatTrimsZerosKeepsTheMinimumFractionAndPrintsNonFiniteValues)
{
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(2019.0, 0), "2019");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(2019.0, 1), "2019.0");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-100.101, 0), "-100.101");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-100.1, 4), "-100.1000");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-0.0, 0), "0");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-0.0, 1), "0.0");
    // "%f" keeps six decimals, so tiny values round away and large ones print in full.
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(0.0000004, 0), "0");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-0.0000004, 1), "-0.0");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(1e20, 0), "100000000000000000000");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(0.1 + 0.2, 0), "0.3");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(1.0 / 0.0, 1), "inf");
    EXPECT_EQ(FOrvFloatText::SanitizeFloat(-1.0 / 0.0, 0), "-inf");
}
