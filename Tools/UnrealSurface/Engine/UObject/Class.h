#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/Class.h (module CoreUObject). The chain UStruct, UField is
// left out.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UClass

#include "UObject/Object.h"

class UClass : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UClass, UObject)
};
