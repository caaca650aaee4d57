#pragma once

#include "Core/Ports/IOrvHttpRouter.h"
#include "Core/Ports/IOrvLog.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace OrvWebBridge
{
    class FOrvMcpHandler;

    /**
     * @brief The local MCP endpoint: binds GET /health, GET /sse, POST /sse and POST /mcp on one port of
     * the HTTP server and answers POSTs with the shared handler's JSON-RPC text. Game thread.
     *
     * No streaming, session or origin check: GET /sse answers one endpoint event and closes, and every
     * JSON-RPC response allows any origin. Copies share the router.
     */
    class FOrvMcpServer
    {
    public:
        /** Yields the one process-wide handler, making it on first use. */
        using FOrvHandlerAccessor = std::function<FOrvMcpHandler&()>;

        FOrvMcpServer(IOrvHttpServerModule& InHttpServer, IOrvLog& InLog, FOrvHandlerAccessor InGetHandler);
        ~FOrvMcpServer();

        FOrvMcpServer(const FOrvMcpServer&) = default;
        FOrvMcpServer& operator=(const FOrvMcpServer&) = delete;

        /** Starts listening on InPort; true when running afterwards. A running server keeps its port. */
        bool Start(std::uint32_t InPort);

        /** Unbinds the routes and stops every listener of the process; nothing when already stopped. */
        void Stop();

        std::uint32_t GetPort() const { return Port; }
        bool IsRunning() const { return bRunning; }

    private:
        void RegisterRoutes();

        IOrvHttpServerModule& HttpServer;
        IOrvLog& Log;
        FOrvHandlerAccessor GetHandler;

        std::shared_ptr<IOrvHttpRouter> Router;
        std::vector<FOrvHttpRouteHandle> RouteHandles;
        std::uint32_t Port = 0;
        bool bRunning = false;
    };
} // namespace OrvWebBridge
