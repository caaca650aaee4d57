#pragma once

// Engine: Runtime/Engine/Classes/Components/SceneComponent.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/USceneComponent

#include "Components/ActorComponent.h"
#include "Engine/EngineTypes.h"

class USceneComponent : public UActorComponent
{
    ORV_SURFACE_UCLASS_BODY(USceneComponent, UActorComponent)

    FVector GetComponentLocation() const;
    FRotator GetComponentRotation() const;
    virtual void SetMobility(EComponentMobility::Type NewMobility);
};
