#include "OrvessaWebBridge.h"

#include "OrvCatalogToolbar.h"
#include "OrvComposition.h"
#include "OrvOutlinerPanel.h"
#include "OrvessaWebBridgeStyle.h"

#include "AssetRegistry/AssetData.h"
#include "Editor.h"
#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "Selection.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

#include "Core/Module/OrvModuleLifecycle.h"
#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealModuleHost.h"

#include <array>
#include <vector>

// Texts are restated from the core's menu table as literals, which localisation gathering needs; a test keeps
// them equal.
#define LOCTEXT_NAMESPACE "FOrvessaWebBridgeModule"

using namespace OrvWebBridge;

FOrvessaWebBridgeModule::FOrvessaWebBridgeModule() = default;
FOrvessaWebBridgeModule::~FOrvessaWebBridgeModule() = default;

void FOrvessaWebBridgeModule::StartupModule()
{
    Composition = MakeUnique<FOrvComposition>();
    ModuleHost = MakeUnique<FOrvUnrealModuleHost>(*this, *Composition);
    Lifecycle = MakeUnique<FOrvModuleLifecycle>(*ModuleHost, Composition->GetLog());
    Lifecycle->Startup();
}

void FOrvessaWebBridgeModule::ShutdownModule()
{
    if (Lifecycle)
    {
        Lifecycle->Shutdown();
    }
    Lifecycle.Reset();
    ModuleHost.Reset();
    Composition.Reset();
}

FOrvessaWebBridgeModule* FOrvessaWebBridgeModule::GetLoaded()
{
    return FModuleManager::GetModulePtr<FOrvessaWebBridgeModule>("OrvessaWebBridge");
}

FOrvScriptBridge* FOrvessaWebBridgeModule::GetScriptBridge()
{
    return Composition ? &Composition->GetScriptBridge() : nullptr;
}

void FOrvessaWebBridgeModule::NavigateWebPanel(const FString& Url)
{
    if (Composition)
    {
        Composition->GetWebPanelService().Navigate(FOrvUnrealConversions::ToUtf8(Url));
    }
}

void FOrvessaWebBridgeModule::ExecuteJavaScript(const FString& Script)
{
    if (Composition)
    {
        Composition->GetWebPanelService().ExecuteScript(FOrvUnrealConversions::ToUtf8(Script));
    }
}

void FOrvessaWebBridgeModule::SetCatalogBrowser(TSharedPtr<SWebBrowser> Browser)
{
    if (Composition)
    {
        Composition->SetCatalogBrowser(MoveTemp(Browser));
    }
}

FOrvSmartPanel* FOrvessaWebBridgeModule::GetSmartPanel()
{
    return Composition ? &Composition->GetSmartPanel() : nullptr;
}

void FOrvessaWebBridgeModule::PluginButtonClicked()
{
    InvokeTab(EOrvModuleTab::Catalog);
}

void FOrvessaWebBridgeModule::ViewProductDetails()
{
    if (FOrvSmartPanel* SmartPanel = GetSmartPanel())
    {
        SmartPanel->ViewProductDetails();
    }
}

void FOrvessaWebBridgeModule::OnViewportSelectionChanged(UObject* ChangedSelection)
{
    // The event comes once for each selection set a click changes (actors, components, objects); only the
    // actor set tells which products are selected.
    if (GEditor && ChangedSelection != GEditor->GetSelectedActors())
    {
        return;
    }
    if (FOrvSmartPanel* SmartPanel = GetSmartPanel())
    {
        SmartPanel->OnViewportSelectionChanged();
    }
}

void FOrvessaWebBridgeModule::OnContentBrowserSelectionChanged(const TArray<FAssetData>& SelectedAssets, bool)
{
    FOrvSmartPanel* SmartPanel = GetSmartPanel();
    if (!SmartPanel)
    {
        return;
    }
    std::vector<FOrvAssetData> Selected;
    Selected.reserve(static_cast<size_t>(SelectedAssets.Num()));
    for (const FAssetData& Asset : SelectedAssets)
    {
        Selected.push_back(FOrvUnrealConversions::ToOrvAssetData(Asset));
    }
    SmartPanel->OnContentBrowserSelectionChanged(Selected);
}

void FOrvessaWebBridgeModule::InvokeTab(EOrvModuleTab Tab)
{
    FGlobalTabmanager::Get()->TryInvokeTab(FTabId(FName(FOrvModuleMenus::GetTab(Tab).TabId)));
}

void FOrvessaWebBridgeModule::RegisterMenus()
{
    // Owned by the module, so that shut-down removes every entry at once.
    FToolMenuOwnerScoped OwnerScoped(this);
    using FMenus = FOrvModuleMenus;

    UToolMenu* WindowMenu = UToolMenus::Get()->ExtendMenu(FName(FMenus::WindowMenu));
    FToolMenuSection& WindowSection = WindowMenu->FindOrAddSection(FName(FMenus::WindowMenuSection));
    WindowSection.AddMenuEntry(
        FName(FMenus::WindowMenuEntry.Name), LOCTEXT("OrvOutlinerMenuLabel", "Orv Outliner"),
        LOCTEXT("OrvOutlinerMenuTooltip", "Open Orv Outliner to view all ORVESSA products in the scene"),
        FOrvessaWebBridgeStyle::MakeIcon(FMenus::WindowMenuEntry.Icon),
        FUIAction(FExecuteAction::CreateRaw(this, &FOrvessaWebBridgeModule::InvokeTab,
                                            FMenus::WindowMenuEntry.Opens)));

    UToolMenu* ToolBar = UToolMenus::Get()->ExtendMenu(FName(FMenus::ToolBarMenu));
    FToolMenuSection& ToolBarSection = ToolBar->FindOrAddSection(FName(FMenus::ToolBarSection));
    ToolBarSection.AddEntry(FToolMenuEntry::InitComboButton(
        FName(FMenus::ComboName), FUIAction(),
        FNewToolMenuDelegate::CreateLambda(
            [this](UToolMenu* ComboMenu)
            {
                // Each entry's texts, in the order of the table's drop-down entries.
                const std::array<FText, FMenus::ComboEntries.size()> Labels{
                    LOCTEXT("FOrvessaWebBridgeTabTitle", "Orv Catalog"),
                    LOCTEXT("OrvOutlinerMenuLabel", "Orv Outliner")};
                const std::array<FText, FMenus::ComboEntries.size()> Tooltips{
                    LOCTEXT("OrvCatalogTooltip", "Browse and download ORVESSA assets"),
                    LOCTEXT("OrvOutlinerTooltip", "View ORVESSA products in the current scene")};
                FToolMenuSection& Section = ComboMenu->AddSection(FName(FMenus::ToolBarSection));
                for (std::size_t Index = 0; Index < Labels.size(); ++Index)
                {
                    const FOrvMenuEntry& Entry = FMenus::ComboEntries[Index];
                    Section.AddMenuEntry(FName(Entry.Name), Labels[Index], Tooltips[Index],
                                         FOrvessaWebBridgeStyle::MakeIcon(Entry.Icon),
                                         FUIAction(FExecuteAction::CreateRaw(
                                             this, &FOrvessaWebBridgeModule::InvokeTab, Entry.Opens)));
                }
            }),
        LOCTEXT("ORVESSAToolbarLabel", "ORVESSA"),
        LOCTEXT("ORVESSAToolbarTooltip", "ORVESSA panels and tools"),
        FOrvessaWebBridgeStyle::MakeIcon(FMenus::ComboIcon)));
}

TSharedRef<SDockTab> FOrvessaWebBridgeModule::SpawnCatalogTab(const FSpawnTabArgs&)
{
    // The toolbar row above the catalogue site, and the site's browser below it.
    // clang-format off
    return SNew(SDockTab)
        .TabRole(ETabRole::NomadTab)
        .OnTabClosed_Lambda([](TSharedRef<SDockTab>)
                            {
                                if (FOrvessaWebBridgeModule* Module = GetLoaded())
                                {
                                    Module->SetCatalogBrowser(nullptr);
                                }
                            })
        [
            SNew(SVerticalBox)
            + SVerticalBox::Slot().AutoHeight()[SNew(SOrvCatalogToolbar)]
            + SVerticalBox::Slot().FillHeight(1.0f)[Composition->MakeCatalogBrowser()]
        ];
    // clang-format on
}

TSharedRef<SDockTab> FOrvessaWebBridgeModule::SpawnOutlinerTab(const FSpawnTabArgs&)
{
    return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(SBox)[Composition->MakeOutlinerPanel()]];
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FOrvessaWebBridgeModule, OrvessaWebBridge)
