#pragma once

#include <string_view>

namespace OrvWebBridge
{
    /** @brief The built-in demo room used when no scene file is given, and its offline catalogue. */
    struct FOrvDemoScene
    {
        /** Scene file text of a furnished room (floor, floor-back, wall and ceiling products). */
        static std::string_view SceneJson();

        /** Offline catalogue text (Docs/CatalogFormat.md) with a record for every product of the room. */
        static std::string_view CatalogJson();
    };
} // namespace OrvWebBridge
