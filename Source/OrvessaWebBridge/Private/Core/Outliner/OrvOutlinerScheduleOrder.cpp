#include "Core/Outliner/OrvOutlinerScheduleOrder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

namespace
{
    // Brand and name of every product folded to lower case once, into one buffer, so that sorting
    // compares plain bytes. Each key also carries its first eight bytes as a number, which settles
    // most comparisons without touching the buffer.
    class FOrvScheduleOrderKeys
    {
    public:
        explicit FOrvScheduleOrderKeys(const std::vector<const FOrvSceneProduct*>& Products)
        {
            std::size_t Bytes = 0;
            for (const FOrvSceneProduct* Product : Products)
            {
                Bytes += Product->Brand.size() + Product->Name.size();
            }
            Folded.reserve(Bytes);
            Keys.reserve(Products.size());
            for (const FOrvSceneProduct* Product : Products)
            {
                FKey Key;
                Key.Brand = Append(Product->Brand);
                Key.Name = Append(Product->Name);
                Keys.push_back(Key);
            }
        }

        /** Brand, then name, then the original place, which makes the sort stable. */
        bool Less(std::size_t A, std::size_t B) const
        {
            const int ByBrand = Compare(Keys[A].Brand, Keys[B].Brand);
            if (ByBrand != 0)
            {
                return ByBrand < 0;
            }
            const int ByName = Compare(Keys[A].Name, Keys[B].Name);
            return ByName != 0 ? ByName < 0 : A < B;
        }

    private:
        struct FFoldedText
        {
            std::uint64_t Prefix = 0; ///< first eight folded bytes, big-endian, zero-padded
            std::size_t Begin = 0;
            std::size_t Length = 0;
        };

        struct FKey
        {
            FFoldedText Brand;
            FFoldedText Name;
        };

        FFoldedText Append(const std::string& Text)
        {
            FFoldedText Result;
            Result.Begin = Folded.size();
            Result.Length = Text.size();
            Folded.resize(Result.Begin + Text.size());
            char* Out = Folded.data() + Result.Begin;
            for (std::size_t Index = 0; Index < Text.size(); ++Index)
            {
                const char Character = Text[Index];
                Out[Index] = (Character >= 'A' && Character <= 'Z') ? static_cast<char>(Character - 'A' + 'a')
                                                                    : Character;
                if (Index < 8)
                {
                    Result.Prefix |= static_cast<std::uint64_t>(static_cast<unsigned char>(Out[Index]))
                                     << (56 - 8 * Index);
                }
            }
            return Result;
        }

        // Unsigned bytes, as CompareIgnoreCase compares them; of two texts with equal starts the shorter
        // is less. Equal prefixes of texts shorter than eight bytes can still differ in length.
        int Compare(const FFoldedText& A, const FFoldedText& B) const
        {
            if (A.Prefix != B.Prefix)
            {
                return A.Prefix < B.Prefix ? -1 : 1;
            }
            const std::size_t Common = std::min(A.Length, B.Length);
            if (Common > 8)
            {
                const int Rest =
                    std::memcmp(Folded.data() + A.Begin + 8, Folded.data() + B.Begin + 8, Common - 8);
                if (Rest != 0)
                {
                    return Rest;
                }
            }
            return A.Length < B.Length ? -1 : (A.Length > B.Length ? 1 : 0);
        }

        std::string Folded;
        std::vector<FKey> Keys;
    };
} // namespace

std::vector<std::size_t> OrvOutlinerScheduleOrder(const std::vector<const FOrvSceneProduct*>& Products)
{
    std::vector<std::size_t> Order(Products.size());
    for (std::size_t Index = 0; Index < Order.size(); ++Index)
    {
        Order[Index] = Index;
    }
    const FOrvScheduleOrderKeys Keys(Products);
    std::sort(Order.begin(), Order.end(), [&Keys](std::size_t A, std::size_t B) { return Keys.Less(A, B); });
    return Order;
}
