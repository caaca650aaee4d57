#include "OrvComposition.h"

#include "OrvCatalogPanel.h"
#include "OrvOutlinerPanel.h"

#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "UnrealEdMisc.h"

#include "Core/Mcp/OrvMcpHandler.h"
#include "Core/Mcp/OrvMcpServer.h"

namespace OrvWebBridge
{
    FOrvComposition::FOrvComposition()
        : CatalogPanel(MakeUnique<FOrvCatalogPanel>(
              WebPanelService, WebPanel, [this]() -> IOrvCatalogApi* { return CatalogApi.Find(); }, Log))
    {
    }

    FOrvComposition::~FOrvComposition()
    {
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

    TSharedRef<SWidget> FOrvComposition::MakeCatalogBrowser()
    {
        return CatalogPanel->MakeBrowser();
    }

    void FOrvComposition::SetCatalogBrowser(TSharedPtr<SWebBrowser> Browser)
    {
        CatalogPanel->SetBrowser(MoveTemp(Browser));
    }

    FOrvScriptBridge& FOrvComposition::GetScriptBridge()
    {
        return CatalogPanel->GetScriptBridge();
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
