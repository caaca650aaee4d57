#include "Unreal/OrvUnrealModuleHost.h"

#include "OrvComposition.h"
#include "OrvInputProcessor.h"
#include "OrvessaWebBridge.h"
#include "OrvessaWebBridgeCommands.h"
#include "OrvessaWebBridgeStyle.h"

#include "ContentBrowserModule.h"
#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/UICommandList.h"
#include "LevelEditor.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "Selection.h"
#include "ToolMenus.h"

// Tab titles are restated from the core's menu table as literals, which localisation gathering needs; a test
// keeps them equal.
#define LOCTEXT_NAMESPACE "FOrvessaWebBridgeModule"

namespace OrvWebBridge
{
    FOrvUnrealModuleHost::FOrvUnrealModuleHost(FOrvessaWebBridgeModule& InModule,
                                               FOrvComposition& InComposition)
        : Module(InModule), Composition(InComposition)
    {
    }

    FOrvUnrealModuleHost::~FOrvUnrealModuleHost()
    {
        CancelPostEngineInit();
    }

    bool FOrvUnrealModuleHost::PerformStep(EOrvModuleStep Step)
    {
        switch (Step)
        {
        case EOrvModuleStep::StyleSet:
            FOrvessaWebBridgeStyle::Initialize();
            FOrvessaWebBridgeStyle::ReloadTextures();
            return true;
        case EOrvModuleStep::Commands:
            FOrvessaWebBridgeCommands::Register();
            return true;
        case EOrvModuleStep::CommandBindings:
            PluginCommands = MakeShared<FUICommandList>();
            PluginCommands->MapAction(
                FOrvessaWebBridgeCommands::Get().OpenPluginWindow,
                FExecuteAction::CreateRaw(&Module, &FOrvessaWebBridgeModule::PluginButtonClicked));
            PluginCommands->MapAction(
                FOrvessaWebBridgeCommands::Get().ViewProductDetails,
                FExecuteAction::CreateRaw(&Module, &FOrvessaWebBridgeModule::ViewProductDetails));
            return true;
        case EOrvModuleStep::LevelEditorBindings:
        {
            // Also in the level editor's own list, so Alt+R works wherever the level editor has focus.
            FLevelEditorModule& LevelEditor =
                FModuleManager::LoadModuleChecked<FLevelEditorModule>("LevelEditor");
            LevelEditor.GetGlobalLevelEditorActions()->MapAction(
                FOrvessaWebBridgeCommands::Get().ViewProductDetails,
                FExecuteAction::CreateRaw(&Module, &FOrvessaWebBridgeModule::ViewProductDetails));
            return true;
        }
        case EOrvModuleStep::InputPreProcessor:
            // Without Slate (a commandlet) there are no keys to see.
            if (!FSlateApplication::IsInitialized())
            {
                return false;
            }
            InputProcessor = MakeShared<FOrvInputProcessor>(&Module);
            return FSlateApplication::Get().RegisterInputPreProcessor(InputProcessor);
        case EOrvModuleStep::MenuStartupCallback:
            MenuStartupHandle =
                UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(
                    &Module, &FOrvessaWebBridgeModule::RegisterMenus));
            return true;
        case EOrvModuleStep::CatalogTabSpawner:
            RegisterTabSpawner(FOrvModuleMenus::CatalogTab,
                               LOCTEXT("FOrvessaWebBridgeTabTitle", "Orv Catalog"),
                               FOnSpawnTab::CreateRaw(&Module, &FOrvessaWebBridgeModule::SpawnCatalogTab));
            return true;
        case EOrvModuleStep::OutlinerTabSpawner:
            RegisterTabSpawner(FOrvModuleMenus::OutlinerTab, LOCTEXT("OrvOutlinerTabTitle", "Orv Outliner"),
                               FOnSpawnTab::CreateRaw(&Module, &FOrvessaWebBridgeModule::SpawnOutlinerTab));
            return true;
        case EOrvModuleStep::ViewportSelectionListener:
            if (!GEditor)
            {
                return false;
            }
            ViewportSelectionHandle = USelection::SelectionChangedEvent.AddRaw(
                &Module, &FOrvessaWebBridgeModule::OnViewportSelectionChanged);
            return true;
        case EOrvModuleStep::ContentBrowserSelectionListener:
        {
            FContentBrowserModule& ContentBrowser =
                FModuleManager::LoadModuleChecked<FContentBrowserModule>("ContentBrowser");
            ContentBrowserSelectionHandle = ContentBrowser.GetOnAssetSelectionChanged().AddRaw(
                &Module, &FOrvessaWebBridgeModule::OnContentBrowserSelectionChanged);
            return true;
        }
        }
        return false;
    }

    void FOrvUnrealModuleHost::UndoStep(EOrvModuleStep Step)
    {
        switch (Step)
        {
        case EOrvModuleStep::StyleSet:
            FOrvessaWebBridgeStyle::Shutdown();
            break;
        case EOrvModuleStep::Commands:
            FOrvessaWebBridgeCommands::Unregister();
            break;
        case EOrvModuleStep::CommandBindings:
            PluginCommands.Reset();
            break;
        case EOrvModuleStep::LevelEditorBindings:
            if (FLevelEditorModule* LevelEditor =
                    FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor"))
            {
                LevelEditor->GetGlobalLevelEditorActions()->UnmapAction(
                    FOrvessaWebBridgeCommands::Get().ViewProductDetails);
            }
            break;
        case EOrvModuleStep::InputPreProcessor:
            if (FSlateApplication::IsInitialized())
            {
                FSlateApplication::Get().UnregisterInputPreProcessor(InputProcessor);
            }
            InputProcessor.Reset();
            break;
        case EOrvModuleStep::MenuStartupCallback:
            UToolMenus::UnRegisterStartupCallback(MenuStartupHandle);
            if (FModuleManager::Get().IsModuleLoaded("ToolMenus"))
            {
                UToolMenus::UnregisterOwner(&Module);
            }
            break;
        case EOrvModuleStep::CatalogTabSpawner:
            FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(FName(FOrvModuleMenus::CatalogTab.TabId));
            break;
        case EOrvModuleStep::OutlinerTabSpawner:
            FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(FName(FOrvModuleMenus::OutlinerTab.TabId));
            break;
        case EOrvModuleStep::ViewportSelectionListener:
            USelection::SelectionChangedEvent.Remove(ViewportSelectionHandle);
            break;
        case EOrvModuleStep::ContentBrowserSelectionListener:
            if (FContentBrowserModule* ContentBrowser =
                    FModuleManager::GetModulePtr<FContentBrowserModule>("ContentBrowser"))
            {
                ContentBrowser->GetOnAssetSelectionChanged().Remove(ContentBrowserSelectionHandle);
            }
            break;
        }
    }

    bool FOrvUnrealModuleHost::HasEditorEngine() const
    {
        return GEditor != nullptr;
    }

    void FOrvUnrealModuleHost::DeferToPostEngineInit(std::function<void()> Callback)
    {
        // The engine broadcasts this once. The binding is not removed from inside the broadcast (that would
        // free the running lambda); it goes when cancelled or with this host.
        CancelPostEngineInit();
        PostEngineInitHandle =
            FCoreDelegates::OnPostEngineInit.AddLambda([Callback = MoveTemp(Callback)]() { Callback(); });
    }

    void FOrvUnrealModuleHost::CancelPostEngineInit()
    {
        if (PostEngineInitHandle.IsValid())
        {
            FCoreDelegates::OnPostEngineInit.Remove(PostEngineInitHandle);
            PostEngineInitHandle.Reset();
        }
    }

    std::uint32_t FOrvUnrealModuleHost::StartMcpServer(std::uint32_t Port)
    {
        // The editor always asks for its fixed port, never for one the system chooses.
        return Composition.StartMcpServer(Port) ? Port : 0;
    }

    void FOrvUnrealModuleHost::StopMcpServer()
    {
        Composition.StopMcpServer();
    }

    void FOrvUnrealModuleHost::RegisterTabSpawner(const FOrvTabEntry& Tab, const FText& DisplayName,
                                                  const FOnSpawnTab& OnSpawn)
    {
        // Hidden from the editor's own tab lists: the plugin's menu entries open them.
        FGlobalTabmanager::Get()
            ->RegisterNomadTabSpawner(FName(Tab.TabId), OnSpawn)
            .SetDisplayName(DisplayName)
            .SetIcon(FOrvessaWebBridgeStyle::MakeIcon(Tab.Icon))
            .SetMenuType(ETabSpawnerMenuType::Hidden);
    }
} // namespace OrvWebBridge

#undef LOCTEXT_NAMESPACE
