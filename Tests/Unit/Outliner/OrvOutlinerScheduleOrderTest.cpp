#include "Core/Outliner/OrvOutlinerScheduleOrder.h"
#include "Core/Common/OrvStrings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace OrvWebBridge;

namespace
{
    // The order the schedule promises, written the plain way.
    std::vector<std::size_t> ReferenceOrder(const std::vector<const FOrvSceneProduct*>& Products)
    {
        std::vector<std::size_t> Order(Products.size());
        for (std::size_t Index = 0; Index < Order.size(); ++Index)
        {
            Order[Index] = Index;
        }
        std::stable_sort(Order.begin(), Order.end(),
                         [&](std::size_t A, std::size_t B)
                         {
                             const int ByBrand =
                                 FOrvStrings::CompareIgnoreCase(Products[A]->Brand, Products[B]->Brand);
                             return ByBrand != 0
                                        ? ByBrand < 0
                                        : FOrvStrings::LessIgnoreCase(Products[A]->Name, Products[B]->Name);
                         });
        return Order;
    }
} // namespace

TEST(FOrvOutlinerScheduleOrderTest, RowsSortByBrandThenNameWithoutCaseAndKeepTiesInMapOrder)
{
    // Texts around the eight-byte boundary, prefixes of each other, letter case, bytes above 0x7F and NUL.
    const std::vector<std::string> Texts = {"",          "a",
                                            "A",         "ab",
                                            "abcdefgh",  "ABCDEFGH",
                                            "abcdefghi", "abcdefgh\0",
                                            "abcdefgHZ", "Zanotta",
                                            "zanotta",   "\xC3\xA9t\xC3\xA9",
                                            "b",         std::string("a\0b", 3),
                                            "a b",       "abcdefghij klm"};
    std::mt19937 Random(20250314);
    std::vector<FOrvSceneProduct> Storage(600);
    std::vector<const FOrvSceneProduct*> Products;
    for (FOrvSceneProduct& Product : Storage)
    {
        Product.Brand = Texts[Random() % Texts.size()];
        Product.Name = Texts[Random() % Texts.size()];
        Products.push_back(&Product);
    }

    EXPECT_EQ(OrvOutlinerScheduleOrder(Products), ReferenceOrder(Products));
    EXPECT_TRUE(OrvOutlinerScheduleOrder({}).empty());
}
