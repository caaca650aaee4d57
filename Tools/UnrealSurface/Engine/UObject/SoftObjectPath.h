#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/SoftObjectPath.h (module CoreUObject).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FSoftObjectPath

#include "UObject/Object.h"

struct FUObjectSerializeContext;

struct FSoftObjectPath
{
    FSoftObjectPath();
    /** A path "/Package/Path.AssetName". [unconf: whether this constructor is explicit] */
    explicit FSoftObjectPath(const FString& Path);

    /** Loads the object synchronously when it is not in memory; null when it does not exist. */
    UObject* TryLoad(FUObjectSerializeContext* InLoadContext = nullptr) const;
};
