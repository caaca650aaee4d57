#pragma once

// Engine: Editor/ContentBrowser/Public/ContentBrowserModule.h (module ContentBrowser).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/ContentBrowser/FContentBrowserModule

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "IContentBrowserSingleton.h"
#include "Modules/ModuleInterface.h"

class FContentBrowserModule : public IModuleInterface
{
public:
    /** The selected assets, and whether the selection is the primary browser's. */
    DECLARE_MULTICAST_DELEGATE_TwoParams(FOnAssetSelectionChanged, const TArray<FAssetData>&, bool)

        virtual IContentBrowserSingleton& Get() const;
    FOnAssetSelectionChanged& GetOnAssetSelectionChanged();
};
