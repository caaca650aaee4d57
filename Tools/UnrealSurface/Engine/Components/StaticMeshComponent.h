#pragma once

// Engine: Runtime/Engine/Classes/Components/StaticMeshComponent.h (module Engine). The chain
// UMeshComponent, UPrimitiveComponent is left out.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UStaticMeshComponent

#include "Components/SceneComponent.h"

class UStaticMesh;

class UStaticMeshComponent : public USceneComponent
{
    ORV_SURFACE_UCLASS_BODY(UStaticMeshComponent, USceneComponent)

    UStaticMesh* GetStaticMesh() const;
    /** False when the mesh is unchanged or may not change (static mobility while registered). */
    virtual bool SetStaticMesh(UStaticMesh* NewMesh);
};
