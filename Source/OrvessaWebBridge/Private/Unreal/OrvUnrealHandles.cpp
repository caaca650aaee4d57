#include "Unreal/OrvUnrealHandles.h"

#include "Engine/StaticMesh.h"
#include "GameFramework/Actor.h"

namespace OrvWebBridge
{
    template <typename ObjectType>
    uint64 FOrvUnrealHandles::Assign(TTable<ObjectType>& Table, ObjectType* Object)
    {
        if (!Object)
        {
            return 0;
        }
        const FObjectKey Key(Object);
        if (const uint64* Existing = Table.Ids.Find(Key))
        {
            return *Existing;
        }
        // Entries of destroyed objects are kept: a few bytes each, and a stale reference stays harmless.
        const uint64 Id = NextId++;
        Table.Ids.Add(Key, Id);
        Table.Objects.Add(Id, TWeakObjectPtr<ObjectType>(Object));
        return Id;
    }

    FOrvActorRef FOrvUnrealHandles::ToActorRef(AActor* Actor)
    {
        return FOrvActorRef{Assign(Actors, Actor)};
    }

    AActor* FOrvUnrealHandles::ResolveActor(FOrvActorRef Ref) const
    {
        const TWeakObjectPtr<AActor>* Found = Actors.Objects.Find(Ref.Value);
        return Found ? Found->Get() : nullptr;
    }

    FOrvMeshRef FOrvUnrealHandles::ToMeshRef(UStaticMesh* Mesh)
    {
        return FOrvMeshRef{Assign(Meshes, Mesh)};
    }

    UStaticMesh* FOrvUnrealHandles::ResolveMesh(FOrvMeshRef Ref) const
    {
        const TWeakObjectPtr<UStaticMesh>* Found = Meshes.Objects.Find(Ref.Value);
        return Found ? Found->Get() : nullptr;
    }
} // namespace OrvWebBridge
