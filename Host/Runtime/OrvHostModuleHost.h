#pragma once

#include "Core/Ports/IOrvModuleHost.h"
#include "Host/Panel/OrvHostPanel.h"

#include <optional>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostMcpEndpoint;

    /**
     * @brief The plugin module's start-up steps as orv-host performs them, so that the host starts and stops
     * through the same sequence, with the same log lines, as the editor. The host has no Slate: style,
     * commands, key bindings, menus and the selection listeners have nothing to register with. The catalogue
     * tab's spawner serves the panel (the page the tab would show) unless there is none; the MCP server is
     * the endpoint. The in-memory editor exists before start-up, as the editor engine does. Event loop only.
     */
    class FOrvHostModuleHost final : public IOrvModuleHost
    {
    public:
        FOrvHostModuleHost(FOrvHostMcpEndpoint& InEndpoint, FOrvHostPanel& InPanel,
                           std::optional<FOrvHostPanelOptions> InPanelOptions)
            : Endpoint(InEndpoint), Panel(InPanel), PanelOptions(std::move(InPanelOptions))
        {
        }

        bool PerformStep(EOrvModuleStep Step) override;
        void UndoStep(EOrvModuleStep Step) override;
        bool HasEditorEngine() const override { return true; }
        void DeferToPostEngineInit(std::function<void()> Callback) override { Callback(); }
        void CancelPostEngineInit() override {}
        std::uint32_t StartMcpServer(std::uint32_t Port) override;
        void StopMcpServer() override;

        /** Why the endpoint could not listen, for the user; empty when it did. */
        const std::string& GetMcpError() const { return McpError; }

        /** Why the panel could not be served, for the user; empty when it was. */
        const std::string& GetPanelError() const { return PanelError; }

    private:
        FOrvHostMcpEndpoint& Endpoint;
        FOrvHostPanel& Panel;
        std::optional<FOrvHostPanelOptions> PanelOptions;
        std::string McpError;
        std::string PanelError;
    };
} // namespace OrvWebBridge
