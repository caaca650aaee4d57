#pragma once

// Engine: Runtime/Engine/Classes/Engine/World.h (module Engine).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UWorld
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UWorld/DestroyActor

#include "GameFramework/Actor.h"
#include "UObject/Object.h"

#include <type_traits>

class FTimerManager;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnActorSpawned, AActor*);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnActorDestroyed, AActor*);

/** Default spawn parameters carry RF_Transactional, so an open transaction records the spawn. */
struct FActorSpawnParameters
{
    FActorSpawnParameters();
};

class UWorld : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UWorld, UObject)

    template <class T>
    requires(std::is_base_of_v<AActor, T>) T* SpawnActor(
        const FVector& Location, const FRotator& Rotation,
        const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());

    /** The editor's wrapper of DestroyActor. [code: declared in World.h; no API page found] */
    bool EditorDestroyActor(AActor* Actor, bool bShouldModifyLevel);

    FTimerManager& GetTimerManager() const;
    FString GetMapName() const;

    FDelegateHandle AddOnActorSpawnedHandler(const FOnActorSpawned::FDelegate& InHandler) const;
    void RemoveOnActorSpawnedHandler(FDelegateHandle InHandle) const;
    FDelegateHandle AddOnActorDestroyedHandler(const FOnActorDestroyed::FDelegate& InHandler) const;
    void RemoveOnActorDestroyedHandler(FDelegateHandle InHandle) const;
};
