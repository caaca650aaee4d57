#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/Package.h (module CoreUObject). GetMetaData returns FMetaData&
// since 5.6 (UMetaData* before).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UPackage

#include "UObject/MetaData.h"
#include "UObject/Object.h"

class UPackage : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UPackage, UObject)

#if WITH_METADATA
    /** The package's metadata, created on first use. */
    FMetaData& GetMetaData();
#endif
};
