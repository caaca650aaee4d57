#include "Tests/Support/OrvFakeHttpServer.h"

#include <algorithm>
#include <utility>

namespace OrvWebBridge
{
    std::vector<FOrvFakeHttpRouter::FRoute>::iterator FOrvFakeHttpRouter::Find(std::string_view Path,
                                                                               EOrvHttpVerb Verb)
    {
        return std::ranges::find_if(BoundRoutes, [&](const FRoute& Route)
                                    { return Route.Path == Path && Route.Verb == Verb; });
    }

    FOrvHttpRouteHandle FOrvFakeHttpRouter::BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                                      FOrvHttpRequestHandler Handler)
    {
        if (Find(Path, Verb) != BoundRoutes.end())
        {
            return {};
        }
        BoundRoutes.push_back({std::string(Path), Verb, std::move(Handler), {NextHandle++}});
        return BoundRoutes.back().Handle;
    }

    void FOrvFakeHttpRouter::UnbindRoute(FOrvHttpRouteHandle Handle)
    {
        ++UnbindCount;
        std::erase_if(BoundRoutes, [&](const FRoute& Route) { return Route.Handle.Value == Handle.Value; });
    }

    FOrvFakeHttpExchange FOrvFakeHttpRouter::Send(EOrvHttpVerb Verb, std::string_view Path, std::string Body)
    {
        FOrvFakeHttpExchange Exchange;
        if (const auto Route = Find(Path, Verb); Route != BoundRoutes.end())
        {
            // The handler's copy of the completion is all that keeps a deferred answer deliverable.
            Exchange.bHandled =
                Route->Handler({Verb, std::string(Path), std::move(Body), {}, {}},
                               [Responses = Exchange.Responses](std::unique_ptr<FOrvHttpResponse> Response) {
                                   Responses->push_back(Response ? std::move(*Response) : FOrvHttpResponse{});
                               });
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
} // namespace OrvWebBridge
