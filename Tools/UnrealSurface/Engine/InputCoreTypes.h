#pragma once

// Engine: Runtime/InputCore/Classes/InputCoreTypes.h (module InputCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/InputCore/FKey
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/InputCore/EKeys

#include "CoreMinimal.h"

struct FKey
{
    FKey();
    FKey(const FName InName);

    /** The key's name, "R" for EKeys::R. */
    FName GetFName() const;
};

struct EKeys
{
    static const FKey R;
};

namespace EModifierKey
{
    enum Type : uint8
    {
        None = 0,
        Control = 1 << 0,
        Alt = 1 << 1,
        Shift = 1 << 2,
        Command = 1 << 3,
    };
} // namespace EModifierKey
