#include "Core/Common/OrvBase64.h"

#include <array>
#include <cstring>

namespace OrvWebBridge
{
    namespace
    {
        constexpr char OrvBase64Alphabet[] =
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

        // Every 12-bit group maps to two output characters at once: half the table look-ups and stores of
        // the one-character-per-sextet loop. 8 KiB, built at compile time.
        constexpr std::array<char, 4096 * 2> MakeOrvBase64PairTable()
        {
            std::array<char, 4096 * 2> Table{};
            for (int Index = 0; Index < 4096; ++Index)
            {
                Table[Index * 2] = OrvBase64Alphabet[Index >> 6];
                Table[Index * 2 + 1] = OrvBase64Alphabet[Index & 0x3F];
            }
            return Table;
        }
        constexpr std::array<char, 4096 * 2> OrvBase64PairTable = MakeOrvBase64PairTable();
    } // namespace

    void FOrvBase64::EncodeAppend(std::span<const std::uint8_t> Data, std::string& Out)
    {
        const std::size_t OldSize = Out.size();
        Out.resize(OldSize + GetEncodedSize(Data.size()));
        char* Write = Out.data() + OldSize;
        const std::uint8_t* Read = Data.data();
        const std::uint8_t* const FullEnd = Read + Data.size() / 3 * 3;
        const char* const Pairs = OrvBase64PairTable.data();

        for (; Read != FullEnd; Read += 3, Write += 4)
        {
            const std::uint32_t Group =
                (std::uint32_t{Read[0]} << 16) | (std::uint32_t{Read[1]} << 8) | Read[2];
            std::memcpy(Write, Pairs + (Group >> 12) * 2, 2);
            std::memcpy(Write + 2, Pairs + (Group & 0xFFF) * 2, 2);
        }

        const std::size_t Rest = Data.size() - Data.size() / 3 * 3;
        if (Rest == 0)
        {
            return;
        }
        const std::uint32_t Group =
            (std::uint32_t{Read[0]} << 16) | (Rest == 2 ? std::uint32_t{Read[1]} << 8 : 0u);
        Write[0] = OrvBase64Alphabet[Group >> 18];
        Write[1] = OrvBase64Alphabet[(Group >> 12) & 0x3F];
        Write[2] = Rest == 2 ? OrvBase64Alphabet[(Group >> 6) & 0x3F] : '=';
        Write[3] = '=';
    }

    std::string FOrvBase64::Encode(std::span<const std::uint8_t> Data)
    {
        std::string Out;
        EncodeAppend(Data, Out);
        return Out;
    }
} // namespace OrvWebBridge
