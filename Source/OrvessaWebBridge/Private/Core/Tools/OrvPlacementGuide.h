#pragma once

#include <string_view>

namespace OrvWebBridge
{
    /** @brief The fixed spatial placement rules that ue_placement_guide returns; clients follow them as
     * written.
     */
    struct FOrvPlacementGuide
    {
        /** The guide: lines separated by "\n", ending with one "\n", UTF-8 (em dashes). */
        static std::string_view Text();
    };
} // namespace OrvWebBridge
