#include "Unreal/OrvUnrealLevelEvents.h"

#include "Unreal/OrvUnrealEditorWorld.h"
#include "Unreal/OrvUnrealHandles.h"

#include "Engine/World.h"

namespace OrvWebBridge
{
    FOrvUnrealLevelEvents::~FOrvUnrealLevelEvents()
    {
        for (const TPair<uint64, FRegistration>& Entry : Registrations)
        {
            Unregister(Entry.Value);
        }
    }

    FOrvActorEventsHandle FOrvUnrealLevelEvents::AddActorHandlers(FOrvActorEvent OnSpawned,
                                                                  FOrvActorEvent OnDestroyed)
    {
        UWorld* World = FOrvUnrealEditorWorld::FindEditorWorld();
        if (!World)
        {
            return FOrvActorEventsHandle();
        }
        // Capturing this is safe: the destructor removes every registration before the adapter goes.
        FRegistration Registration;
        Registration.World = World;
        Registration.Spawned = World->AddOnActorSpawnedHandler(FOnActorSpawned::FDelegate::CreateLambda(
            [this, OnSpawned = MoveTemp(OnSpawned)](AActor* Actor)
            {
                if (OnSpawned)
                {
                    OnSpawned(Handles.ToActorRef(Actor));
                }
            }));
        Registration.Destroyed = World->AddOnActorDestroyedHandler(FOnActorDestroyed::FDelegate::CreateLambda(
            [this, OnDestroyed = MoveTemp(OnDestroyed)](AActor* Actor)
            {
                if (OnDestroyed)
                {
                    OnDestroyed(Handles.ToActorRef(Actor));
                }
            }));
        const uint64 Id = NextId++;
        Registrations.Add(Id, Registration);
        return FOrvActorEventsHandle{Id};
    }

    void FOrvUnrealLevelEvents::RemoveActorHandlers(FOrvActorEventsHandle Handle)
    {
        FRegistration Registration;
        if (Registrations.RemoveAndCopyValue(Handle.Value, Registration))
        {
            Unregister(Registration);
        }
    }

    void FOrvUnrealLevelEvents::Unregister(const FRegistration& Registration)
    {
        // A world that is already gone took its delegates with it.
        if (UWorld* World = Registration.World.Get())
        {
            World->RemoveOnActorSpawnedHandler(Registration.Spawned);
            World->RemoveOnActorDestroyedHandler(Registration.Destroyed);
        }
    }
} // namespace OrvWebBridge
