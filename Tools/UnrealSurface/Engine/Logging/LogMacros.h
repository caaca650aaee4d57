#pragma once

// Engine: Runtime/Core/Public/Logging/LogMacros.h and LogCategory.h (module Core).
// Docs: none for the macros themselves; the engine header is the reference.
//
// UE_LOG is checked as the engine checks it at compile time: the category must be a declared log
// category, the verbosity one of ELogVerbosity's names, the format a TEXT literal whose % specifiers
// match the arguments in number, and every argument a printf-style value (an FString must be passed
// as *Text, never by value).

#include "HAL/Platform.h"
#include "Logging/LogVerbosity.h"

#include <cstddef>
#include <type_traits>

struct FLogCategoryBase
{
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
};

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                    \
    extern struct FLogCategory##CategoryName                                                                 \
        : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>          \
    {                                                                                                        \
        FLogCategory##CategoryName();                                                                        \
    } CategoryName;

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName;

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                     \
    static struct FLogCategory##CategoryName                                                                 \
        : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>          \
    {                                                                                                        \
    } CategoryName;

namespace OrvSurface
{
    template <typename T>
    concept CPrintfArgument =
        std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> || std::is_null_pointer_v<T>;

    template <typename... ArgTypes> struct TLogArguments
    {
        static constexpr int Count = sizeof...(ArgTypes);
        static constexpr bool bAllPrintf = (CPrintfArgument<ArgTypes> && ...);
    };

    template <typename... ArgTypes> TLogArguments<std::decay_t<ArgTypes>...> LogArgumentTypes(ArgTypes&&...);

    template <std::size_t N> void LogFormatIsALiteral(const TCHAR (&)[N]);

    constexpr bool IsConversion(TCHAR Char)
    {
        for (const TCHAR* Each = L"diouxXfFeEgGaAcspnS"; *Each; ++Each)
        {
            if (*Each == Char)
            {
                return true;
            }
        }
        return false;
    }

    /** How many arguments a printf format consumes: one per specifier, one more per '*' width. */
    constexpr int CountFormatArguments(const TCHAR* Format)
    {
        int Count = 0;
        for (const TCHAR* Char = Format; *Char; ++Char)
        {
            if (*Char != L'%')
            {
                continue;
            }
            ++Char;
            if (*Char == L'%')
            {
                continue;
            }
            while (*Char && !IsConversion(*Char))
            {
                Count += *Char == L'*' ? 1 : 0;
                ++Char;
            }
            if (!*Char)
            {
                break;
            }
            ++Count;
        }
        return Count;
    }
} // namespace OrvSurface

#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                         \
    do                                                                                                       \
    {                                                                                                        \
        static_assert(::ELogVerbosity::Verbosity <= ::ELogVerbosity::VeryVerbose);                           \
        (void)static_cast<const ::FLogCategoryBase&>(CategoryName);                                          \
        ::OrvSurface::LogFormatIsALiteral(Format);                                                           \
        using FOrvLogArguments = decltype(::OrvSurface::LogArgumentTypes(__VA_ARGS__));                      \
        static_assert(FOrvLogArguments::bAllPrintf,                                                          \
                      "UE_LOG arguments are printf-style values: pass an FString as *Text");                 \
        static_assert(::OrvSurface::CountFormatArguments(Format) == FOrvLogArguments::Count,                 \
                      "UE_LOG: the format's % specifiers and the arguments differ in number");               \
    } while (0)
