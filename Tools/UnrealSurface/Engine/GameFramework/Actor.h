#pragma once

// Engine: Runtime/Engine/Classes/GameFramework/Actor.h (module Engine).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/AActor
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Engine/GameFramework/AActor/SetActorLabel?application_version=5.5
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Engine/GameFramework/AActor/GetActorLabel?application_version=5.4
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Engine/GameFramework/AActor/SetIsTemporarilyHiddenInEditor?application_version=5.4

#include "Components/ActorComponent.h"
#include "Components/SceneComponent.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"

#include <type_traits>

struct FHitResult;

class AActor : public UObject
{
    ORV_SURFACE_UCLASS_BODY(AActor, UObject)

    FVector GetActorLocation() const;
    FQuat GetActorQuat() const;
    USceneComponent* GetRootComponent() const;

    bool SetActorLocation(const FVector& NewLocation, bool bSweep = false,
                          FHitResult* OutSweepHitResult = nullptr,
                          ETeleportType Teleport = ETeleportType::None);
    bool SetActorRotation(FRotator NewRotation, ETeleportType Teleport = ETeleportType::None);

    template <class T>
    requires(std::is_base_of_v<UActorComponent, T>) T* FindComponentByClass() const;

    /** Order follows the actor's owned-component set. [unconf: whether that order is stable] */
    template <class ComponentType, class AllocatorType>
    requires(std::is_base_of_v<UActorComponent, ComponentType>) void GetComponents(
        TArray<ComponentType*, AllocatorType>& OutComponents, bool bIncludeFromChildActors = false) const;

#if WITH_EDITOR
    const FString& GetActorLabel(bool bCreateIfNone = true) const;
    void SetActorLabel(const FString& NewActorLabel, bool bMarkDirty = true);
    /** For this editor session only: not saved, not transacted. */
    virtual void SetIsTemporarilyHiddenInEditor(bool bIsHidden);
#endif
};
