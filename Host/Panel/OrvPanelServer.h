#pragma once

#include "Host/Runtime/OrvBeastHttpServerModule.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvHostHttpRouter;
    class FOrvPanelBridgeCalls;
    class FOrvPanelCookies;
    class FOrvPanelPage;
    class FOrvPanelSite;
    class FOrvPanelWindows;

    /** @brief What the panel's server answers with. */
    struct FOrvPanelServerParts
    {
        FOrvPanelPage& Page;
        FOrvPanelCookies& Cookies;
        FOrvPanelWindows& Windows;
        FOrvPanelBridgeCalls& Calls;
        const FOrvPanelSite& Site;
        std::string CatalogJson; ///< served as /__orv/catalog.json
    };

    /**
     * @brief The panel's origin on 127.0.0.1: the site, the bridge script, the bridge calls and the event
     * stream that carries the editor's scripts to the page. On its own HTTP server module, so that stopping
     * the MCP endpoint (which stops every listener of its module) leaves the panel alone.
     *
     * Only requests addressed to the panel's host name are answered. Bridge calls, cookie requests, popup
     * reports and the event stream come only from the panel's own origin: anything else gets a 403.
     */
    class FOrvPanelServer
    {
    public:
        FOrvPanelServer(FOrvHostEventLoop& Loop, FOrvPanelServerParts InParts);
        ~FOrvPanelServer();
        FOrvPanelServer(const FOrvPanelServer&) = delete;
        FOrvPanelServer& operator=(const FOrvPanelServer&) = delete;

        /** Listens on 127.0.0.1:Port (0: the system chooses); false with a message for the user in Error. */
        bool Start(std::uint32_t Port, std::string& Error);

        /** Ends every page's stream and stops listening. */
        void Stop();

        std::uint32_t GetBoundPort() const;

        /** Adds Script to the one that every HTML page of the panel loads (after the bridge's own). */
        void AppendPageScript(std::string_view Script) { BridgeScript += Script; }

        /** The router, for routes of the site's own backend. Null while stopped. */
        FOrvHostHttpRouter* GetRouter() const { return Router.get(); }

        /** Who may make a request. */
        enum class EOrvPanelAccess
        {
            AnyPage,   ///< anything addressed to the panel's host name (pages, styles, scripts)
            PanelPage, ///< a page of the panel's origin; requests without Origin must be same-origin fetches
            PanelCall, ///< a page of the panel's origin that says so (Origin), for requests that change state
        };

        /** Whether Request may have what Access guards. */
        bool IsAllowed(const FOrvHttpRequest& Request, EOrvPanelAccess Access) const;

        /** Answers Verb requests for Path with Answer at once, or with 403 for those Access refuses. */
        void BindAnswer(std::string_view Path, EOrvHttpVerb Verb, EOrvPanelAccess Access,
                        std::function<std::unique_ptr<FOrvHttpResponse>(const FOrvHttpRequest&)> Answer);

        /** The 403 answer for a request from elsewhere. */
        static std::unique_ptr<FOrvHttpResponse> Forbidden();

    private:
        void BindRoutes();

        FOrvPanelServerParts Parts;
        FOrvBeastHttpServerModule HttpModule;
        std::shared_ptr<FOrvHostHttpRouter> Router;
        std::uint32_t RequestedPort = 0;
        std::string BridgeScript;
    };
} // namespace OrvWebBridge
