#pragma once

// Engine: Runtime/Core/Public/Internationalization/Text.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FText

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

#include <type_traits>

class FText;

/** A format pattern such as "{0} {0}|plural(one=product,other=products) in scene"; made from a text. */
class FTextFormat
{
public:
    FTextFormat(const FText& InText);
};

/** One argument of FText::Format: numbers are formatted with the culture's grouping ("1,234"). */
class FFormatArgumentValue
{
public:
    FFormatArgumentValue(const int32 Value);
    FFormatArgumentValue(const int64 Value);
    FFormatArgumentValue(const double Value);
    FFormatArgumentValue(const FText& Value);
};

class FText
{
public:
    FText();

    /** Text that is not localised (a culture-invariant copy of String). */
    static FText FromString(const FString& String);
    static FText FromString(FString&& String);

    /** The pattern with "{0}", "{1}", ... replaced by the arguments, in order. */
    template <typename... ArgTypes>
    requires(std::is_constructible_v<FFormatArgumentValue, ArgTypes>&&...) static FText
        Format(FTextFormat Fmt, ArgTypes&&... Args)
    {
        return FText();
    }

    /** The display string. */
    const FString& ToString() const;
};
