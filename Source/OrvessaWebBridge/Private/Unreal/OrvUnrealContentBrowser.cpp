#include "Unreal/OrvUnrealContentBrowser.h"

#include "Unreal/OrvUnrealConversions.h"

#include "AssetRegistry/AssetData.h"
#include "ContentBrowserModule.h"
#include "IContentBrowserSingleton.h"
#include "Modules/ModuleManager.h"

namespace OrvWebBridge
{
    std::vector<FOrvAssetData> FOrvUnrealContentBrowser::GetSelectedAssets() const
    {
        // Alt+R may come before any browser was opened; loading the module then answers an empty selection.
        FContentBrowserModule& Module =
            FModuleManager::LoadModuleChecked<FContentBrowserModule>(TEXT("ContentBrowser"));
        TArray<FAssetData> Selected;
        Module.Get().GetSelectedAssets(Selected);
        std::vector<FOrvAssetData> Assets;
        Assets.reserve(static_cast<size_t>(Selected.Num()));
        for (const FAssetData& Asset : Selected)
        {
            Assets.push_back(FOrvUnrealConversions::ToOrvAssetData(Asset));
        }
        return Assets;
    }
} // namespace OrvWebBridge
