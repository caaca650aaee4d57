#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectKey.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include "Core/Common/OrvTypes.h"

class AActor;
class UStaticMesh;

namespace OrvWebBridge
{
    /**
     * @brief The core's opaque actor and mesh references, each backed by a weak pointer: a reference to
     * an actor that was destroyed or a mesh that was unloaded resolves to null instead of dangling.
     * The same object always gets the same reference. Shared by every adapter. Game thread only.
     */
    class FOrvUnrealHandles
    {
    public:
        FOrvActorRef ToActorRef(AActor* Actor);
        AActor* ResolveActor(FOrvActorRef Ref) const;

        FOrvMeshRef ToMeshRef(UStaticMesh* Mesh);
        UStaticMesh* ResolveMesh(FOrvMeshRef Ref) const;

    private:
        template <typename ObjectType> struct TTable
        {
            TMap<uint64, TWeakObjectPtr<ObjectType>> Objects;
            TMap<FObjectKey, uint64> Ids; ///< FObjectKey stays unique even after its object is gone
        };

        template <typename ObjectType> uint64 Assign(TTable<ObjectType>& Table, ObjectType* Object);

        TTable<AActor> Actors;
        TTable<UStaticMesh> Meshes;
        uint64 NextId = 1; ///< zero means "none" to the core
    };
} // namespace OrvWebBridge
