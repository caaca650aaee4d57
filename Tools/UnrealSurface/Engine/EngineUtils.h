#pragma once

// Engine: Runtime/Engine/Public/EngineUtils.h (module Engine). Walks every level of the world, helper
// actors (brushes, world settings) included.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/TActorIterator

#include "Engine/World.h"
#include "GameFramework/Actor.h"

#include <type_traits>

template <typename ActorType>
requires(std::is_base_of_v<AActor, ActorType>) class TActorIterator
{
public:
    explicit TActorIterator(const UWorld* InWorld);

    explicit operator bool() const;
    ActorType* operator*() const;
    ActorType* operator->() const;
    TActorIterator& operator++();
};
