#include "Core/Formatter/OrvUtf16Text.h"

namespace OrvWebBridge
{
    FOrvUtf16Text::FStep FOrvUtf16Text::Next(std::string_view Text, std::size_t ByteIndex)
    {
        const auto Byte = [&](std::size_t At) { return static_cast<unsigned char>(Text[At]); };
        const unsigned char Lead = Byte(ByteIndex);
        if (Lead < 0x80)
        {
            return {1, 1, static_cast<char32_t>(Lead)};
        }

        // Lead byte ranges and second-byte bounds of well-formed UTF-8 (no overlongs, no surrogates).
        std::size_t Length = 0;
        unsigned char Low = 0x80;
        unsigned char High = 0xBF;
        char32_t CodePoint = 0;
        if (Lead >= 0xC2 && Lead <= 0xDF)
        {
            Length = 2;
            CodePoint = Lead & 0x1F;
        }
        else if (Lead >= 0xE0 && Lead <= 0xEF)
        {
            Length = 3;
            Low = Lead == 0xE0 ? 0xA0 : 0x80;
            High = Lead == 0xED ? 0x9F : 0xBF;
            CodePoint = Lead & 0x0F;
        }
        else if (Lead >= 0xF0 && Lead <= 0xF4)
        {
            Length = 4;
            Low = Lead == 0xF0 ? 0x90 : 0x80;
            High = Lead == 0xF4 ? 0x8F : 0xBF;
            CodePoint = Lead & 0x07;
        }
        const FStep Malformed;
        if (Length == 0 || ByteIndex + Length > Text.size())
        {
            return Malformed;
        }
        for (std::size_t Offset = 1; Offset < Length; ++Offset)
        {
            const unsigned char Continuation = Byte(ByteIndex + Offset);
            const unsigned char Min = Offset == 1 ? Low : 0x80;
            const unsigned char Max = Offset == 1 ? High : 0xBF;
            if (Continuation < Min || Continuation > Max)
            {
                return Malformed;
            }
            CodePoint = (CodePoint << 6) | (Continuation & 0x3F);
        }
        return {Length, Length == 4 ? 2 : 1, CodePoint};
    }

    std::int64_t FOrvUtf16Text::Length(std::string_view Text)
    {
        std::int64_t Units = 0;
        for (std::size_t Index = 0; Index < Text.size();)
        {
            const FStep Step = Next(Text, Index);
            Index += Step.Bytes;
            Units += Step.Units;
        }
        return Units;
    }

    bool FOrvUtf16Text::IsWhitespace(char32_t CodePoint)
    {
        // Unicode's White_Space set, which the engine's wide-character classification follows.
        return (CodePoint >= 0x09 && CodePoint <= 0x0D) || CodePoint == 0x20 || CodePoint == 0x85 ||
               CodePoint == 0xA0 || CodePoint == 0x1680 || (CodePoint >= 0x2000 && CodePoint <= 0x200A) ||
               CodePoint == 0x2028 || CodePoint == 0x2029 || CodePoint == 0x202F || CodePoint == 0x205F ||
               CodePoint == 0x3000;
    }

    std::string_view FOrvUtf16Text::TrimStartAndEnd(std::string_view Text)
    {
        std::size_t Start = 0;
        while (Start < Text.size())
        {
            const FStep Step = Next(Text, Start);
            if (!IsWhitespace(Step.CodePoint))
            {
                break;
            }
            Start += Step.Bytes;
        }
        return TrimEnd(Text.substr(Start));
    }

    std::string_view FOrvUtf16Text::TrimEnd(std::string_view Text)
    {
        // Walk forwards: stepping backwards through UTF-8 cannot tell a malformed byte from a tail byte.
        std::size_t End = 0;
        for (std::size_t Index = 0; Index < Text.size();)
        {
            const FStep Step = Next(Text, Index);
            Index += Step.Bytes;
            if (!IsWhitespace(Step.CodePoint))
            {
                End = Index;
            }
        }
        return Text.substr(0, End);
    }
} // namespace OrvWebBridge
