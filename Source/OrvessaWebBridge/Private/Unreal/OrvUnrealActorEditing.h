#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvActorEditing.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvActorEditing: one engine call per method on actors of the editor world. */
    class FOrvUnrealActorEditing final : public IOrvActorEditing
    {
    public:
        explicit FOrvUnrealActorEditing(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual FOrvActorRef SpawnStaticMeshActor(const FOrvVector& Location,
                                                  const FOrvRotator& Rotation) override;
        virtual void ModifyActor(FOrvActorRef Actor) override;
        virtual void SetStaticMesh(FOrvActorRef Actor, FOrvMeshRef Mesh) override;
        virtual void SetActorLabel(FOrvActorRef Actor, std::string_view Label) override;
        virtual void SetActorTransform(FOrvActorRef Actor, const std::optional<FOrvVector>& Location,
                                       const std::optional<FOrvRotator>& Rotation) override;
        virtual std::optional<FOrvTransform> GetRootComponentTransform(FOrvActorRef Actor) const override;
        virtual bool EditorDestroyActor(FOrvActorRef Actor) override;
        virtual void SetTemporarilyHidden(FOrvActorRef Actor, bool bHidden) override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
