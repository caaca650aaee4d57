#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief Valid UTF-8 for everything the plugin writes. Text from outside (requests, files, catalogue
     * answers) may hold bytes that are not UTF-8, or surrogates that a JSON escape such as \udc00 produced;
     * on the way out each maximal ill-formed subsequence becomes one U+FFFD, as the Unicode standard
     * recommends (and browsers do), an encoded surrogate also one U+FFFD, and valid text passes unchanged.
     */
    struct FOrvUtf8
    {
        /** U+FFFD REPLACEMENT CHARACTER. */
        static constexpr std::string_view Replacement = "\xEF\xBF\xBD";

        /**
         * Measures the sequence at the start of Rest (not empty): its length when it is one valid
         * character (bOutValid true), else the length of the ill-formed part to replace (at least 1).
         */
        static std::size_t Measure(std::string_view Rest, bool& bOutValid);

        /** Appends Text with every ill-formed part replaced by U+FFFD. */
        static void AppendValid(std::string& Out, std::string_view Text);

        /** Text with every ill-formed part replaced by U+FFFD. */
        static std::string MakeValid(std::string_view Text);

        static bool IsValid(std::string_view Text);
    };
} // namespace OrvWebBridge
