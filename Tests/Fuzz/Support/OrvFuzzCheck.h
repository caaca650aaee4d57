#pragma once

#include "Core/Common/OrvUtf8.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Stops the run as a crash, so libFuzzer keeps the input, when an invariant does not hold. */
    inline void OrvFuzzCheck(bool bHolds, const char* Invariant, std::string_view Detail = {})
    {
        if (!bHolds)
        {
            std::fprintf(stderr, "Invariant broken: %s\n%.*s\n", Invariant,
                         static_cast<int>(Detail.size() < 2000 ? Detail.size() : 2000), Detail.data());
            std::abort();
        }
    }

    /** @brief Everything the plugin writes is valid UTF-8. */
    inline void OrvFuzzCheckUtf8(std::string_view Text, const char* What)
    {
        OrvFuzzCheck(FOrvUtf8::IsValid(Text), What, Text);
    }
} // namespace OrvWebBridge
