#pragma once

// Engine: Runtime/Engine/Public/TimerManager.h (module Engine). A rate of zero or less clears the timer
// instead of setting it.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FTimerManager/SetTimer
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Engine/FTimerManager/SetTimer/2?application_version=5.5

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"

DECLARE_DELEGATE(FTimerDelegate);

class FTimerManager
{
public:
    void SetTimer(FTimerHandle& InOutHandle, FTimerDelegate const& InDelegate, float InRate,
                  bool InbLoop = false, float InFirstDelay = -1.f);
    void ClearTimer(FTimerHandle& InHandle);
};
