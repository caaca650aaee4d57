#pragma once

// Engine: Runtime/AssetRegistry/Public/AssetRegistry/IAssetRegistry.h (module AssetRegistry). While the
// editor is still scanning, answers hold what has been found so far.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/AssetRegistry/IAssetRegistry

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

class IAssetRegistry
{
public:
    virtual ~IAssetRegistry();

    /** PackagePath without a trailing slash ("/Game/ORVESSA"). */
    virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false,
                                 bool bIncludeOnlyOnDiskAssets = false) const = 0;
};
