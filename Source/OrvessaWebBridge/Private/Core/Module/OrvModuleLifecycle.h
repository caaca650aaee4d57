#pragma once

#include "Core/Common/OrvConstants.h"
#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvModuleHost.h"

#include <array>
#include <cstdint>
#include <memory>

namespace OrvWebBridge
{
    /**
     * @brief The plugin module's start-up and shut-down: the fixed order of the steps, their log lines, the
     * MCP server's start on its port (a busy port is one Warning and never stops the rest) and the wait
     * for engine initialisation when the module starts before the editor engine exists. Both the editor
     * module and the headless host run their start-up through it. Game thread.
     */
    class FOrvModuleLifecycle
    {
    public:
        /** The start-up order; the MCP server starts after the last of these. */
        static constexpr std::array<EOrvModuleStep, OrvModuleStepCount> StartupOrder{
            EOrvModuleStep::StyleSet,
            EOrvModuleStep::Commands,
            EOrvModuleStep::CommandBindings,
            EOrvModuleStep::LevelEditorBindings,
            EOrvModuleStep::InputPreProcessor,
            EOrvModuleStep::MenuStartupCallback,
            EOrvModuleStep::CatalogTabSpawner,
            EOrvModuleStep::OutlinerTabSpawner,
            EOrvModuleStep::ViewportSelectionListener,
            EOrvModuleStep::ContentBrowserSelectionListener,
        };

        /** The shut-down order, after the MCP server has stopped. The level editor's binding and the command
         * list go while the command set they point at is still registered. */
        static constexpr std::array<EOrvModuleStep, OrvModuleStepCount> ShutdownOrder{
            EOrvModuleStep::InputPreProcessor,
            EOrvModuleStep::ViewportSelectionListener,
            EOrvModuleStep::ContentBrowserSelectionListener,
            EOrvModuleStep::MenuStartupCallback,
            EOrvModuleStep::StyleSet,
            EOrvModuleStep::LevelEditorBindings,
            EOrvModuleStep::CommandBindings,
            EOrvModuleStep::Commands,
            EOrvModuleStep::CatalogTabSpawner,
            EOrvModuleStep::OutlinerTabSpawner,
        };

        /** McpPort is the editor's 30011 unless a host serves elsewhere (0: the system chooses). */
        FOrvModuleLifecycle(IOrvModuleHost& InHost, IOrvLog& InLog,
                            std::uint32_t InMcpPort = FOrvConstants::McpPort);
        ~FOrvModuleLifecycle();
        FOrvModuleLifecycle(const FOrvModuleLifecycle&) = delete;
        FOrvModuleLifecycle& operator=(const FOrvModuleLifecycle&) = delete;

        /** Performs every start-up step, then starts the MCP server; nothing when already started. */
        void Startup();

        /** Stops the MCP server, then undoes every step that was done; nothing when not started. */
        void Shutdown();

        bool IsStarted() const { return bStarted; }
        bool IsMcpServerRunning() const { return bMcpServerRunning; }
        bool IsStepDone(EOrvModuleStep Step) const { return Done[static_cast<std::size_t>(Step)]; }

    private:
        bool Perform(EOrvModuleStep Step);
        void Undo(EOrvModuleStep Step);
        void BindViewportSelectionListener();
        void StartMcpServer();

        IOrvModuleHost& Host;
        IOrvLog& Log;
        std::uint32_t McpPort;
        std::array<bool, OrvModuleStepCount> Done{};
        bool bStarted = false;
        bool bMcpServerRunning = false;
        bool bWaitingForEngineInit = false;

        /** Expires with the sequencer, so a post-init callback the host failed to drop touches nothing. */
        std::shared_ptr<FOrvModuleLifecycle*> Lifetime;
    };
} // namespace OrvWebBridge
