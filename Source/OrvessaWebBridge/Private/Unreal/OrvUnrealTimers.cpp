#include "Unreal/OrvUnrealTimers.h"

#include "Unreal/OrvUnrealEditorWorld.h"

#include "Engine/World.h"
#include "TimerManager.h"

namespace OrvWebBridge
{
    FOrvUnrealTimers::~FOrvUnrealTimers()
    {
        for (TPair<uint64, FPendingTimer>& Entry : Pending)
        {
            ClearEngineTimer(Entry.Value);
        }
    }

    FOrvTimerHandle FOrvUnrealTimers::SetTimer(double DelaySeconds, std::function<void()> Callback)
    {
        check(IsInGameThread());
        UWorld* World = FOrvUnrealEditorWorld::FindEditorWorld();
        if (!World || !Callback)
        {
            return FOrvTimerHandle();
        }
        const uint64 Id = NextId++;
        // The timer manager clears a timer whose rate is not positive instead of firing it.
        const float Rate = FMath::Max(static_cast<float>(DelaySeconds), UE_KINDA_SMALL_NUMBER);
        FPendingTimer Timer;
        Timer.World = World;
        World->GetTimerManager().SetTimer(Timer.EngineHandle,
                                          FTimerDelegate::CreateLambda(
                                              [this, Id, Callback = MoveTemp(Callback)]()
                                              {
                                                  Pending.Remove(Id);
                                                  Callback();
                                              }),
                                          Rate, /*bLoop=*/false);
        Pending.Add(Id, Timer);
        return FOrvTimerHandle{Id};
    }

    void FOrvUnrealTimers::ClearTimer(FOrvTimerHandle& Handle)
    {
        if (FPendingTimer* Timer = Pending.Find(Handle.Value))
        {
            ClearEngineTimer(*Timer);
            Pending.Remove(Handle.Value);
        }
        Handle = FOrvTimerHandle();
    }

    void FOrvUnrealTimers::ClearEngineTimer(FPendingTimer& Timer)
    {
        if (UWorld* World = Timer.World.Get())
        {
            World->GetTimerManager().ClearTimer(Timer.EngineHandle);
        }
    }
} // namespace OrvWebBridge
