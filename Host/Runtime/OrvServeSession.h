#pragma once

#include "Host/Panel/OrvHostPanel.h"
#include "Host/Runtime/OrvConsoleInput.h"
#include "Host/Runtime/OrvHostMcpEndpoint.h"
#include "Host/Runtime/OrvServeConsole.h"
#include "Host/Runtime/OrvServeOutliner.h"
#include "Host/Runtime/OrvStopSignals.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvMemoryEditor;
    class IOrvImageWrapperModule;

    /**
     * @brief One run of "orv-host serve" once the level is loaded: the MCP endpoint, the catalogue panel, the
     * console on standard input and the stop signals, all on the event loop, until quit, Ctrl+C or SIGTERM.
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
         * Serves MCP on Port and, unless Panel is empty, the catalogue panel; prints a URL line for each.
         * As in the editor, a port for MCP that cannot be had leaves the rest running with a Warning; without
         * a panel that would leave nothing, so it fails. False with a message for the user in Error.
         */
        bool Start(std::uint32_t Port, const std::optional<FOrvHostPanelOptions>& Panel, std::string& Error);

        /** Reads console commands from InputFd (standard input); false when it cannot be read. */
        bool StartConsole(int InputFd);

        /** Runs the loop until quit or a stop signal, then stops the endpoint; the exit code. */
        int Run();

        FOrvServeConsole& GetConsole() { return Console; }
        FOrvHostMcpEndpoint& GetEndpoint() { return Endpoint; }
        FOrvServeOutliner* GetOutliner() { return Outliner.get(); }
        FOrvHostPanel& GetPanel() { return Panel; }

    private:
        void OnConsoleLine(const std::string& Line);
        void Print(const std::string& Text);

        FOrvHostEventLoop& Loop;
        FOrvMemoryEditor& Editor;
        IOrvLog& Log;
        FOrvHostMcpEndpoint Endpoint;
        FOrvHostPanel Panel;
        FOrvServeConsole Console;
        FOrvConsoleInput Input;
        std::unique_ptr<FOrvStopSignals> Signals;
        std::unique_ptr<FOrvServeOutliner> Outliner;
        bool bPrompt = false;
    };
} // namespace OrvWebBridge
