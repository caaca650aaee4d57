#pragma once

// Engine: Runtime/Engine/Classes/Interfaces/Interface_AssetUserData.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/IInterface_AssetUserData

#include "Engine/AssetUserData.h"
#include "Templates/SubclassOf.h"

class IInterface_AssetUserData
{
public:
    /** The first entry of that class; null when there is none. Not const (it may be overridden). */
    virtual UAssetUserData* GetAssetUserDataOfClass(TSubclassOf<UAssetUserData> InUserDataClass);

    /** Every entry in order; may be null, and may hold null entries. Docs:
     *  https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Engine/Interfaces/IInterface_AssetUserData/GetAssetUserDataArray
     */
    virtual const TArray<UAssetUserData*>* GetAssetUserDataArray() const;
};
