#pragma once

#include "Host/Runtime/OrvBeastHttpServerModule.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHostHttpRouter.h"

#include <cstdint>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    inline std::unique_ptr<FOrvHttpResponse> MakeTextResponse(std::string Body, int Code = 200)
    {
        auto Response = std::make_unique<FOrvHttpResponse>();
        Response->Code = Code;
        Response->ContentType = "text/plain";
        Response->Body = std::move(Body);
        return Response;
    }

    /** @brief The host's HTTP server listening on an OS-chosen loopback port with one router, started. */
    struct FOrvBeastServerRig
    {
        explicit FOrvBeastServerRig(FOrvHttpServerLimits Limits = {}) : Module(Loop, Limits)
        {
            Router = Module.GetHostHttpRouter(0);
            Module.StartAllListeners();
        }

        std::uint16_t Port() const { return static_cast<std::uint16_t>(Module.GetBoundPort(0)); }

        /** Binds a route whose handler answers with the request body, on a later turn of the loop. */
        FOrvHttpRouteHandle BindEcho(const char* Path, EOrvHttpVerb Verb)
        {
            return Router->BindRoute(
                Path, Verb,
                [this](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                {
                    Loop.GameThread().Post([Done, Body = Request.Body] { Done(MakeTextResponse(Body)); });
                    return true;
                });
        }

        bool WaitForConnections(std::size_t Count)
        {
            return Loop.RunUntil([&] { return Module.GetOpenConnectionCount() == Count; }, 5.0);
        }

        FOrvHostEventLoop Loop;
        FOrvBeastHttpServerModule Module;
        std::shared_ptr<FOrvHostHttpRouter> Router;
    };
} // namespace OrvWebBridge
