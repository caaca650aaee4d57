#pragma once

// Engine: Editor/ContentBrowser/Public/IContentBrowserSingleton.h (module ContentBrowser).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/ContentBrowser/IContentBrowserSingleton/GetSelectedAssets?application_version=5.3

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

class IContentBrowserSingleton
{
public:
    virtual ~IContentBrowserSingleton();

    /** The assets selected in the primary Content Browser. */
    virtual void GetSelectedAssets(TArray<FAssetData>& SelectedAssets) = 0;
};
