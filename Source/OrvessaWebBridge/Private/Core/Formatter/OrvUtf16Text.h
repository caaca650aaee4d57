#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief UTF-8 text measured and trimmed the way the engine's UTF-16 strings are.
     *
     * The engine counts string length in UTF-16 code units, so a character outside the Basic Multilingual
     * Plane counts two. These helpers give the same counts over UTF-8 while never splitting a character:
     * a byte that is not part of a well-formed sequence counts as one unit of its own, as the engine's
     * conversion turns it into one replacement character.
     */
    struct FOrvUtf16Text
    {
        /** One character at a byte position: its bytes, its UTF-16 units and its code point. */
        struct FStep
        {
            std::size_t Bytes = 1;
            std::int32_t Units = 1;
            char32_t CodePoint = U'\xFFFD';
        };

        /** The character starting at ByteIndex (which must be inside Text). */
        static FStep Next(std::string_view Text, std::size_t ByteIndex);

        /** Length in UTF-16 code units. */
        static std::int64_t Length(std::string_view Text);

        /** Whether the engine treats the code point as whitespace when trimming. */
        static bool IsWhitespace(char32_t CodePoint);

        /** Text without leading and trailing whitespace, as FString::TrimStartAndEnd. */
        static std::string_view TrimStartAndEnd(std::string_view Text);

        /** Text without trailing whitespace, as FString::TrimEnd. */
        static std::string_view TrimEnd(std::string_view Text);
    };
} // namespace OrvWebBridge
