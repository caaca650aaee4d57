#pragma once

// Engine: Runtime/Engine/Classes/Engine/StaticMeshActor.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/AStaticMeshActor

#include "GameFramework/Actor.h"

class UStaticMeshComponent;

class AStaticMeshActor : public AActor
{
    ORV_SURFACE_UCLASS_BODY(AStaticMeshActor, AActor)

    UStaticMeshComponent* GetStaticMeshComponent() const;
};
