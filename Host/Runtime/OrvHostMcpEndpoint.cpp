#include "Host/Runtime/OrvHostMcpEndpoint.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Mcp/OrvMcpHandler.h"

namespace OrvWebBridge
{
    FOrvHostMcpEndpoint::FOrvHostMcpEndpoint(FOrvHostEventLoop& Loop, const FOrvMcpPorts& InPorts,
                                             IOrvLog& Log, FOrvHttpServerLimits Limits)
        : Ports(InPorts), HttpModule(Loop, Limits),
          Server(HttpModule, Log,
                 [this]() -> FOrvMcpHandler&
                 {
                     if (!Handler)
                     {
                         Handler = std::make_unique<FOrvMcpHandler>(Ports);
                     }
                     return *Handler;
                 })
    {
    }

    FOrvHostMcpEndpoint::~FOrvHostMcpEndpoint()
    {
        Stop();
    }

    bool FOrvHostMcpEndpoint::Start(std::uint32_t Port, std::string& Error)
    {
        RequestedPort = Port;
        if (Server.Start(Port))
        {
            return true;
        }
        if (HttpModule.WasPortInUse(Port))
        {
            Error = FOrvStrings::Printf("port %u is already in use; pick another with --port", Port);
        }
        else
        {
            Error = FOrvStrings::Printf("cannot listen on 127.0.0.1:%u: %s", Port,
                                        HttpModule.GetBindError(Port).c_str());
        }
        return false;
    }

    void FOrvHostMcpEndpoint::Stop()
    {
        Server.Stop();
    }

    std::uint32_t FOrvHostMcpEndpoint::GetBoundPort() const
    {
        return Server.IsRunning() ? HttpModule.GetBoundPort(RequestedPort) : 0;
    }

    std::string FOrvHostMcpEndpoint::GetMcpUrl() const
    {
        return FOrvStrings::Printf("http://127.0.0.1:%u/mcp", GetBoundPort());
    }
} // namespace OrvWebBridge
