#pragma once

// Engine: Editor/ContentBrowser/Public/IContentBrowserSingleton.h (module ContentBrowser).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/ContentBrowser/IContentBrowserSingleton/SyncBrowserToAssets
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/ContentBrowser/IContentBrowserSingleton/SyncBrowserToAssets/2?application_version=5.3
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/ContentBrowser/IContentBrowserSingleton/GetSelectedAssets?application_version=5.3

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

class UObject;

class IContentBrowserSingleton
{
public:
    virtual ~IContentBrowserSingleton();

    /** Selects the assets in the primary Content Browser (the FAssetData overload is not declared). */
    virtual void SyncBrowserToAssets(const TArray<UObject*>& AssetList, bool bAllowLockedBrowsers = false,
                                     bool bFocusContentBrowser = true, const FName& InstanceName = FName(),
                                     bool bNewSpawnBrowser = false) = 0;

    /** The assets selected in the primary Content Browser. */
    virtual void GetSelectedAssets(TArray<FAssetData>& SelectedAssets) = 0;
};
