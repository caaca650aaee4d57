#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <memory>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    class FOrvPanelCatalog;

    /**
     * @brief The static site at the panel's origin: the built-in demo site (with its product, finish and
     * sign-in pages) or a web developer's own build (--site DIR, where paths without a file name extension
     * fall back to index.html as single-page apps expect). Every HTML page gets the bridge script.
     */
    class FOrvPanelSite
    {
    public:
        /** DemoCatalog: the demo site's catalogue for its detail pages; null for a developer's build. */
        FOrvPanelSite(std::string InDirectory, const FOrvPanelCatalog* InDemoCatalog)
            : Directory(std::move(InDirectory)), DemoCatalog(InDemoCatalog)
        {
        }

        /** Whether the folder can be served (it holds an index.html); false with the reason in Error. */
        bool Check(std::string& Error) const;

        /** The answer to a GET of Path (as requested, percent-encoded). */
        std::unique_ptr<FOrvHttpResponse> Get(std::string_view Path) const;

        /** An answer of the panel's origin; never cached, so an edited file shows on the next reload. */
        static std::unique_ptr<FOrvHttpResponse> Respond(int Code, std::string_view ContentType,
                                                         std::string Body);

        /** Html with the bridge script's tag at the start of its head. */
        static std::string InjectBridge(std::string_view Html);

        /** The script tag that loads the bridge. */
        static constexpr std::string_view BridgeScriptPath = "/__orv/orvbridge.js";

    private:
        /** The file of the folder that serves Path; empty when none may. */
        std::string Resolve(std::string_view Path) const;

        std::string Directory;
        const FOrvPanelCatalog* DemoCatalog;
    };
} // namespace OrvWebBridge
