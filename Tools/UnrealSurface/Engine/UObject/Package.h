#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/Package.h (module CoreUObject). Only the class is needed here:
// the transient package, from GetTransientPackage (UObject/UObjectGlobals.h), holds objects never saved.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UPackage

#include "UObject/Object.h"

class UPackage : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UPackage, UObject)
};
