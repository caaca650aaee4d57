#pragma once

#include "Core/Ports/IOrvLog.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvPanelPage;
    class FOrvPanelServer;
    class FOrvWebPanelSession;
    class IOrvCatalogAccount;

    /** @brief How the host's catalogue panel is served. */
    struct FOrvHostPanelOptions
    {
        std::uint32_t Port = 30012; ///< 0 lets the system choose
        std::string SiteDir;        ///< a web developer's static build; empty: the built-in demo site
        std::string CatalogFile;    ///< the catalogue of the account and the demo site; empty: the demo's
    };

    /**
     * @brief The "Orv Catalog" panel as orv-host runs it, built in one place: the in-memory catalogue
     * account, the module's panel services (the core's session, events and script bridge) over the browser
     * page, and the server at the panel's origin. Event loop only.
     */
    class FOrvHostPanel
    {
    public:
        /** Print shows a line to the user (the console): the URLs that pages ask to open. */
        FOrvHostPanel(FOrvHostEventLoop& InLoop, IOrvLog& InLog,
                      std::function<void(const std::string&)> InPrint);
        ~FOrvHostPanel();
        FOrvHostPanel(const FOrvHostPanel&) = delete;
        FOrvHostPanel& operator=(const FOrvHostPanel&) = delete;

        /** Loads the catalogue and the site and starts serving; false with a message for the user in Error.
         */
        bool Start(const FOrvHostPanelOptions& Options, std::string& Error);
        void Stop();

        /** "http://127.0.0.1:PORT/" */
        std::string GetUrl() const;

        /** The module's services over the panel (navigate, run script, events, session); null before Start.
         */
        FOrvWebPanelSession* GetSession() const;

        /** The catalogue account the panel signs in to; null before Start. */
        IOrvCatalogAccount* GetAccount() const;

        /** The browser page that is the panel, and the server at its origin; null before Start. */
        FOrvPanelPage* GetPage() const;
        FOrvPanelServer* GetServer() const;

    private:
        struct FParts;

        FOrvHostEventLoop& Loop;
        IOrvLog& Log;
        std::function<void(const std::string&)> Print;
        std::unique_ptr<FParts> Parts;
    };
} // namespace OrvWebBridge
