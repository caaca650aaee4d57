#pragma once

#include "CoreMinimal.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Module/OrvGuardedGameThread.h"
#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Panel/OrvWebPanelService.h"
#include "Core/SmartPanel/OrvSmartPanel.h"
#include "Unreal/OrvUnrealActorEditing.h"
#include "Unreal/OrvUnrealAssetRegistry.h"
#include "Unreal/OrvUnrealClipboard.h"
#include "Unreal/OrvUnrealContentBrowser.h"
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
#include "Unreal/OrvUnrealWidgetFocus.h"
#if ORV_WITH_CLOSED_MODULES
#include "Unreal/Closed/OrvUnrealCatalogApi.h"
#else
#include "Core/Module/OrvMissingAccountCatalogApi.h"
#endif

class SOrvOutlinerPanel;
class SWebBrowser;
class SWidget;

namespace OrvWebBridge
{
    class FOrvCatalogPanel;
    class FOrvMcpHandler;
    class FOrvMcpServer;
    class FOrvScriptBridge;

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
        FOrvSmartPanel& GetSmartPanel() { return SmartPanel; }

        /** Makes the MCP server and starts it on Port; false, and no server kept, when it cannot listen. */
        bool StartMcpServer(uint32 Port);
        void StopMcpServer();

        /**
         * A new outliner panel over its own model. The composition forwards map changes to it and, when it
         * goes first, makes the panel let go of its model while the adapters still exist.
         */
        TSharedRef<SOrvOutlinerPanel> MakeOutlinerPanel();

        /** A new "Orv Catalog" browser, handed at once to the catalogue panel's services (FOrvCatalogPanel).
         */
        TSharedRef<SWidget> MakeCatalogBrowser();

        /** The catalogue tab's browser; null when the tab closes. */
        void SetCatalogBrowser(TSharedPtr<SWebBrowser> Browser);

        /** The script bridge the page's "OrvBridge" calls reach. */
        FOrvScriptBridge& GetScriptBridge();

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
        FOrvUnrealContentBrowser ContentBrowser;
        FOrvUnrealWidgetFocus WidgetFocus;
        FOrvUnrealClipboard Clipboard;
        FOrvSmartPanel SmartPanel{{Selection, World, Meshes, Assets, ContentBrowser, WidgetFocus,
                                   WebPanelService.GetPanel(), Clipboard, Log},
                                  FOrvConstants::CatalogSiteBaseUrl};
        FOrvUnrealEditorUi EditorUi{Handles};
        FOrvUnrealHttpServerModule HttpServer;

        TUniquePtr<FOrvMcpHandler> McpHandler;
        TUniquePtr<FOrvMcpServer> McpServer;
        /** Goes before the adapters it uses (the panel, the catalogue API, the log). */
        TUniquePtr<FOrvCatalogPanel> CatalogPanel;

        TArray<TWeakPtr<SOrvOutlinerPanel>> OutlinerPanels;
        FDelegateHandle MapChangedHandle;
    };
} // namespace OrvWebBridge
