#include "Unreal/OrvUnrealActorEditing.h"

#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealEditorWorld.h"
#include "Unreal/OrvUnrealHandles.h"

#include "Components/StaticMeshComponent.h"
#include "Engine/StaticMeshActor.h"
#include "Engine/World.h"
#include "Templates/Casts.h"

namespace OrvWebBridge
{
    namespace
    {
        UStaticMeshComponent* OrvUnrealEditingMeshComponent(AActor* Actor)
        {
            if (AStaticMeshActor* MeshActor = Cast<AStaticMeshActor>(Actor))
            {
                return MeshActor->GetStaticMeshComponent();
            }
            return Actor ? Actor->FindComponentByClass<UStaticMeshComponent>() : nullptr;
        }
    } // namespace

    FOrvActorRef FOrvUnrealActorEditing::SpawnStaticMeshActor(const FOrvVector& Location,
                                                              const FOrvRotator& Rotation)
    {
        UWorld* World = FOrvUnrealEditorWorld::FindEditorWorld();
        if (!World)
        {
            return FOrvActorRef();
        }
        // Default spawn parameters carry RF_Transactional, so the open transaction can undo the spawn.
        AStaticMeshActor* Actor = World->SpawnActor<AStaticMeshActor>(
            FOrvUnrealConversions::ToFVector(Location), FOrvUnrealConversions::ToFRotator(Rotation));
        return Handles.ToActorRef(Actor);
    }

    void FOrvUnrealActorEditing::ModifyActor(FOrvActorRef Actor)
    {
        if (AActor* Resolved = Handles.ResolveActor(Actor))
        {
            Resolved->Modify();
        }
    }

    void FOrvUnrealActorEditing::SetStaticMesh(FOrvActorRef Actor, FOrvMeshRef Mesh)
    {
        if (UStaticMeshComponent* Component = OrvUnrealEditingMeshComponent(Handles.ResolveActor(Actor)))
        {
            // Movable first: a registered component with static mobility may refuse a new mesh.
            Component->SetMobility(EComponentMobility::Movable);
            Component->SetStaticMesh(Handles.ResolveMesh(Mesh));
        }
    }

    void FOrvUnrealActorEditing::SetActorLabel(FOrvActorRef Actor, std::string_view Label)
    {
        if (AActor* Resolved = Handles.ResolveActor(Actor))
        {
            Resolved->SetActorLabel(FOrvUnrealConversions::ToFString(Label), /*bMarkDirty=*/true);
        }
    }

    void FOrvUnrealActorEditing::SetActorTransform(FOrvActorRef Actor,
                                                   const std::optional<FOrvVector>& Location,
                                                   const std::optional<FOrvRotator>& Rotation)
    {
        AActor* Resolved = Handles.ResolveActor(Actor);
        if (!Resolved)
        {
            return;
        }
        if (Location)
        {
            Resolved->SetActorLocation(FOrvUnrealConversions::ToFVector(*Location), /*bSweep=*/false, nullptr,
                                       ETeleportType::None);
        }
        if (Rotation)
        {
            Resolved->SetActorRotation(FOrvUnrealConversions::ToFRotator(*Rotation), ETeleportType::None);
        }
    }

    std::optional<FOrvTransform> FOrvUnrealActorEditing::GetRootComponentTransform(FOrvActorRef Actor) const
    {
        const AActor* Resolved = Handles.ResolveActor(Actor);
        const USceneComponent* Root = Resolved ? Resolved->GetRootComponent() : nullptr;
        if (!Root)
        {
            return std::nullopt;
        }
        return FOrvTransform{FOrvUnrealConversions::ToOrvVector(Root->GetComponentLocation()),
                             FOrvUnrealConversions::ToOrvRotator(Root->GetComponentRotation())};
    }

    bool FOrvUnrealActorEditing::EditorDestroyActor(FOrvActorRef Actor)
    {
        AActor* Resolved = Handles.ResolveActor(Actor);
        UWorld* World = Resolved ? Resolved->GetWorld() : nullptr;
        return World && World->EditorDestroyActor(Resolved, /*bShouldModifyLevel=*/true);
    }

    void FOrvUnrealActorEditing::SetTemporarilyHidden(FOrvActorRef Actor, bool bHidden)
    {
        if (AActor* Resolved = Handles.ResolveActor(Actor))
        {
            Resolved->SetIsTemporarilyHiddenInEditor(bHidden);
        }
    }
} // namespace OrvWebBridge
