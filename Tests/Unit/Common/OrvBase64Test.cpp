#include "Core/Common/OrvBase64.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    std::string Encode(std::string_view Text)
    {
        std::string Out = "prefix:";
        FOrvBase64::EncodeAppend({reinterpret_cast<const std::uint8_t*>(Text.data()), Text.size()}, Out);
        return Out.substr(7);
    }

    // One sextet at a time, straight from the alphabet: slow and obviously right.
    std::string EncodeReference(const std::vector<std::uint8_t>& Data)
    {
        static constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        std::string Out;
        for (std::size_t Index = 0; Index < Data.size(); Index += 3)
        {
            const std::size_t Count = std::min<std::size_t>(3, Data.size() - Index);
            std::uint32_t Group = 0;
            for (std::size_t Byte = 0; Byte < 3; ++Byte)
            {
                Group = (Group << 8) | (Byte < Count ? Data[Index + Byte] : 0u);
            }
            for (std::size_t Sextet = 0; Sextet < 4; ++Sextet)
            {
                Out.push_back(Sextet <= Count ? Alphabet[(Group >> (18 - 6 * Sextet)) & 0x3F] : '=');
            }
        }
        return Out;
    }
} // namespace

TEST(FOrvBase64Test, EncodesTheStandardVectorsAndEveryLengthAndByteValueLikeTheReference)
{
    const char* Expected[] = {"", "Zg==", "Zm8=", "Zm9v", "Zm9vYg==", "Zm9vYmE=", "Zm9vYmFy"};
    for (std::size_t Length = 0; Length <= 6; ++Length)
    {
        EXPECT_EQ(Encode(std::string_view("foobar", Length)), Expected[Length]);
    }
    EXPECT_EQ(Encode("\xFB\xFF\xBF"), "+/+/");

    std::mt19937 Random(7);
    for (std::size_t Length = 0; Length < 300; ++Length)
    {
        std::vector<std::uint8_t> Data(Length);
        for (std::uint8_t& Byte : Data)
        {
            Byte = static_cast<std::uint8_t>(Random());
        }
        ASSERT_EQ(FOrvBase64::Encode(Data), EncodeReference(Data)) << "length " << Length;
    }
}
