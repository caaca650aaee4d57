#pragma once

// Engine: Runtime/Engine/Classes/Engine/EngineTypes.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/EComponentMobility__Type
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/ETeleportType

#include "CoreMinimal.h"

namespace EComponentMobility
{
    enum Type : int
    {
        Static,
        Stationary,
        Movable,
    };
} // namespace EComponentMobility

enum class ETeleportType : uint8
{
    None,
    TeleportPhysics,
    ResetPhysics,
};
