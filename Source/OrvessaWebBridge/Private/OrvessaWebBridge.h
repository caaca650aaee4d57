#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

#include "Core/Module/OrvModuleMenus.h"

class FSpawnTabArgs;
class SDockTab;
class SWebBrowser;
class UObject;
struct FAssetData;

namespace OrvWebBridge
{
    class FOrvComposition;
    class FOrvSmartPanel;
    class FOrvModuleLifecycle;
    class FOrvUnrealModuleHost;
    class FOrvScriptBridge;
} // namespace OrvWebBridge

/**
 * @brief The editor module "OrvessaWebBridge". Start-up and shut-down run through the core's lifecycle
 * sequencer over FOrvUnrealModuleHost; the module keeps the entry points the engine and other parts of the
 * plugin call, and hands each to the core.
 */
class FOrvessaWebBridgeModule : public IModuleInterface
{
public:
    FOrvessaWebBridgeModule();
    virtual ~FOrvessaWebBridgeModule() override;

    virtual void StartupModule() override;
    virtual void ShutdownModule() override;

    /** The loaded module, or null (during shut-down, or before it loads). */
    static FOrvessaWebBridgeModule* GetLoaded();

    /** The script bridge the page's "OrvBridge" calls reach; null while the module is not started. */
    OrvWebBridge::FOrvScriptBridge* GetScriptBridge();

    // Services other parts reach through the module.
    /** Loads Url in the catalogue panel, or only warns while the panel is closed. */
    void NavigateWebPanel(const FString& Url);
    /** Runs Script in the catalogue panel's page, or only warns while the panel is closed. */
    void ExecuteJavaScript(const FString& Script);
    /** The catalogue tab's browser, once the tab has made it; null when the tab closes. */
    void SetCatalogBrowser(TSharedPtr<SWebBrowser> Browser);
    /** What makes the catalogue panel follow the selection (auto-detect, Alt+R, Copy URL); null while the
     * module is not started. */
    OrvWebBridge::FOrvSmartPanel* GetSmartPanel();

    // Command and menu actions.
    /** OpenPluginWindow: opens or focuses the "Orv Catalog" tab. */
    void PluginButtonClicked();
    /** ViewProductDetails (Alt+R): shows the selected product's or finish's page. */
    void ViewProductDetails();
    /** Opens or focuses one of the plugin's tabs. */
    void InvokeTab(OrvWebBridge::EOrvModuleTab Tab);
    /** The ToolMenus start-up callback: the Window menu entry and the toolbar combo button. */
    void RegisterMenus();

    // Editor notifications the module is bound to.
    void OnViewportSelectionChanged(UObject* ChangedSelection);
    void OnContentBrowserSelectionChanged(const TArray<FAssetData>& SelectedAssets, bool bIsPrimaryBrowser);

    // Tab spawners.
    TSharedRef<SDockTab> SpawnCatalogTab(const FSpawnTabArgs& Args);
    TSharedRef<SDockTab> SpawnOutlinerTab(const FSpawnTabArgs& Args);

private:
    TUniquePtr<OrvWebBridge::FOrvComposition> Composition;
    TUniquePtr<OrvWebBridge::FOrvUnrealModuleHost> ModuleHost;
    TUniquePtr<OrvWebBridge::FOrvModuleLifecycle> Lifecycle;
};
