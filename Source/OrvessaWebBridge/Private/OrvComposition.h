#pragma once

#include "CoreMinimal.h"

#include "Core/Bridge/OrvAccountEventRelay.h"
#include "Core/Bridge/OrvScriptBridge.h"
#include "Core/Bridge/OrvWebPanelSession.h"
#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Module/OrvGuardedGameThread.h"
#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Panel/OrvWebPanelService.h"
#include "Unreal/Closed/OrvUnrealCatalogAccount.h"
#include "Unreal/OrvUnrealActorEditing.h"
#include "Unreal/OrvUnrealAssetRegistry.h"
#include "Unreal/OrvUnrealBrowserCookies.h"
#include "Unreal/OrvUnrealBrowserWindows.h"
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
class SWebBrowser;
class UOrvJSBridge;

namespace OrvWebBridge
{
    class FOrvMcpHandler;
    class FOrvMcpServer;

    /**
     * @brief The one place that builds the plugin: every adapter, the handle table they share, the
     * process-wide MCP handler (made on first use) and the server, the catalogue panel's services (its
     * session, account events and script bridge) and the outliner panels' models. Members are destroyed in
     * reverse order, so the server goes first and the guarded game-thread queue last: a task still queued
     * then is dropped, never run against a destroyed adapter. Game thread.
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
        FOrvWebPanelSession& GetWebPanelSession() { return WebPanelSession; }
        FOrvScriptBridge& GetScriptBridge() { return ScriptBridge; }

        /**
         * The catalogue tab made its browser: the panel services use it, the page's "OrvBridge" object is
         * bound into it (rooted while the panel lives), the account's notifications reach the page, and the
         * site loads once the session cookies are in. A browser already open is closed first.
         */
        void OpenCatalogPanel(const TSharedRef<SWebBrowser>& Browser);

        /** The catalogue tab closed (or the module goes): all of that is undone. */
        void CloseCatalogPanel();

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
        FOrvScriptBridgePorts GetScriptBridgePorts();
        FOrvWebPanelSessionPorts GetWebPanelSessionPorts();
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
        FOrvUnrealCatalogAccount Account;
        FOrvUnrealBrowserCookies BrowserCookies;
        FOrvUnrealBrowserWindows BrowserWindows;
        FOrvWebPanelSession WebPanelSession{GetWebPanelSessionPorts(), FOrvCatalogSite::Orvessa()};
        FOrvAccountEventRelay AccountEventRelay{WebPanelSession, Log};
        FOrvScriptBridge ScriptBridge{GetScriptBridgePorts()};
        FOrvUnrealEditorUi EditorUi{Handles};
        FOrvUnrealHttpServerModule HttpServer;

        TUniquePtr<FOrvMcpHandler> McpHandler;
        TUniquePtr<FOrvMcpServer> McpServer;

        /** The page's "OrvBridge" and the account's notifications, while the catalogue panel is open. */
        UOrvJSBridge* JSBridge = nullptr;
        TUniquePtr<FOrvUnrealAccountEvents> AccountEvents;

        TArray<TWeakPtr<SOrvOutlinerPanel>> OutlinerPanels;
        FDelegateHandle MapChangedHandle;
    };
} // namespace OrvWebBridge
