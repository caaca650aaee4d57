#pragma once

#include "Core/Module/OrvModuleLifecycle.h"
#include "Host/Panel/OrvHostPanel.h"
#include "Host/Runtime/OrvConsoleInput.h"
#include "Host/Runtime/OrvHostMcpEndpoint.h"
#include "Host/Runtime/OrvHostModuleHost.h"
#include "Host/Runtime/OrvServeConsole.h"
#include "Host/Runtime/OrvServeOutliner.h"
#include "Host/Runtime/OrvServeSmartPanel.h"
#include "Host/Runtime/OrvStopSignals.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvPanelToolbar;
    class FOrvMemoryEditor;
    class IOrvImageWrapperModule;

    /**
     * @brief One run of "orv-host serve" once the level is loaded: the MCP endpoint, the catalogue panel, the
     * console on standard input and the stop signals, all on the event loop, until quit, Ctrl+C or SIGTERM.
     * The endpoint and the panel start and stop through the plugin module's lifecycle, as in the editor.
     */
    class FOrvServeSession
    {
    public:
        FOrvServeSession(FOrvHostEventLoop& InLoop, FOrvMemoryEditor& InEditor,
                         IOrvImageWrapperModule& Images, IOrvLog& InLog, std::string SceneFile);
        ~FOrvServeSession();
        FOrvServeSession(const FOrvServeSession&) = delete;
        FOrvServeSession& operator=(const FOrvServeSession&) = delete;

        /** Opens the outliner's catalogue source; Start then scans and adds its commands. False with Error.
         */
        bool OpenOutliner(const FOrvCatalogSourceOptions& Catalog, std::string& Error);

        /**
         * Runs the module's start-up: serves the catalogue panel unless Panel is empty, and MCP on Port;
         * prints a URL line for each. As in the editor, a port for MCP that cannot be had leaves the rest
         * running with one Warning; without a panel that would leave nothing, so it fails. False with a
         * message for the user in Error, after undoing what had started.
         */
        bool Start(std::uint32_t Port, const std::optional<FOrvHostPanelOptions>& Panel, std::string& Error);

        /** Reads console commands from InputFd (standard input); false when it cannot be read. */
        bool StartConsole(int InputFd);

        /** Runs the loop until quit or a stop signal, then runs the module's shut-down; the exit code. */
        int Run();

        FOrvServeConsole& GetConsole() { return Console; }
        FOrvHostMcpEndpoint& GetEndpoint() { return Endpoint; }
        FOrvServeOutliner* GetOutliner() { return Outliner.get(); }
        FOrvHostPanel& GetPanel() { return Panel; }

    private:
        void OnConsoleLine(const std::string& Line);
        void StopSmartPanel();
        void Print(const std::string& Text);

        FOrvHostEventLoop& Loop;
        FOrvMemoryEditor& Editor;
        IOrvLog& Log;
        FOrvHostMcpEndpoint Endpoint;
        FOrvHostPanel Panel;
        std::unique_ptr<FOrvHostModuleHost> ModuleHost;
        std::unique_ptr<FOrvModuleLifecycle> Lifecycle;
        FOrvServeConsole Console;
        FOrvConsoleInput Input;
        std::unique_ptr<FOrvStopSignals> Signals;
        std::unique_ptr<FOrvServeOutliner> Outliner;
        std::unique_ptr<FOrvServeSmartPanel>
            SmartPanel; ///< with the panel: it follows the editor's selection
        std::unique_ptr<FOrvPanelToolbar> PanelToolbar;
        bool bPrompt = false;
    };
} // namespace OrvWebBridge
