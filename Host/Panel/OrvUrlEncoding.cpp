#include "Host/Panel/OrvUrlEncoding.h"

#include <algorithm>

namespace OrvWebBridge
{
    namespace
    {
        int HexDigit(char Char)
        {
            return Char >= '0' && Char <= '9'   ? Char - '0'
                   : Char >= 'a' && Char <= 'f' ? Char - 'a' + 10
                   : Char >= 'A' && Char <= 'F' ? Char - 'A' + 10
                                                : -1;
        }
    } // namespace

    std::optional<std::string> FOrvUrlEncoding::Decode(std::string_view Text, bool bPlusIsSpace)
    {
        std::string Out;
        Out.reserve(Text.size());
        for (std::size_t Index = 0; Index < Text.size(); ++Index)
        {
            const char Char = Text[Index];
            if (Char != '%')
            {
                Out += Char == '+' && bPlusIsSpace ? ' ' : Char;
                continue;
            }
            const int High = Index + 2 < Text.size() ? HexDigit(Text[Index + 1]) : -1;
            const int Low = Index + 2 < Text.size() ? HexDigit(Text[Index + 2]) : -1;
            if (High < 0 || Low < 0 || (High == 0 && Low == 0))
            {
                return std::nullopt;
            }
            Out += static_cast<char>(High * 16 + Low);
            Index += 2;
        }
        return Out;
    }

    std::string FOrvUrlEncoding::FindField(std::string_view Fields, std::string_view Name)
    {
        while (!Fields.empty())
        {
            const std::size_t End = std::min(Fields.find('&'), Fields.size());
            const std::string_view Pair = Fields.substr(0, End);
            Fields.remove_prefix(std::min(End + 1, Fields.size()));
            const std::size_t Equals = Pair.find('=');
            if (Equals != std::string_view::npos && Pair.substr(0, Equals) == Name)
            {
                return Decode(Pair.substr(Equals + 1), true).value_or("");
            }
        }
        return {};
    }
} // namespace OrvWebBridge
