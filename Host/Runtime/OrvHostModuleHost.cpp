#include "Host/Runtime/OrvHostModuleHost.h"

#include "Host/Runtime/OrvHostMcpEndpoint.h"

namespace OrvWebBridge
{
    bool FOrvHostModuleHost::PerformStep(EOrvModuleStep Step)
    {
        if (Step != EOrvModuleStep::CatalogTabSpawner)
        {
            return true;
        }
        // Without a panel the catalogue tab does not exist, and its step is not done.
        return PanelOptions && Panel.Start(*PanelOptions, PanelError);
    }

    void FOrvHostModuleHost::UndoStep(EOrvModuleStep Step)
    {
        if (Step == EOrvModuleStep::CatalogTabSpawner)
        {
            Panel.Stop();
        }
    }

    std::uint32_t FOrvHostModuleHost::StartMcpServer(std::uint32_t Port)
    {
        return Endpoint.Start(Port, McpError) ? Endpoint.GetBoundPort() : 0;
    }

    void FOrvHostModuleHost::StopMcpServer()
    {
        Endpoint.Stop();
    }
} // namespace OrvWebBridge
