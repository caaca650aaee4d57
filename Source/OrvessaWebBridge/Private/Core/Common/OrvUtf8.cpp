#include "Core/Common/OrvUtf8.h"

namespace OrvWebBridge
{
    std::size_t FOrvUtf8::Measure(std::string_view Rest, bool& bOutValid)
    {
        bOutValid = false;
        const unsigned char Lead = static_cast<unsigned char>(Rest[0]);
        if (Lead < 0x80)
        {
            bOutValid = true;
            return 1;
        }
        // The well-formed byte sequences (Unicode, table 3-7): the lead byte decides how many continuation
        // bytes follow and the range of the first one, which excludes overlong forms, surrogates and code
        // points above U+10FFFF.
        std::size_t Continuations = 0;
        unsigned char Low = 0x80;
        unsigned char High = 0xBF;
        if (Lead >= 0xC2 && Lead <= 0xDF)
        {
            Continuations = 1;
        }
        else if (Lead >= 0xE0 && Lead <= 0xEF)
        {
            Continuations = 2;
            Low = Lead == 0xE0 ? 0xA0 : 0x80;
        }
        else if (Lead >= 0xF0 && Lead <= 0xF4)
        {
            Continuations = 3;
            Low = Lead == 0xF0 ? 0x90 : 0x80;
            High = Lead == 0xF4 ? 0x8F : 0xBF;
        }
        else
        {
            return 1;
        }
        for (std::size_t Index = 1; Index <= Continuations; ++Index)
        {
            if (Index >= Rest.size())
            {
                return Index;
            }
            const unsigned char Byte = static_cast<unsigned char>(Rest[Index]);
            if (Byte < Low || Byte > High)
            {
                return Index;
            }
            Low = 0x80;
            High = 0xBF;
        }
        // A surrogate (U+D800 to U+DFFF, lead ED and A0 to BF next) is what a lone \udc00 escape decodes to:
        // it counts as one character, replaced by one U+FFFD.
        bOutValid = !(Lead == 0xED && static_cast<unsigned char>(Rest[1]) >= 0xA0);
        return Continuations + 1;
    }

    void FOrvUtf8::AppendValid(std::string& Out, std::string_view Text)
    {
        std::size_t Run = 0;
        std::size_t Index = 0;
        while (Index < Text.size())
        {
            if (static_cast<unsigned char>(Text[Index]) < 0x80)
            {
                ++Index;
                continue;
            }
            bool bValid = false;
            const std::size_t Length = Measure(Text.substr(Index), bValid);
            if (!bValid)
            {
                Out.append(Text.substr(Run, Index - Run));
                Out.append(Replacement);
                Run = Index + Length;
            }
            Index += Length;
        }
        Out.append(Text.substr(Run));
    }

    std::string FOrvUtf8::MakeValid(std::string_view Text)
    {
        std::string Out;
        Out.reserve(Text.size());
        AppendValid(Out, Text);
        return Out;
    }

    bool FOrvUtf8::IsValid(std::string_view Text)
    {
        for (std::size_t Index = 0; Index < Text.size();)
        {
            if (static_cast<unsigned char>(Text[Index]) < 0x80)
            {
                ++Index;
                continue;
            }
            bool bValid = false;
            Index += Measure(Text.substr(Index), bValid);
            if (!bValid)
            {
                return false;
            }
        }
        return true;
    }
} // namespace OrvWebBridge
