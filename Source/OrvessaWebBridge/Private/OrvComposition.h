#pragma once

#include "CoreMinimal.h"

#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Module/OrvGuardedGameThread.h"
#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Panel/OrvWebPanelService.h"
#include "Unreal/OrvUnrealActorEditing.h"
#include "Unreal/OrvUnrealAssetRegistry.h"
#include "Unreal/OrvUnrealEditorUi.h"
#include "Unreal/OrvUnrealEditorWorld.h"
#include "Unreal/OrvUnrealEnvironment.h"
#include "Unreal/OrvUnrealFiles.h"
#include "Unreal/OrvUnrealGameThread.h"
#include "Unreal/OrvUnrealHandles.h"
#include "Unreal/OrvUnrealHttpServer.h"
#include "Unreal/OrvUnrealImageWrapper.h"
#include "Unreal/OrvUnrealLevelEvents.h"
#include "Unreal/OrvUnrealLog.h"
#include "Unreal/OrvUnrealSelection.h"
#include "Unreal/OrvUnrealStaticMeshes.h"
#include "Unreal/OrvUnrealTimers.h"
#include "Unreal/OrvUnrealTransactions.h"
#include "Unreal/OrvUnrealViewport.h"
#include "Unreal/OrvUnrealWebPanel.h"
#if ORV_WITH_CLOSED_MODULES
#include "Unreal/Closed/OrvUnrealCatalogApi.h"
#else
#include "Core/Module/OrvMissingAccountCatalogApi.h"
#endif

class SOrvOutlinerPanel;

namespace OrvWebBridge
{
    class FOrvMcpHandler;
    class FOrvMcpServer;

    /**
     * @brief The one place that builds the plugin: every adapter, the handle table they share, the
     * process-wide MCP handler (made on first use) and the server, the catalogue panel's services and the
     * outliner panels' models. Members are destroyed in reverse order, so the server goes first and the
     * guarded game-thread queue last: a task still queued then is dropped, never run against a destroyed
     * adapter. Game thread.
     */
    class FOrvComposition
    {
    public:
        FOrvComposition();
        ~FOrvComposition();
        FOrvComposition(const FOrvComposition&) = delete;
        FOrvComposition& operator=(const FOrvComposition&) = delete;

        IOrvLog& GetLog() { return Log; }
        FOrvWebPanelService& GetWebPanelService() { return WebPanelService; }
        FOrvUnrealWebPanel& GetWebPanel() { return WebPanel; }

        /** Makes the MCP server and starts it on Port; false, and no server kept, when it cannot listen. */
        bool StartMcpServer(uint32 Port);
        void StopMcpServer();

        /**
         * A new outliner panel over its own model. The composition forwards map changes to it and, when it
         * goes first, makes the panel let go of its model while the adapters still exist.
         */
        TSharedRef<SOrvOutlinerPanel> MakeOutlinerPanel();

    private:
        FOrvMcpHandler& GetMcpHandler();
        FOrvMcpPorts GetMcpPorts();
        FOrvOutlinerPanelPorts GetOutlinerPorts();
        /** Tells every live outliner panel that the editor's world went, or that a new one came. */
        void ForwardMapChange(bool bWorldTornDown);

        FOrvUnrealLog Log;
        FOrvUnrealGameThread EngineGameThread;
        FOrvGuardedGameThread GameThread{EngineGameThread};
        FOrvUnrealHandles Handles;
        FOrvUnrealEditorWorld World{Handles};
        FOrvUnrealLevelEvents LevelEvents{Handles};
        FOrvUnrealActorEditing Editing{Handles};
        FOrvUnrealSelection Selection{Handles};
        FOrvUnrealTransactions Transactions;
        FOrvUnrealAssetRegistry Assets{Handles};
        FOrvUnrealStaticMeshes Meshes{Handles};
        FOrvUnrealViewport Viewport;
        FOrvUnrealImageWrapperModule Images;
        FOrvUnrealTimers Timers;
        FOrvUnrealEnvironment Environment;
        FOrvUnrealFiles Files;
#if ORV_WITH_CLOSED_MODULES
        FOrvUnrealCatalogApi CatalogApi{GameThread};
#else
        FOrvMissingAccountCatalogApi CatalogApi{GameThread, Log};
#endif
        FOrvUnrealWebPanel WebPanel;
        FOrvWebPanelService WebPanelService{WebPanel, Log};
        FOrvUnrealEditorUi EditorUi{Handles};
        FOrvUnrealHttpServerModule HttpServer;

        TUniquePtr<FOrvMcpHandler> McpHandler;
        TUniquePtr<FOrvMcpServer> McpServer;

        TArray<TWeakPtr<SOrvOutlinerPanel>> OutlinerPanels;
        FDelegateHandle MapChangedHandle;
    };
} // namespace OrvWebBridge
