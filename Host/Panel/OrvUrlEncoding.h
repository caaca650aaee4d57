#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Percent-encoded text as URLs and HTML forms carry it. */
    struct FOrvUrlEncoding
    {
        /** Decodes %XX escapes (and '+' as a space when bPlusIsSpace); nothing for a malformed escape or NUL.
         */
        static std::optional<std::string> Decode(std::string_view Text, bool bPlusIsSpace);

        /** The decoded value of Name in "a=1&b=2" (a query string or a form body); empty when absent. */
        static std::string FindField(std::string_view Fields, std::string_view Name);
    };
} // namespace OrvWebBridge
