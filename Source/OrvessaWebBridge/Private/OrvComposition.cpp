#include "OrvComposition.h"

#include "OrvJSBridge.h"
#include "OrvOutlinerPanel.h"
#include "OrvessaWebBridge.h"

#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "SWebBrowser.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UnrealEdMisc.h"

#include "Core/Mcp/OrvMcpHandler.h"
#include "Core/Mcp/OrvMcpServer.h"

namespace OrvWebBridge
{
    FOrvComposition::FOrvComposition() = default;

    namespace
    {
        /** The page's name for the bridge object: window.ue.orvbridge. */
        const TCHAR* const OrvBridgeObjectName = TEXT("OrvBridge");
    } // namespace

    FOrvComposition::~FOrvComposition()
    {
        CloseCatalogPanel();
        // Open outliner tabs can outlive the module; their models go now, while the adapters they use exist.
        for (const TWeakPtr<SOrvOutlinerPanel>& WeakPanel : OutlinerPanels)
        {
            if (const TSharedPtr<SOrvOutlinerPanel> Panel = WeakPanel.Pin())
            {
                Panel->ReleaseModel();
            }
        }
        if (MapChangedHandle.IsValid())
        {
            if (FLevelEditorModule* LevelEditor =
                    FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor"))
            {
                LevelEditor->OnMapChanged().Remove(MapChangedHandle);
            }
        }
        StopMcpServer();
    }

    bool FOrvComposition::StartMcpServer(uint32 Port)
    {
        McpServer = MakeUnique<FOrvMcpServer>(HttpServer, Log,
                                              [this]() -> FOrvMcpHandler& { return GetMcpHandler(); });
        if (!McpServer->Start(Port))
        {
            McpServer.Reset();
            return false;
        }
        return true;
    }

    void FOrvComposition::StopMcpServer()
    {
        if (McpServer)
        {
            McpServer->Stop();
            McpServer.Reset();
        }
    }

    void FOrvComposition::OpenCatalogPanel(const TSharedRef<SWebBrowser>& Browser)
    {
        CloseCatalogPanel();
        WebPanel.SetBrowser(Browser);
        // Nothing else refers to the bridge object, so it is rooted or the garbage collector would take it.
        JSBridge = NewObject<UOrvJSBridge>(GetTransientPackage());
        JSBridge->AddToRoot();
        // Permanent: the binding outlives navigation, so every page of the site finds it.
        Browser->BindUObject(OrvBridgeObjectName, JSBridge, /*bIsPermanent=*/true);
        AccountEvents = MakeUnique<FOrvUnrealAccountEvents>(AccountEventRelay);
        // The browser's cookie store completes each cookie later; the site is loaded only after the last
        // completion, so its first request already carries the session.
        WebPanelSession.OpenSite();
    }

    void FOrvComposition::CloseCatalogPanel()
    {
        AccountEvents.Reset();
        if (JSBridge)
        {
            // At editor exit the object system may already be down, and the object with it.
            if (UObjectInitialized())
            {
                if (const TSharedPtr<SWebBrowser> Browser = WebPanel.GetBrowser())
                {
                    Browser->UnbindUObject(OrvBridgeObjectName, JSBridge, /*bIsPermanent=*/true);
                }
                JSBridge->RemoveFromRoot();
            }
            JSBridge = nullptr;
        }
        WebPanel.SetBrowser(nullptr);
    }

    TSharedRef<SOrvOutlinerPanel> FOrvComposition::MakeOutlinerPanel()
    {
        const TSharedRef<SOrvOutlinerPanel> Panel =
            SNew(SOrvOutlinerPanel).Model(MakeShared<FOrvOutlinerPanelModel>(GetOutlinerPorts()));
        OutlinerPanels.RemoveAll([](const TWeakPtr<SOrvOutlinerPanel>& Weak) { return !Weak.IsValid(); });
        OutlinerPanels.Add(Panel);
        if (!MapChangedHandle.IsValid())
        {
            FLevelEditorModule& LevelEditor =
                FModuleManager::LoadModuleChecked<FLevelEditorModule>("LevelEditor");
            MapChangedHandle = LevelEditor.OnMapChanged().AddLambda(
                [this](UWorld*, EMapChangeType ChangeType)
                {
                    if (ChangeType == EMapChangeType::TearDownWorld)
                    {
                        ForwardMapChange(/*bWorldTornDown=*/true);
                    }
                    else if (ChangeType == EMapChangeType::LoadMap || ChangeType == EMapChangeType::NewMap)
                    {
                        ForwardMapChange(/*bWorldTornDown=*/false);
                    }
                });
        }
        return Panel;
    }

    FOrvMcpHandler& FOrvComposition::GetMcpHandler()
    {
        if (!McpHandler)
        {
            McpHandler = MakeUnique<FOrvMcpHandler>(GetMcpPorts());
        }
        return *McpHandler;
    }

    FOrvMcpPorts FOrvComposition::GetMcpPorts()
    {
        return {World, Editing, Transactions, Assets, Meshes, Viewport, Images, GameThread, Log};
    }

    FOrvOutlinerPanelPorts FOrvComposition::GetOutlinerPorts()
    {
        return {World,  LevelEvents, Meshes, CatalogApi,  Selection, Editing,
                Timers, EditorUi,    Files,  Environment, Log};
    }

    FOrvScriptBridgePorts FOrvComposition::GetScriptBridgePorts()
    {
        return {[this] { return Account.Find(); },
                // The module's services only while the module is loaded, as the page's calls expect.
                [this]() -> FOrvWebPanelSession*
                { return FOrvessaWebBridgeModule::GetLoaded() ? &WebPanelSession : nullptr; },
                BrowserWindows, Log};
    }

    FOrvWebPanelSessionPorts FOrvComposition::GetWebPanelSessionPorts()
    {
        return {WebPanelService, BrowserWindows, [this] { return CatalogApi.Find(); },
                [this] { return BrowserCookies.Find(); }, Log};
    }

    void FOrvComposition::ForwardMapChange(bool bWorldTornDown)
    {
        // A new world brings new actor notifications and timers; the old world's die with it.
        for (const TWeakPtr<SOrvOutlinerPanel>& WeakPanel : OutlinerPanels)
        {
            const TSharedPtr<SOrvOutlinerPanel> Panel = WeakPanel.Pin();
            if (FOrvOutlinerPanelModel* Model = Panel ? Panel->GetModel() : nullptr)
            {
                if (bWorldTornDown)
                {
                    Model->OnWorldTornDown();
                }
                else
                {
                    Model->OnMapOpened();
                }
            }
        }
    }
} // namespace OrvWebBridge
