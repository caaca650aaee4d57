#include "Host/Panel/OrvPanelServer.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Host/Panel/OrvPanelBridgeCalls.h"
#include "Host/Panel/OrvPanelCookies.h"
#include "Host/Panel/OrvPanelPage.h"
#include "Host/Panel/OrvPanelSite.h"
#include "Host/Panel/OrvPanelWindows.h"
#include "Host/Panel/OrvUrlEncoding.h"
#include "Host/Runtime/OrvHostHttpRouter.h"

namespace OrvWebBridge
{
    namespace
    {
        constexpr std::string_view BridgeScriptSource =
#include "Host/Panel/OrvBridgeScript.inc"
            ;

        /** The bridge script with the page's function names written in. */
        std::string MakeBridgeScript()
        {
            std::string Names = "[";
            for (const std::string& Name : FOrvPanelBridgeCalls::FunctionNames())
            {
                Names += (Names.size() > 1 ? ", \"" : "\"") + Name + "\"";
            }
            return FOrvStrings::ReplaceAll(BridgeScriptSource, "/*ORV_FUNCTION_NAMES*/ []", Names + "]");
        }
    } // namespace

    FOrvPanelServer::FOrvPanelServer(FOrvHostEventLoop& Loop, FOrvPanelServerParts InParts)
        : Parts(std::move(InParts)), HttpModule(Loop), BridgeScript(MakeBridgeScript())
    {
    }

    FOrvPanelServer::~FOrvPanelServer()
    {
        Stop();
    }

    bool FOrvPanelServer::Start(std::uint32_t Port, std::string& Error)
    {
        RequestedPort = Port;
        Router = HttpModule.GetHostHttpRouter(Port);
        if (!Router)
        {
            Error =
                HttpModule.WasPortInUse(Port)
                    ? FOrvStrings::Printf("port %u is already in use; pick another with --panel-port", Port)
                    : FOrvStrings::Printf("cannot listen on 127.0.0.1:%u: %s", Port,
                                          HttpModule.GetBindError(Port).c_str());
            return false;
        }
        BindRoutes();
        HttpModule.StartAllListeners();
        return true;
    }

    void FOrvPanelServer::Stop()
    {
        Parts.Page.DisconnectAll();
        HttpModule.StopAllListeners();
        Router.reset();
    }

    std::uint32_t FOrvPanelServer::GetBoundPort() const
    {
        return Router ? HttpModule.GetBoundPort(RequestedPort) : 0;
    }

    bool FOrvPanelServer::IsAllowed(const FOrvHttpRequest& Request, EOrvPanelAccess Access) const
    {
        // The Host header stops sites that point their own name at 127.0.0.1 (DNS rebinding); Origin stops
        // other sites' pages from calling in, and Sec-Fetch-Site catches the requests that carry no Origin.
        const std::string Port = std::to_string(GetBoundPort());
        const std::string_view Host = Request.FindHeader("Host");
        if (Host != "127.0.0.1:" + Port && Host != "localhost:" + Port)
        {
            return false;
        }
        if (Access == EOrvPanelAccess::AnyPage)
        {
            return true;
        }
        const std::string_view Origin = Request.FindHeader("Origin");
        if (Origin.empty() ? Access == EOrvPanelAccess::PanelCall : Origin != "http://" + std::string(Host))
        {
            return false;
        }
        const std::string_view FetchSite = Request.FindHeader("Sec-Fetch-Site");
        return FetchSite.empty() || FetchSite == "same-origin";
    }

    std::unique_ptr<FOrvHttpResponse> FOrvPanelServer::Forbidden()
    {
        return FOrvPanelSite::Respond(403, "text/plain; charset=utf-8",
                                      "Forbidden: only the catalogue panel's own pages may do this.\n");
    }

    void FOrvPanelServer::BindAnswer(
        std::string_view Path, EOrvHttpVerb Verb, EOrvPanelAccess Access,
        std::function<std::unique_ptr<FOrvHttpResponse>(const FOrvHttpRequest&)> Answer)
    {
        // Each handler answers at once: "response or refusal" goes straight to the callback.
        Router->BindRoute(Path, Verb,
                          [this, Access, Answer = std::move(Answer)](const FOrvHttpRequest& Request,
                                                                     const FOrvHttpResultCallback& OnComplete)
                          {
                              OnComplete(IsAllowed(Request, Access) ? Answer(Request) : Forbidden());
                              return true;
                          });
    }

    void FOrvPanelServer::BindRoutes()
    {
        const auto Bind =
            [this](std::string_view Path, EOrvHttpVerb Verb, EOrvPanelAccess Access,
                   std::function<std::unique_ptr<FOrvHttpResponse>(const FOrvHttpRequest&)> Answer)
        { BindAnswer(Path, Verb, Access, std::move(Answer)); };

        Bind(FOrvPanelSite::BridgeScriptPath, EOrvHttpVerb::Get, EOrvPanelAccess::AnyPage,
             [this](const FOrvHttpRequest&)
             { return FOrvPanelSite::Respond(200, "text/javascript; charset=utf-8", BridgeScript); });
        Bind("/__orv/health", EOrvHttpVerb::Get, EOrvPanelAccess::AnyPage,
             [](const FOrvHttpRequest&)
             { return FOrvPanelSite::Respond(200, "text/plain; charset=utf-8", "ok\n"); });
        Bind("/__orv/catalog.json", EOrvHttpVerb::Get, EOrvPanelAccess::AnyPage,
             [this](const FOrvHttpRequest&)
             { return FOrvPanelSite::Respond(200, "application/json", Parts.CatalogJson); });
        Bind("/__orv/call", EOrvHttpVerb::Post, EOrvPanelAccess::PanelCall,
             [this](const FOrvHttpRequest& Request)
             {
                 FOrvBridgeCallAnswer Answer = Parts.Calls.Call(Request.Body);
                 return FOrvPanelSite::Respond(Answer.Status, "application/json", std::move(Answer.Json));
             });
        Bind("/__orv/cookies", EOrvHttpVerb::Post, EOrvPanelAccess::PanelCall,
             [this](const FOrvHttpRequest& Request)
             {
                 auto Response = FOrvPanelSite::Respond(204, "text/plain", "");
                 for (std::string& Header : Parts.Cookies.TakeSetCookieHeaders(Request.FindHeader("Cookie")))
                 {
                     Response->Headers.emplace_back("Set-Cookie", std::move(Header));
                 }
                 return Response;
             });
        Bind("/__orv/popup-url", EOrvHttpVerb::Post, EOrvPanelAccess::PanelCall,
             [this](const FOrvHttpRequest& Request)
             {
                 rapidjson::Document Report;
                 std::string Url;
                 const rapidjson::Value* Id = nullptr;
                 if (!FOrvJson::ParseObject(Request.Body, Report) ||
                     !FOrvJson::TryGetStringField(Report, "url", Url) ||
                     !(Id = FOrvJson::FindField(Report, "id")) || !Id->IsUint64())
                 {
                     return FOrvPanelSite::Respond(400, "text/plain; charset=utf-8",
                                                   "Expected {\"id\": popup number, \"url\": text}.\n");
                 }
                 Parts.Windows.OnPopupUrl(Id->GetUint64(), Url);
                 return FOrvPanelSite::Respond(204, "text/plain", "");
             });
        Router->BindEventStream(
            "/__orv/events",
            [this](const FOrvHttpRequest& Request,
                   const std::shared_ptr<IOrvHttpEventStream>& Stream) -> std::unique_ptr<FOrvHttpResponse>
            {
                if (!IsAllowed(Request, EOrvPanelAccess::PanelPage))
                {
                    return Forbidden();
                }
                Parts.Page.Connect(Stream, FOrvUrlEncoding::FindField(Request.Query, "page"));
                return nullptr;
            });
        Router->SetFallbackHandler(
            [this](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& OnComplete)
            {
                const bool bPost = Request.Verb == EOrvHttpVerb::Post;
                if (!IsAllowed(Request, bPost ? EOrvPanelAccess::PanelCall : EOrvPanelAccess::AnyPage))
                {
                    OnComplete(Forbidden());
                }
                else if (bPost)
                {
                    OnComplete(FOrvPanelSite::Respond(404, "text/plain; charset=utf-8", "Not found.\n"));
                }
                else
                {
                    OnComplete(Parts.Site.Get(Request.Path));
                }
                return true;
            });
    }
} // namespace OrvWebBridge
