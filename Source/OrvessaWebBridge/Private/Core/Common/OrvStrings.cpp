#include "Core/Common/OrvStrings.h"

#include <cstdarg>
#include <cstdio>

namespace OrvWebBridge
{
    namespace
    {
        char OrvFoldLower(char Character)
        {
            return (Character >= 'A' && Character <= 'Z') ? static_cast<char>(Character - 'A' + 'a')
                                                          : Character;
        }
    } // namespace

    bool FOrvStrings::EqualsIgnoreCase(std::string_view A, std::string_view B)
    {
        if (A.size() != B.size())
        {
            return false;
        }
        for (std::size_t Index = 0; Index < A.size(); ++Index)
        {
            if (OrvFoldLower(A[Index]) != OrvFoldLower(B[Index]))
            {
                return false;
            }
        }
        return true;
    }

    bool FOrvStrings::StartsWithIgnoreCase(std::string_view Text, std::string_view Prefix)
    {
        return Text.size() >= Prefix.size() && EqualsIgnoreCase(Text.substr(0, Prefix.size()), Prefix);
    }

    bool FOrvStrings::EndsWithIgnoreCase(std::string_view Text, std::string_view Suffix)
    {
        return Text.size() >= Suffix.size() &&
               EqualsIgnoreCase(Text.substr(Text.size() - Suffix.size()), Suffix);
    }

    bool FOrvStrings::ContainsIgnoreCase(std::string_view Text, std::string_view Needle)
    {
        if (Needle.size() > Text.size())
        {
            return false;
        }
        for (std::size_t Start = 0; Start + Needle.size() <= Text.size(); ++Start)
        {
            if (EqualsIgnoreCase(Text.substr(Start, Needle.size()), Needle))
            {
                return true;
            }
        }
        return false;
    }

    int FOrvStrings::CompareIgnoreCase(std::string_view A, std::string_view B)
    {
        const std::size_t Common = A.size() < B.size() ? A.size() : B.size();
        for (std::size_t Index = 0; Index < Common; ++Index)
        {
            const unsigned char Left = static_cast<unsigned char>(OrvFoldLower(A[Index]));
            const unsigned char Right = static_cast<unsigned char>(OrvFoldLower(B[Index]));
            if (Left != Right)
            {
                return Left < Right ? -1 : 1;
            }
        }
        if (A.size() == B.size())
        {
            return 0;
        }
        return A.size() < B.size() ? -1 : 1;
    }

    std::string FOrvStrings::Printf(const char* Format, ...)
    {
        va_list Args;
        va_start(Args, Format);
        std::string Result = VPrintf(Format, Args);
        va_end(Args);
        return Result;
    }

    std::string FOrvStrings::VPrintf(const char* Format, va_list Args)
    {
        va_list Copy;
        va_copy(Copy, Args);
        const int Needed = std::vsnprintf(nullptr, 0, Format, Copy);
        va_end(Copy);
        std::string Result;
        if (Needed > 0)
        {
            Result.resize(static_cast<std::size_t>(Needed));
            std::vsnprintf(Result.data(), Result.size() + 1, Format, Args);
        }
        return Result;
    }

    std::string FOrvStrings::ReplaceAll(std::string_view Text, std::string_view From, std::string_view To)
    {
        if (From.empty())
        {
            return std::string(Text);
        }
        std::string Result;
        Result.reserve(Text.size());
        std::size_t Start = 0;
        for (std::size_t Found = Text.find(From); Found != std::string_view::npos;
             Found = Text.find(From, Start))
        {
            Result.append(Text.substr(Start, Found - Start));
            Result.append(To);
            Start = Found + From.size();
        }
        Result.append(Text.substr(Start));
        return Result;
    }

    std::string FOrvStrings::ToLower(std::string_view Text)
    {
        std::string Lower(Text);
        for (char& Character : Lower)
        {
            Character =
                (Character >= 'A' && Character <= 'Z') ? static_cast<char>(Character - 'A' + 'a') : Character;
        }
        return Lower;
    }

    std::string_view FOrvStrings::Trim(std::string_view Text)
    {
        const auto IsBlank = [](char Character)
        { return Character == ' ' || Character == '\t' || Character == '\r' || Character == '\n'; };
        while (!Text.empty() && IsBlank(Text.front()))
        {
            Text.remove_prefix(1);
        }
        while (!Text.empty() && IsBlank(Text.back()))
        {
            Text.remove_suffix(1);
        }
        return Text;
    }
} // namespace OrvWebBridge
