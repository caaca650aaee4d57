#include "Host/Editor/OrvMemoryEditorPorts.h"

#include "Core/Common/OrvStrings.h"

namespace OrvWebBridge
{
    const FOrvMemoryActor* FOrvMemoryActorEditingPort::Find(FOrvActorRef Actor) const
    {
        return Context.Level.bWorldAvailable ? Context.Level.Find(Actor) : nullptr;
    }

    FOrvMemoryActor* FOrvMemoryActorEditingPort::Edit(FOrvActorRef Actor)
    {
        return Context.Level.bWorldAvailable ? Context.Level.Edit(Actor) : nullptr;
    }

    void FOrvMemoryActorEditingPort::Commit(const FOrvMemoryActor& Before, const FOrvMemoryActor& After)
    {
        Context.UndoBuffer.RecordChanged(Before, After);
        Context.Level.bDirty = true;
    }

    FOrvActorRef FOrvMemoryActorEditingPort::SpawnStaticMeshActor(const FOrvVector& Location,
                                                                  const FOrvRotator& Rotation)
    {
        if (!Context.Level.bWorldAvailable)
        {
            return {};
        }
        // A new AStaticMeshActor: default name, one static mesh component without a mesh, a root.
        FOrvMemoryActor Actor;
        Actor.ClassName = "StaticMeshActor";
        Actor.Transform = FOrvTransform{Location, Rotation};
        Actor.StaticMeshComponents = {FOrvMeshRef{}};
        const FOrvActorRef Ref = Context.Level.AddActor(std::move(Actor));
        if (Ref)
        {
            Context.UndoBuffer.RecordSpawned(Ref, Context.Level.GetOrder().size() - 1);
            Context.Level.bDirty = true;
        }
        return Ref;
    }

    void FOrvMemoryActorEditingPort::ModifyActor(FOrvActorRef Actor)
    {
        // Every change below records itself, so Modify only dirties the level, as the engine's does
        // inside a transaction.
        if (Find(Actor) && Context.UndoBuffer.IsRecording())
        {
            Context.Level.bDirty = true;
        }
    }

    void FOrvMemoryActorEditingPort::SetStaticMesh(FOrvActorRef Actor, FOrvMeshRef Mesh)
    {
        const FOrvMemoryActor* Found = Find(Actor);
        if (!Found || Found->StaticMeshComponents.empty())
        {
            return;
        }
        // A ref that names no loaded mesh is a null mesh, as a null UStaticMesh* would be.
        const FOrvMeshRef NewMesh = Context.Assets.FindMesh(Mesh) ? Mesh : FOrvMeshRef{};
        if (Found->StaticMeshComponents.front() == NewMesh)
        {
            return; // SetStaticMesh refuses an unchanged mesh
        }
        const FOrvMemoryActor Before = *Found;
        FOrvMemoryActor* Changed = Edit(Actor);
        Changed->StaticMeshComponents.front() = NewMesh;
        Commit(Before, *Changed);
    }

    void FOrvMemoryActorEditingPort::SetActorLabel(FOrvActorRef Actor, std::string_view Label)
    {
        const FOrvMemoryActor* Found = Find(Actor);
        if (!Found)
        {
            return;
        }
        // The engine trims the label, and an empty one falls back to the default (the object name here).
        const std::string_view Trimmed = FOrvStrings::Trim(Label);
        const std::string NewLabel = Trimmed.empty() ? Found->Name : std::string(Trimmed);
        if (NewLabel == Found->Label)
        {
            return;
        }
        const FOrvMemoryActor Before = *Found;
        FOrvMemoryActor* Changed = Edit(Actor);
        Changed->Label = NewLabel;
        Commit(Before, *Changed);
    }

    void FOrvMemoryActorEditingPort::SetActorTransform(FOrvActorRef Actor,
                                                       const std::optional<FOrvVector>& Location,
                                                       const std::optional<FOrvRotator>& Rotation)
    {
        const FOrvMemoryActor* Found = Find(Actor);
        if (!Found || !Found->bHasRootComponent || (!Location && !Rotation))
        {
            return;
        }
        const FOrvMemoryActor Before = *Found;
        FOrvMemoryActor* Changed = Edit(Actor);
        if (Location)
        {
            Changed->Transform.Location = *Location;
        }
        if (Rotation)
        {
            Changed->Transform.Rotation = *Rotation;
        }
        Commit(Before, *Changed);
    }

    std::optional<FOrvTransform>
    FOrvMemoryActorEditingPort::GetRootComponentTransform(FOrvActorRef Actor) const
    {
        const FOrvMemoryActor* Found = Find(Actor);
        if (!Found || !Found->bHasRootComponent)
        {
            return std::nullopt;
        }
        return Found->Transform;
    }

    bool FOrvMemoryActorEditingPort::EditorDestroyActor(FOrvActorRef Actor)
    {
        if (!Find(Actor))
        {
            return false;
        }
        const std::size_t Index = *Context.Level.IndexOf(Actor);
        Context.Level.RemoveActor(Actor);
        Context.UndoBuffer.RecordDestroyed(Actor, Index);
        Context.Level.bDirty = true;
        return true;
    }

    void FOrvMemoryActorEditingPort::SetTemporarilyHidden(FOrvActorRef Actor, bool bHidden)
    {
        // Session-only state: neither transacted nor a change that needs saving.
        const FOrvMemoryActor* Found = Find(Actor);
        if (Found && Found->bTemporarilyHidden != bHidden)
        {
            Edit(Actor)->bTemporarilyHidden = bHidden;
        }
    }
} // namespace OrvWebBridge
