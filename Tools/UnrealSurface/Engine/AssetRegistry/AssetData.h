#pragma once

// Engine: Runtime/CoreUObject/Public/AssetRegistry/AssetData.h (module CoreUObject). AssetClass and
// ObjectPath are deprecated since 5.1 (AssetClassPath, GetObjectPathString).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FAssetData

#include "CoreMinimal.h"
#include "UObject/TopLevelAssetPath.h"

struct FAssetData
{
    FName PackageName;
    FName PackagePath;
    FName AssetName;
    FTopLevelAssetPath AssetClassPath;
};
