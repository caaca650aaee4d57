#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What one request sent through the fake router got back, so far. */
    struct FOrvFakeHttpExchange
    {
        bool bHandled = false; ///< a route matched and its handler returned true
        /** Responses passed to the completion; a deferred one lands here after Send returned. */
        std::shared_ptr<std::vector<FOrvHttpResponse>> Responses =
            std::make_shared<std::vector<FOrvHttpResponse>>();
    };

    /** @brief One port's router: keeps the bound routes and delivers requests to them by hand. */
    class FOrvFakeHttpRouter : public IOrvHttpRouter
    {
    public:
        struct FRoute
        {
            std::string Path;
            EOrvHttpVerb Verb;
            FOrvHttpRequestHandler Handler;
            FOrvHttpRouteHandle Handle;
        };

        FOrvHttpRouteHandle BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                      FOrvHttpRequestHandler Handler) override;
        void UnbindRoute(FOrvHttpRouteHandle Handle) override;

        /** Delivers a request to the route bound to its path and verb, as the HTTP server would. */
        FOrvFakeHttpExchange Send(EOrvHttpVerb Verb, std::string_view Path, std::string Body = {});

        const std::vector<FRoute>& Routes() const { return BoundRoutes; }

        int UnbindCount = 0;

    private:
        std::vector<FRoute>::iterator Find(std::string_view Path, EOrvHttpVerb Verb);

        std::vector<FRoute> BoundRoutes;
        std::uint64_t NextHandle = 1;
    };

    /** @brief The HTTP server module: one fake router per port, listener start/stop counted. */
    class FOrvFakeHttpServerModule : public IOrvHttpServerModule
    {
    public:
        std::shared_ptr<IOrvHttpRouter> GetHttpRouter(std::uint32_t Port, bool bFailOnBindFailure) override;
        void StartAllListeners() override { ++StartCount; }
        void StopAllListeners() override { ++StopCount; }

        FOrvFakeHttpRouter* FindRouter(std::uint32_t Port);

        bool bRefuseRouters = false; ///< answer null, as a host whose port cannot be bound does
        int RouterRequests = 0;
        int StartCount = 0;
        int StopCount = 0;

    private:
        std::map<std::uint32_t, std::shared_ptr<FOrvFakeHttpRouter>> Routers;
    };
} // namespace OrvWebBridge
