#pragma once

#include <cstdint>

namespace OrvWebBridge
{
    /** @brief Compiled-in configuration: nothing of this is read from files. */
    struct FOrvConstants
    {
        /** The local AI endpoint's port. */
        static constexpr std::uint32_t McpPort = 30011;

        /** Content path under which catalogue meshes live. */
        static constexpr const char* AssetRoot = "/Game/ORVESSA";

        /** Class path of static mesh assets in the registry. */
        static constexpr const char* StaticMeshClassPath = "/Script/Engine.StaticMesh";

        /** The catalogue and product web site. */
        static constexpr const char* CatalogSiteBaseUrl = "https://orvessa.com";

        /** The catalogue service's API. */
        static constexpr const char* ApiBaseUrl = "https://api.orvessa.com";

        /** Domain of the session cookies handed to the web panel, so the site and the API both see them. */
        static constexpr const char* CookieDomain = ".orvessa.com";

        /** The plugin's name for the plugin manager. */
        static constexpr const char* PluginName = "ORVESSA";
    };
} // namespace OrvWebBridge
