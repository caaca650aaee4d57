#pragma once

#include "Core/Common/OrvTypes.h"

#include <optional>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief Changes to actors of the editor world, one engine call each. Game thread only.
     * Called inside an open transaction (IOrvTransactions) when the change must be undoable.
     */
    class IOrvActorEditing
    {
    public:
        virtual ~IOrvActorEditing() = default;

        /** World->SpawnActor<AStaticMeshActor>(Location, Rotation); a null ref when it fails or there is no
         * world. */
        virtual FOrvActorRef SpawnStaticMeshActor(const FOrvVector& Location,
                                                  const FOrvRotator& Rotation) = 0;

        /** Actor->Modify(): records the actor's state in the open transaction. */
        virtual void ModifyActor(FOrvActorRef Actor) = 0;

        /** On the actor's static mesh component: SetMobility(Movable), then SetStaticMesh(Mesh). */
        virtual void SetStaticMesh(FOrvActorRef Actor, FOrvMeshRef Mesh) = 0;

        /** SetActorLabel(Label, mark package dirty). */
        virtual void SetActorLabel(FOrvActorRef Actor, std::string_view Label) = 0;

        /** SetActorLocation (no sweep, no teleport) and/or SetActorRotation (no teleport); unset parts stay.
         */
        virtual void SetActorTransform(FOrvActorRef Actor, const std::optional<FOrvVector>& Location,
                                       const std::optional<FOrvRotator>& Rotation) = 0;

        /** The root component's world location and rotation; nothing when the actor has no root component. */
        virtual std::optional<FOrvTransform> GetRootComponentTransform(FOrvActorRef Actor) const = 0;

        /** World->EditorDestroyActor(Actor, true); the engine's answer. */
        virtual bool EditorDestroyActor(FOrvActorRef Actor) = 0;

        /** SetIsTemporarilyHiddenInEditor: hides or shows the actor for this editor session only. */
        virtual void SetTemporarilyHidden(FOrvActorRef Actor, bool bHidden) = 0;
    };
} // namespace OrvWebBridge
