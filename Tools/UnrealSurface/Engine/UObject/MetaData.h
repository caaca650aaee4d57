#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/MetaData.h (module CoreUObject). Since 5.6 a package's
// metadata is this plain class (UMetaData became UDEPRECATED_MetaData); it exists only WITH_METADATA.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FMetaData
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FMetaData/FindValue

#include "Containers/Map.h"
#include "CoreMinimal.h"
#include "UObject/NameTypes.h"

class UObject;

class FMetaData
{
public:
    /** The object's value under Key, or null when it has none. */
    const FString* FindValue(const UObject* Object, FName Key);

    /** Values that belong to the package as a whole rather than to one object. */
    TMap<FName, FString> RootMetaDataMap;
};
