#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Numbers as the engine's strings print them. */
    struct FOrvFloatText
    {
        /**
         * FString::SanitizeFloat: "%f", then trailing fractional zeros removed (and the point with them),
         * then zeros padded back up to MinFractionalDigits. Negative zero prints as zero; a value that
         * "%f" does not print as a plain decimal (inf, nan) comes back as "%f" printed it.
         */
        static std::string SanitizeFloat(double Value, std::int32_t MinFractionalDigits = 1);

        /** FCString::IsNumeric: an optional sign, then digits with at most one point, at least one digit. */
        static bool IsNumeric(std::string_view Text);
    };
} // namespace OrvWebBridge
