#include "Host/Editor/OrvMemoryEditorPorts.h"

#include "Core/Common/OrvStrings.h"

FOrvMemoryActor* FOrvMemoryActorEditingPort::Find(FOrvActorRef Actor) const
{
    return Context.Level.bWorldAvailable ? Context.Level.Find(Actor) : nullptr;
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
    FOrvMemoryActor* Found = Find(Actor);
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
    Found->StaticMeshComponents.front() = NewMesh;
    Commit(Before, *Found);
}

void FOrvMemoryActorEditingPort::SetActorLabel(FOrvActorRef Actor, std::string_view Label)
{
    FOrvMemoryActor* Found = Find(Actor);
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
    Found->Label = NewLabel;
    Commit(Before, *Found);
}

void FOrvMemoryActorEditingPort::SetActorTransform(FOrvActorRef Actor,
                                                   const std::optional<FOrvVector>& Location,
                                                   const std::optional<FOrvRotator>& Rotation)
{
    FOrvMemoryActor* Found = Find(Actor);
    if (!Found || !Found->bHasRootComponent || (!Location && !Rotation))
    {
        return;
    }
    const FOrvMemoryActor Before = *Found;
    if (Location)
    {
        Found->Transform.Location = *Location;
    }
    if (Rotation)
    {
        Found->Transform.Rotation = *Rotation;
    }
    Commit(Before, *Found);
}

std::optional<FOrvTransform> FOrvMemoryActorEditingPort::GetRootComponentTransform(FOrvActorRef Actor) const
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
    if (FOrvMemoryActor* Found = Find(Actor))
    {
        Found->bTemporarilyHidden = bHidden;
    }
}
