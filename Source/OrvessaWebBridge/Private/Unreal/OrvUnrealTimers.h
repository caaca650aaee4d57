#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include "Core/Ports/IOrvTimers.h"

class UWorld;

namespace OrvWebBridge
{
    /**
     * @brief IOrvTimers over the editor world's timer manager. A timer dies with its world (a map load
     * cancels it); the adapter clears every pending timer when it is destroyed, so no callback outlives it.
     */
    class FOrvUnrealTimers final : public IOrvTimers
    {
    public:
        FOrvUnrealTimers() = default;
        virtual ~FOrvUnrealTimers() override;

        virtual FOrvTimerHandle SetTimer(double DelaySeconds, std::function<void()> Callback) override;
        virtual void ClearTimer(FOrvTimerHandle& Handle) override;

    private:
        struct FPendingTimer
        {
            TWeakObjectPtr<UWorld> World;
            FTimerHandle EngineHandle;
        };

        void ClearEngineTimer(FPendingTimer& Timer);

        TMap<uint64, FPendingTimer> Pending;
        uint64 NextId = 1;
    };
} // namespace OrvWebBridge
