#include "Tests/Support/OrvFakeHttpServer.h"

#include <algorithm>
#include <utility>

FOrvHttpRouteHandle FOrvFakeHttpRouter::BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                                  FOrvHttpRequestHandler Handler)
{
    if (std::ranges::any_of(BoundRoutes,
                            [&](const FRoute& Route) { return Route.Path == Path && Route.Verb == Verb; }))
    {
        return {};
    }
    const FOrvHttpRouteHandle Handle{NextHandle++};
    BoundRoutes.push_back({std::string(Path), Verb, std::move(Handler), Handle});
    return Handle;
}

void FOrvFakeHttpRouter::UnbindRoute(FOrvHttpRouteHandle Handle)
{
    ++UnbindCount;
    std::erase_if(BoundRoutes, [&](const FRoute& Route) { return Route.Handle.Value == Handle.Value; });
}

FOrvFakeHttpExchange FOrvFakeHttpRouter::Send(EOrvHttpVerb Verb, std::string_view Path, std::string Body)
{
    FOrvFakeHttpExchange Exchange;
    for (const FRoute& Route : BoundRoutes)
    {
        if (Route.Path != Path || Route.Verb != Verb)
        {
            continue;
        }
        FOrvHttpRequest Request;
        Request.Verb = Verb;
        Request.Path = std::string(Path);
        Request.Body = std::move(Body);
        // The handler's copy of the completion is all that keeps a deferred answer deliverable.
        FOrvHttpResultCallback OnComplete =
            [Responses = Exchange.Responses](std::unique_ptr<FOrvHttpResponse> Response)
        { Responses->push_back(Response ? std::move(*Response) : FOrvHttpResponse{}); };
        Exchange.bHandled = Route.Handler(Request, OnComplete);
        break;
    }
    return Exchange;
}

std::shared_ptr<IOrvHttpRouter> FOrvFakeHttpServerModule::GetHttpRouter(std::uint32_t Port, bool)
{
    ++RouterRequests;
    if (bRefuseRouters)
    {
        return nullptr;
    }
    std::shared_ptr<FOrvFakeHttpRouter>& Router = Routers[Port];
    return Router ? Router : Router = std::make_shared<FOrvFakeHttpRouter>();
}

FOrvFakeHttpRouter* FOrvFakeHttpServerModule::FindRouter(std::uint32_t Port)
{
    const auto Found = Routers.find(Port);
    return Found == Routers.end() ? nullptr : Found->second.get();
}
