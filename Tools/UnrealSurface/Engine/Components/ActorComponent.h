#pragma once

// Engine: Runtime/Engine/Classes/Components/ActorComponent.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UActorComponent

#include "UObject/Object.h"

class UActorComponent : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UActorComponent, UObject)
};
