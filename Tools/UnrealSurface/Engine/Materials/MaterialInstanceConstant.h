#pragma once

// Engine: Runtime/Engine/Classes/Materials/MaterialInstanceConstant.h (module Engine). The chain
// UMaterialInstance, UMaterialInterface between it and UObject is left out.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UMaterialInstanceConstant

#include "UObject/Object.h"

class UMaterialInstanceConstant : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UMaterialInstanceConstant, UObject)
};
