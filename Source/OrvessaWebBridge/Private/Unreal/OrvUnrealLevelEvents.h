#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include "Core/Ports/IOrvEditorWorld.h"

class UWorld;

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /**
     * @brief IOrvLevelEvents over the editor world's actor-spawned and actor-destroyed delegates.
     * Registrations belong to the world current when they were made; the adapter removes all of its own
     * when it is destroyed.
     */
    class FOrvUnrealLevelEvents final : public IOrvLevelEvents
    {
    public:
        explicit FOrvUnrealLevelEvents(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}
        virtual ~FOrvUnrealLevelEvents() override;

        virtual FOrvActorEventsHandle AddActorHandlers(FOrvActorEvent OnSpawned,
                                                       FOrvActorEvent OnDestroyed) override;
        virtual void RemoveActorHandlers(FOrvActorEventsHandle Handle) override;

    private:
        struct FRegistration
        {
            TWeakObjectPtr<UWorld> World;
            FDelegateHandle Spawned;
            FDelegateHandle Destroyed;
        };

        static void Unregister(const FRegistration& Registration);

        FOrvUnrealHandles& Handles;
        TMap<uint64, FRegistration> Registrations;
        uint64 NextId = 1;
    };
} // namespace OrvWebBridge
