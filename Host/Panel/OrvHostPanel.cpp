#include "Host/Panel/OrvHostPanel.h"

#include "Core/Bridge/OrvAccountEventRelay.h"
#include "Core/Bridge/OrvScriptBridge.h"
#include "Core/Bridge/OrvWebPanelSession.h"
#include "Core/Panel/OrvWebPanelService.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Panel/OrvDemoSiteSignIn.h"
#include "Host/Panel/OrvMemoryCatalogAccount.h"
#include "Host/Panel/OrvMemoryCookieJar.h"
#include "Host/Panel/OrvPanelBridgeCalls.h"
#include "Host/Panel/OrvPanelCatalog.h"
#include "Host/Panel/OrvPanelCookies.h"
#include "Host/Panel/OrvPanelPage.h"
#include "Host/Panel/OrvPanelServer.h"
#include "Host/Panel/OrvPanelSite.h"
#include "Host/Panel/OrvPanelWindows.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHostHttpRouter.h"
#include "Host/Runtime/OrvInputFile.h"

namespace OrvWebBridge
{
    /** @brief Everything the panel is made of, in the order it is built. */
    struct FOrvHostPanel::FParts
    {
        FParts(FOrvHostEventLoop& Loop, IOrvLog& Log, const std::function<void(const std::string&)>& Print,
               FOrvPanelCatalog InCatalog, const FOrvHostPanelOptions& Options)
            : Catalog(std::move(InCatalog)), Jar(Loop.GameThread()), Cookies(Page), Windows(Page, Print),
              PanelService(Page, Log), Account(Catalog, Loop.Timers(), Log),
              Bridge({[this]() -> IOrvCatalogAccount* { return &Account; },
                      [this]() -> FOrvWebPanelSession* { return Session.get(); }, Windows, Log}),
              Calls(Bridge), Site(Options.SiteDir.empty() ? ORV_PANEL_SITE_DIR : Options.SiteDir,
                                  Options.SiteDir.empty() ? &Catalog : nullptr),
              Server(Loop, {Page, Cookies, Windows, Calls, Site, Catalog.GetJson()})
        {
        }

        ~FParts()
        {
            // The account's queue reports to the relay, which talks to the session: unhook before they go.
            Account.SetEvents(nullptr);
        }

        FOrvPanelCatalog Catalog;
        FOrvMemoryCookieJar Jar;
        FOrvPanelPage Page;
        FOrvPanelCookies Cookies;
        FOrvPanelWindows Windows;
        FOrvWebPanelService PanelService;
        FOrvMemoryCatalogAccount Account;
        FOrvScriptBridge Bridge;
        FOrvPanelBridgeCalls Calls;
        FOrvPanelSite Site;
        FOrvPanelServer Server;
        // Made once the port is known, since the site's address is part of them.
        std::unique_ptr<FOrvWebPanelSession> Session;
        std::unique_ptr<FOrvAccountEventRelay> Relay;
    };

    FOrvHostPanel::FOrvHostPanel(FOrvHostEventLoop& InLoop, IOrvLog& InLog,
                                 std::function<void(const std::string&)> InPrint)
        : Loop(InLoop), Log(InLog), Print(std::move(InPrint))
    {
    }

    FOrvHostPanel::~FOrvHostPanel()
    {
        Stop();
    }

    bool FOrvHostPanel::Start(const FOrvHostPanelOptions& Options, std::string& Error)
    {
        std::string Text(FOrvDemoScene::CatalogJson());
        if (!Options.CatalogFile.empty() && !FOrvInputFile::Read(Options.CatalogFile, Text, Error))
        {
            return false;
        }
        FOrvPanelCatalog Catalog;
        std::string Problem;
        if (!Catalog.Load(Text, Problem))
        {
            Error = (Options.CatalogFile.empty() ? std::string("demo catalogue") : Options.CatalogFile) +
                    ": " + Problem;
            return false;
        }

        auto Built = std::make_unique<FParts>(Loop, Log, Print, std::move(Catalog), Options);
        if (!Built->Site.Check(Error) || !Built->Server.Start(Options.Port, Error))
        {
            return false;
        }
        const std::string Origin = "http://127.0.0.1:" + std::to_string(Built->Server.GetBoundPort());
        // The panel's origin is the site and the API at once; its cookies are host-only.
        Built->Session = std::make_unique<FOrvWebPanelSession>(
            FOrvWebPanelSessionPorts{
                Built->PanelService, Built->Windows, [Jar = &Built->Jar]() -> IOrvCatalogApi* { return Jar; },
                [Cookies = &Built->Cookies] { return FOrvBrowserCookiesLookup{Cookies}; }, Log},
            FOrvCatalogSite{Origin, Origin, ""});
        Built->Relay = std::make_unique<FOrvAccountEventRelay>(*Built->Session, Log);
        Built->Account.SetEvents(Built->Relay.get());
        if (Options.SiteDir.empty())
        {
            Built->Server.BindAnswer(
                "/oauth/sign-in", EOrvHttpVerb::Post, FOrvPanelServer::EOrvPanelAccess::PanelCall,
                [](const FOrvHttpRequest& Request) { return FOrvDemoSiteSignIn::Answer(Request.Body); });
        }
        Parts = std::move(Built);
        return true;
    }

    void FOrvHostPanel::Stop()
    {
        if (Parts)
        {
            Parts->Server.Stop();
            Parts.reset();
        }
    }

    FOrvWebPanelSession* FOrvHostPanel::GetSession() const
    {
        return Parts ? Parts->Session.get() : nullptr;
    }

    IOrvCatalogAccount* FOrvHostPanel::GetAccount() const
    {
        return Parts ? &Parts->Account : nullptr;
    }

    FOrvPanelPage* FOrvHostPanel::GetPage() const
    {
        return Parts ? &Parts->Page : nullptr;
    }

    FOrvPanelServer* FOrvHostPanel::GetServer() const
    {
        return Parts ? &Parts->Server : nullptr;
    }

    std::string FOrvHostPanel::GetUrl() const
    {
        return Parts ? "http://127.0.0.1:" + std::to_string(Parts->Server.GetBoundPort()) + "/"
                     : std::string();
    }
} // namespace OrvWebBridge
