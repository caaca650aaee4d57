#pragma once

#include <cstdarg>
#include <string>
#include <string_view>

#if defined(__GNUC__) || defined(__clang__)
#define ORV_PRINTF_FORMAT(FormatIndex, FirstArg) __attribute__((format(printf, FormatIndex, FirstArg)))
#else
#define ORV_PRINTF_FORMAT(FormatIndex, FirstArg)
#endif

namespace OrvWebBridge
{
    /** @brief String helpers with the engine's FString semantics, over UTF-8 std::string. */
    struct FOrvStrings
    {
        /** Equality ignoring letter case (ASCII letters), as FString's ESearchCase::IgnoreCase. */
        static bool EqualsIgnoreCase(std::string_view A, std::string_view B);

        /** Whether Text begins with Prefix, ignoring letter case. */
        static bool StartsWithIgnoreCase(std::string_view Text, std::string_view Prefix);

        /** Whether Text ends with Suffix, ignoring letter case. */
        static bool EndsWithIgnoreCase(std::string_view Text, std::string_view Suffix);

        /** Whether Text holds Needle anywhere, ignoring letter case. */
        static bool ContainsIgnoreCase(std::string_view Text, std::string_view Needle);

        /** Three-way compare ignoring case (letters folded to lower case), the engine's default string order.
         */
        static int CompareIgnoreCase(std::string_view A, std::string_view B);

        /** Strict weak "less" over CompareIgnoreCase, for sorting. */
        static bool LessIgnoreCase(std::string_view A, std::string_view B)
        {
            return CompareIgnoreCase(A, B) < 0;
        }

        /** printf-style formatting into a new string. */
        static std::string Printf(const char* Format, ...) ORV_PRINTF_FORMAT(1, 2);

        /** Printf over an argument list (for other variadic wrappers). */
        static std::string VPrintf(const char* Format, va_list Args) ORV_PRINTF_FORMAT(1, 0);

        /** Replaces every occurrence of From (exact case) with To. */
        static std::string ReplaceAll(std::string_view Text, std::string_view From, std::string_view To);

        /** Text with A-Z turned to a-z (ASCII only, as names and commands are). */
        static std::string ToLower(std::string_view Text);

        /** Removes spaces, tabs and line ends at both ends. */
        static std::string_view Trim(std::string_view Text);
    };
} // namespace OrvWebBridge
