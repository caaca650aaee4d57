#pragma once

// Engine: Runtime/Engine/Public/Engine/TimerHandle.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FTimerHandle

#include "CoreMinimal.h"

struct FTimerHandle
{
    FTimerHandle();
    bool IsValid() const;
    void Invalidate();
};
