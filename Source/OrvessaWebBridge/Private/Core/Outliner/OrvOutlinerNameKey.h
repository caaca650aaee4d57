#pragma once

#include "Core/Common/OrvStrings.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace OrvWebBridge
{
    /**
     * @brief Hash of a name with ASCII letters folded to lower case. The engine's string-keyed maps and sets
     * compare names without case, so "Chairs" and "chairs" are one category, as in the editor.
     */
    struct FOrvOutlinerNameHash
    {
        using is_transparent = void;

        std::size_t operator()(std::string_view Name) const
        {
            std::uint64_t Hash = 1469598103934665603ull;
            for (const char Character : Name)
            {
                const char Folded = (Character >= 'A' && Character <= 'Z')
                                        ? static_cast<char>(Character - 'A' + 'a')
                                        : Character;
                Hash = (Hash ^ static_cast<unsigned char>(Folded)) * 1099511628211ull;
            }
            return static_cast<std::size_t>(Hash);
        }
    };

    /** @brief Equality of names ignoring ASCII letter case; pairs with FOrvOutlinerNameHash. */
    struct FOrvOutlinerNameEqual
    {
        using is_transparent = void;

        bool operator()(std::string_view A, std::string_view B) const
        {
            return FOrvStrings::EqualsIgnoreCase(A, B);
        }
    };

    /** @brief Map keyed by a name compared without case (the engine's TMap<FString, T>). */
    template <typename TValue>
    using TOrvOutlinerNameMap =
        std::unordered_map<std::string, TValue, FOrvOutlinerNameHash, FOrvOutlinerNameEqual>;

    /** @brief Set of names compared without case (the engine's TSet<FString>). */
    using FOrvOutlinerNameSet = std::unordered_set<std::string, FOrvOutlinerNameHash, FOrvOutlinerNameEqual>;
} // namespace OrvWebBridge
