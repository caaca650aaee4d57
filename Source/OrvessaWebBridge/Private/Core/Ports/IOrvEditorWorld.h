#pragma once

#include "Core/Common/OrvTypes.h"

#include <functional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief Read access to the level open in the editor (GEditor's editor world context). Game thread only.
     * Every method is safe to call without an editor world: it then answers empty values.
     */
    class IOrvEditorWorld
    {
    public:
        virtual ~IOrvEditorWorld() = default;

        /** Whether the editor engine exists and its editor world context has a world. */
        virtual bool HasEditorWorld() const = 0;

        /** All actors of the editor world in actor-iterator order (TActorIterator<AActor>). */
        virtual std::vector<FOrvActorRef> GetActors() const = 0;

        /** Whether the referenced actor still exists (a valid weak pointer). */
        virtual bool IsActorAlive(FOrvActorRef Actor) const = 0;

        /** The actor's object name, e.g. "StaticMeshActor_3"; "" when it is gone. */
        virtual std::string GetActorName(FOrvActorRef Actor) const = 0;

        /** The label the editor shows for the actor (GetActorLabel). */
        virtual std::string GetActorLabel(FOrvActorRef Actor) const = 0;

        /** World location and rotation (rotation quaternion converted to a rotator). */
        virtual FOrvTransform GetActorTransform(FOrvActorRef Actor) const = 0;

        /** The mesh of each UStaticMeshComponent of the actor, in component order; a null ref where a
         *  component has no mesh. Empty when the actor has no static mesh component. */
        virtual std::vector<FOrvMeshRef> GetStaticMeshComponents(FOrvActorRef Actor) const = 0;

        /** The editor world's map name (GetMapName); "" without a world. */
        virtual std::string GetMapName() const = 0;
    };

    /** @brief Called with the actor that was spawned into or destroyed from the editor world. */
    using FOrvActorEvent = std::function<void(FOrvActorRef Actor)>;

    /** @brief Handle of a pair of actor event registrations; zero when none. */
    struct FOrvActorEventsHandle
    {
        std::uint64_t Value = 0;

        bool IsValid() const { return Value != 0; }
    };

    /** @brief The editor world's actor-spawned and actor-destroyed notifications. Game thread. */
    class IOrvLevelEvents
    {
    public:
        virtual ~IOrvLevelEvents() = default;

        /** Registers both handlers with the current editor world; invalid handle without a world. */
        virtual FOrvActorEventsHandle AddActorHandlers(FOrvActorEvent OnSpawned,
                                                       FOrvActorEvent OnDestroyed) = 0;

        /** Removes both handlers; safe with an invalid or already removed handle. */
        virtual void RemoveActorHandlers(FOrvActorEventsHandle Handle) = 0;
    };
} // namespace OrvWebBridge
