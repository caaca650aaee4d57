#include "Unreal/OrvUnrealHttpServer.h"

#include "Unreal/OrvUnrealConversions.h"

#include "HttpPath.h"
#include "HttpRequestHandler.h"
#include "HttpResultCallback.h"
#include "HttpServerModule.h"
#include "HttpServerRequest.h"
#include "HttpServerResponse.h"
#include "IHttpRouter.h"

namespace OrvWebBridge
{
    namespace
    {
        FOrvHttpRequest OrvUnrealHttpToCoreRequest(const FHttpServerRequest& Request)
        {
            FOrvHttpRequest Converted;
            Converted.Verb =
                Request.Verb == EHttpServerRequestVerbs::VERB_POST ? EOrvHttpVerb::Post : EOrvHttpVerb::Get;
            Converted.Path = FOrvUnrealConversions::ToUtf8(Request.RelativePath.GetPath());
            // The body is raw bytes without a terminator: copied by length, never read as a C string.
            Converted.Body.assign(reinterpret_cast<const char*>(Request.Body.GetData()),
                                  static_cast<size_t>(Request.Body.Num()));
            for (const TPair<FString, TArray<FString>>& Header : Request.Headers)
            {
                for (const FString& Value : Header.Value)
                {
                    Converted.Headers.emplace_back(FOrvUnrealConversions::ToUtf8(Header.Key),
                                                   FOrvUnrealConversions::ToUtf8(Value));
                }
            }
            // The engine hands the query over already split into names and values, so the string after '?'
            // is put back together from them (in the map's order, which need not be the client's).
            for (const TPair<FString, FString>& Param : Request.QueryParams)
            {
                Converted.Query += Converted.Query.empty() ? "" : "&";
                Converted.Query += FOrvUnrealConversions::ToUtf8(Param.Key) + "=" +
                                   FOrvUnrealConversions::ToUtf8(Param.Value);
            }
            return Converted;
        }

        TUniquePtr<FHttpServerResponse> OrvUnrealHttpToEngineResponse(const FOrvHttpResponse& Response)
        {
            TArray<uint8> Body(reinterpret_cast<const uint8*>(Response.Body.data()),
                               static_cast<int32>(Response.Body.size()));
            // The byte overload sends the content type as given; the text overload would append
            // ";charset=utf-8" to it.
            TUniquePtr<FHttpServerResponse> Converted = FHttpServerResponse::Create(
                MoveTemp(Body), FOrvUnrealConversions::ToFString(Response.ContentType));
            Converted->Code = static_cast<EHttpServerResponseCodes>(Response.Code);
            for (const std::pair<std::string, std::string>& Header : Response.Headers)
            {
                Converted->Headers.FindOrAdd(FOrvUnrealConversions::ToFString(Header.first))
                    .Add(FOrvUnrealConversions::ToFString(Header.second));
            }
            return Converted;
        }
    } // namespace

    FOrvUnrealHttpRouter::~FOrvUnrealHttpRouter()
    {
        for (const TPair<uint64, FHttpRouteHandle>& Route : Routes)
        {
            Router->UnbindRoute(Route.Value);
        }
    }

    FOrvHttpRouteHandle FOrvUnrealHttpRouter::BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                                        FOrvHttpRequestHandler Handler)
    {
        const EHttpServerRequestVerbs Verbs = Verb == EOrvHttpVerb::Post ? EHttpServerRequestVerbs::VERB_POST
                                                                         : EHttpServerRequestVerbs::VERB_GET;
        const FHttpRouteHandle RouteHandle = Router->BindRoute(
            FHttpPath(FOrvUnrealConversions::ToFString(Path)), Verbs,
            FHttpRequestHandler::CreateLambda(
                [Handler = MoveTemp(Handler)](const FHttpServerRequest& Request,
                                              const FHttpResultCallback& OnComplete)
                {
                    // The engine's callback is copyable; the copy may be called later, from a game-thread
                    // task.
                    FOrvHttpResultCallback Complete = [OnComplete](std::unique_ptr<FOrvHttpResponse> Response)
                    {
                        check(IsInGameThread());
                        if (!Response)
                        {
                            Response = std::make_unique<FOrvHttpResponse>();
                            Response->Code = 500;
                        }
                        OnComplete(OrvUnrealHttpToEngineResponse(*Response));
                    };
                    return Handler(OrvUnrealHttpToCoreRequest(Request), Complete);
                }));
        // A path and verb pair that is already bound gives no handle.
        if (!RouteHandle.IsValid())
        {
            return FOrvHttpRouteHandle();
        }
        const uint64 Id = NextId++;
        Routes.Add(Id, RouteHandle);
        return FOrvHttpRouteHandle{Id};
    }

    void FOrvUnrealHttpRouter::UnbindRoute(FOrvHttpRouteHandle Handle)
    {
        FHttpRouteHandle RouteHandle;
        if (Routes.RemoveAndCopyValue(Handle.Value, RouteHandle))
        {
            Router->UnbindRoute(RouteHandle);
        }
    }

    std::shared_ptr<IOrvHttpRouter> FOrvUnrealHttpServerModule::GetHttpRouter(std::uint32_t Port, bool)
    {
        // The engine binds a new port's socket only once listeners are running, and only then can it
        // report a busy port: with listeners not yet started, GetHttpRouter never returns null. So
        // listeners are started first and a bind failure is always asked for; that is what keeps this
        // port's promise of null for a port that cannot be had.
        FHttpServerModule& Module = FHttpServerModule::Get();
        Module.StartAllListeners();
        const TSharedPtr<IHttpRouter> Router = Module.GetHttpRouter(Port, /*bFailOnBindFailure=*/true);
        if (!Router.IsValid())
        {
            return nullptr;
        }
        return std::make_shared<FOrvUnrealHttpRouter>(Router.ToSharedRef());
    }

    void FOrvUnrealHttpServerModule::StartAllListeners()
    {
        FHttpServerModule::Get().StartAllListeners();
    }

    void FOrvUnrealHttpServerModule::StopAllListeners()
    {
        // Process-wide: this also stops other plugins' listeners (the Remote Control web server, for one).
        FHttpServerModule::Get().StopAllListeners();
    }
} // namespace OrvWebBridge
