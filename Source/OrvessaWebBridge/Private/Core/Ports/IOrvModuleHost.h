#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace OrvWebBridge
{
    /** @brief The plugin module's start-up steps before the MCP server, in the order they are performed. */
    enum class EOrvModuleStep : std::uint8_t
    {
        StyleSet,                  ///< create and register the style set, reload textures
        Commands,                  ///< register the command set
        CommandBindings,           ///< make the command list; map OpenPluginWindow and ViewProductDetails
        LevelEditorBindings,       ///< map ViewProductDetails into the level editor's global actions
        InputPreProcessor,         ///< register the Alt+R input pre-processor with Slate
        MenuStartupCallback,       ///< register the ToolMenus start-up callback that adds the menus
        CatalogTabSpawner,         ///< register the "ORVESSA App" nomad tab spawner
        OutlinerTabSpawner,        ///< register the "OrvOutliner" nomad tab spawner
        ViewportSelectionListener, ///< bind the viewport selection handler (needs the editor engine)
        ContentBrowserSelectionListener, ///< bind the Content Browser selection handler
    };

    /** @brief How many EOrvModuleStep values there are. */
    inline constexpr std::size_t OrvModuleStepCount = 10;

    /**
     * @brief What the plugin module does to the editor, one engine-facing operation per method; the order,
     * the log lines and the failure paths are the lifecycle sequencer's. Game thread.
     */
    class IOrvModuleHost
    {
    public:
        virtual ~IOrvModuleHost() = default;

        /** Performs one start-up step; false when it cannot be done in this process (it is then not undone).
         */
        virtual bool PerformStep(EOrvModuleStep Step) = 0;

        /** Undoes a step that PerformStep did. */
        virtual void UndoStep(EOrvModuleStep Step) = 0;

        /** Whether the editor engine exists yet (GEditor). */
        virtual bool HasEditorEngine() const = 0;

        /** Runs Callback once when engine initialisation ends (FCoreDelegates::OnPostEngineInit). */
        virtual void DeferToPostEngineInit(std::function<void()> Callback) = 0;

        /** Drops the deferred callback if it has not run yet. */
        virtual void CancelPostEngineInit() = 0;

        /**
         * Creates the MCP server and starts it on Port; the port it listens on (the one the system chose when
         * Port is 0), or 0, and no server kept, when it cannot listen.
         */
        virtual std::uint32_t StartMcpServer(std::uint32_t Port) = 0;

        /** Stops and destroys the MCP server. */
        virtual void StopMcpServer() = 0;
    };
} // namespace OrvWebBridge
