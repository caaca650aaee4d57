#pragma once

// Engine: Runtime/Engine/Classes/Engine/StaticMesh.h (module Engine). UStreamableRenderAsset between it
// and UObject is left out.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UStaticMesh

#include "Engine/AssetUserData.h"
#include "Interfaces/Interface_AssetUserData.h"
#include "UObject/Object.h"

class UStaticMesh : public UObject, public IInterface_AssetUserData
{
    ORV_SURFACE_UCLASS_BODY(UStaticMesh, UObject)

    /** The mesh's bounds with its positive and negative bounds extensions. */
    FBox GetBoundingBox() const;
    virtual UAssetUserData* GetAssetUserDataOfClass(TSubclassOf<UAssetUserData> InUserDataClass) override;
    virtual const TArray<UAssetUserData*>* GetAssetUserDataArray() const override;
};
