#pragma once

#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Mcp/OrvMcpServer.h"
#include "Host/Runtime/OrvBeastHttpServerModule.h"

#include <cstdint>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvMcpHandler;

    /**
     * @brief The AI tool endpoint as the host runs it: the core's FOrvMcpServer over the Beast HTTP module,
     * with one shared FOrvMcpHandler made on first use, all on the event loop.
     */
    class FOrvHostMcpEndpoint
    {
    public:
        FOrvHostMcpEndpoint(FOrvHostEventLoop& Loop, const FOrvMcpPorts& InPorts, IOrvLog& Log,
                            FOrvHttpServerLimits Limits = {});
        ~FOrvHostMcpEndpoint();
        FOrvHostMcpEndpoint(const FOrvHostMcpEndpoint&) = delete;
        FOrvHostMcpEndpoint& operator=(const FOrvHostMcpEndpoint&) = delete;

        /** Listens on 127.0.0.1:Port (0: the system chooses); false with a message for the user in Error. */
        bool Start(std::uint32_t Port, std::string& Error);

        /** Stops listening and closes every connection; nothing when stopped. */
        void Stop();

        /** The port listened on (the chosen one after Start(0)); 0 while stopped. */
        std::uint32_t GetBoundPort() const;

        /** "http://127.0.0.1:PORT/mcp" */
        std::string GetMcpUrl() const;

        FOrvBeastHttpServerModule& GetHttpModule() { return HttpModule; }

    private:
        FOrvMcpPorts Ports;
        std::unique_ptr<FOrvMcpHandler> Handler;
        FOrvBeastHttpServerModule HttpModule;
        FOrvMcpServer Server;
        std::uint32_t RequestedPort = 0;
    };
} // namespace OrvWebBridge
