#include "Core/Outliner/OrvOutlinerScheduleOrder.h"

#include "Core/Outliner/OrvOutlinerNameKey.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

namespace OrvWebBridge
{
    namespace
    {
        // A schedule has many products and few brands. Each distinct brand gets its rank once, and each
        // name its first eight folded bytes as a number, so that nearly every comparison of the sort is
        // two integer compares on a small entry; only names that share those eight bytes compare text.
        struct FOrvScheduleOrderEntry
        {
            std::uint32_t BrandRank;
            std::uint32_t Index;
            std::uint64_t NamePrefix; ///< big-endian, zero-padded
        };

        void OrvScheduleOrderFold(std::string_view Text, std::string& Out)
        {
            const std::size_t Start = Out.size();
            Out.resize(Start + Text.size());
            char* Folded = Out.data() + Start;
            for (std::size_t Index = 0; Index < Text.size(); ++Index)
            {
                const char Character = Text[Index];
                Folded[Index] = (Character >= 'A' && Character <= 'Z')
                                    ? static_cast<char>(Character - 'A' + 'a')
                                    : Character;
            }
        }

        std::uint64_t OrvScheduleOrderPrefix(std::string_view Folded)
        {
            std::uint64_t Prefix = 0;
            for (std::size_t Index = 0; Index < 8 && Index < Folded.size(); ++Index)
            {
                Prefix |= static_cast<std::uint64_t>(static_cast<unsigned char>(Folded[Index]))
                          << (56 - 8 * Index);
            }
            return Prefix;
        }

        // Unsigned bytes, as CompareIgnoreCase compares them; of two texts with equal starts the shorter is
        // less.
        int OrvScheduleOrderCompare(std::string_view A, std::string_view B)
        {
            const int Common = std::memcmp(A.data(), B.data(), std::min(A.size(), B.size()));
            if (Common != 0)
            {
                return Common;
            }
            return A.size() < B.size() ? -1 : (A.size() > B.size() ? 1 : 0);
        }
    } // namespace

    std::vector<std::size_t> OrvOutlinerScheduleOrder(const std::vector<const FOrvSceneProduct*>& Products)
    {
        // Brands: one per distinct folded text, ranked in byte order.
        TOrvOutlinerNameMap<std::uint32_t> BrandIds;
        std::vector<std::string> Brands;
        std::vector<std::uint32_t> BrandOfProduct;
        BrandOfProduct.reserve(Products.size());
        for (const FOrvSceneProduct* Product : Products)
        {
            const auto [Found, bInserted] =
                BrandIds.try_emplace(Product->Brand, static_cast<std::uint32_t>(Brands.size()));
            if (bInserted)
            {
                Brands.emplace_back();
                OrvScheduleOrderFold(Product->Brand, Brands.back());
            }
            BrandOfProduct.push_back(Found->second);
        }
        std::vector<std::uint32_t> ByBrandText(Brands.size());
        for (std::uint32_t Id = 0; Id < ByBrandText.size(); ++Id)
        {
            ByBrandText[Id] = Id;
        }
        std::sort(ByBrandText.begin(), ByBrandText.end(),
                  [&Brands](std::uint32_t A, std::uint32_t B)
                  { return OrvScheduleOrderCompare(Brands[A], Brands[B]) < 0; });
        std::vector<std::uint32_t> RankOfBrand(Brands.size());
        for (std::uint32_t Rank = 0; Rank < ByBrandText.size(); ++Rank)
        {
            RankOfBrand[ByBrandText[Rank]] = Rank;
        }

        // Names: folded into one buffer, each with its prefix.
        std::string FoldedNames;
        std::vector<std::size_t> NameStart;
        NameStart.reserve(Products.size() + 1);
        std::vector<FOrvScheduleOrderEntry> Entries;
        Entries.reserve(Products.size());
        for (std::size_t Index = 0; Index < Products.size(); ++Index)
        {
            NameStart.push_back(FoldedNames.size());
            OrvScheduleOrderFold(Products[Index]->Name, FoldedNames);
            const std::string_view Name = std::string_view(FoldedNames).substr(NameStart.back());
            Entries.push_back({RankOfBrand[BrandOfProduct[Index]], static_cast<std::uint32_t>(Index),
                               OrvScheduleOrderPrefix(Name)});
        }
        NameStart.push_back(FoldedNames.size());
        const auto NameOf = [&](std::uint32_t Index) {
            return std::string_view(FoldedNames)
                .substr(NameStart[Index], NameStart[Index + 1] - NameStart[Index]);
        };

        // Equal brand ranks mean equal brands (without case); the original place breaks full ties.
        std::sort(Entries.begin(), Entries.end(),
                  [&NameOf](const FOrvScheduleOrderEntry& A, const FOrvScheduleOrderEntry& B)
                  {
                      if (A.BrandRank != B.BrandRank)
                      {
                          return A.BrandRank < B.BrandRank;
                      }
                      if (A.NamePrefix != B.NamePrefix)
                      {
                          return A.NamePrefix < B.NamePrefix;
                      }
                      const int ByName = OrvScheduleOrderCompare(NameOf(A.Index), NameOf(B.Index));
                      return ByName != 0 ? ByName < 0 : A.Index < B.Index;
                  });

        std::vector<std::size_t> Order;
        Order.reserve(Entries.size());
        for (const FOrvScheduleOrderEntry& Entry : Entries)
        {
            Order.push_back(Entry.Index);
        }
        return Order;
    }
} // namespace OrvWebBridge
