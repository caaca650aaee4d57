#include "Host/Editor/OrvObjectNames.h"

#include <algorithm>

namespace OrvWebBridge
{
    std::optional<std::int64_t> FOrvObjectNames::NumberSuffix(std::string_view Name)
    {
        const std::size_t Underscore = Name.rfind('_');
        if (Underscore == std::string_view::npos || Underscore + 1 >= Name.size())
        {
            return std::nullopt;
        }
        const std::string_view Digits = Name.substr(Underscore + 1);
        // FName keeps "_01" as part of the plain name, and more than nine digits would not fit its number.
        if ((Digits.size() > 1 && Digits[0] == '0') || Digits.size() > 9)
        {
            return std::nullopt;
        }
        std::int64_t Number = 0;
        for (const char Digit : Digits)
        {
            if (Digit < '0' || Digit > '9')
            {
                return std::nullopt;
            }
            Number = Number * 10 + (Digit - '0');
        }
        return Number;
    }

    std::string_view FOrvObjectNames::BaseName(std::string_view Name)
    {
        return NumberSuffix(Name) ? Name.substr(0, Name.rfind('_')) : Name;
    }

    std::string FOrvObjectNames::Key(std::string_view Name)
    {
        std::string Result(Name);
        std::transform(Result.begin(), Result.end(), Result.begin(),
                       [](char Char)
                       { return (Char >= 'A' && Char <= 'Z') ? static_cast<char>(Char - 'A' + 'a') : Char; });
        return Result;
    }

    void FOrvObjectNames::SplitObjectPath(std::string_view Path, std::string_view& OutPackage,
                                          std::string_view& OutAsset)
    {
        const std::size_t Dot = Path.find('.');
        if (Dot == std::string_view::npos)
        {
            OutPackage = Path;
            OutAsset = {};
            return;
        }
        OutPackage = Path.substr(0, Dot);
        OutAsset = Path.substr(Dot + 1);
    }

    std::string_view FOrvObjectNames::ShortPackageName(std::string_view PackageName)
    {
        const std::size_t Slash = PackageName.rfind('/');
        return Slash == std::string_view::npos ? PackageName : PackageName.substr(Slash + 1);
    }

    std::string_view FOrvObjectNames::PackagePath(std::string_view PackageName)
    {
        const std::size_t Slash = PackageName.rfind('/');
        return Slash == std::string_view::npos ? std::string_view{} : PackageName.substr(0, Slash);
    }

    void FOrvNameCounters::NoteUsed(std::string_view Name)
    {
        const std::optional<std::int64_t> Number = FOrvObjectNames::NumberSuffix(Name);
        if (!Number)
        {
            return;
        }
        std::int64_t& Next = NextNumberByBase[FOrvObjectNames::Key(FOrvObjectNames::BaseName(Name))];
        Next = std::max(Next, *Number + 1);
    }

    std::string FOrvNameCounters::MakeUnique(std::string_view Base)
    {
        std::int64_t& Next = NextNumberByBase[FOrvObjectNames::Key(Base)];
        std::string Name = std::string(Base) + "_" + std::to_string(Next);
        ++Next;
        return Name;
    }
} // namespace OrvWebBridge
