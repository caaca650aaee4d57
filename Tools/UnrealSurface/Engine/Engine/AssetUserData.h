#pragma once

// Engine: Runtime/Engine/Classes/Engine/AssetUserData.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UAssetUserData

#include "UObject/Object.h"

class UAssetUserData : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UAssetUserData, UObject)
};
