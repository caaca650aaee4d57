#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/TopLevelAssetPath.h (module CoreUObject): a package name and
// an asset name, "/Script/Engine.StaticMesh" as a string.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FTopLevelAssetPath

#include "CoreMinimal.h"

struct FTopLevelAssetPath
{
    FString ToString() const;
};
