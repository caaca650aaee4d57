#include "Unreal/OrvUnrealEditorWorld.h"

#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealHandles.h"

#include "Components/StaticMeshComponent.h"
#include "Editor.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"

namespace OrvWebBridge
{
    UWorld* FOrvUnrealEditorWorld::FindEditorWorld()
    {
        return GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
    }

    bool FOrvUnrealEditorWorld::HasEditorWorld() const
    {
        return FindEditorWorld() != nullptr;
    }

    std::vector<FOrvActorRef> FOrvUnrealEditorWorld::GetActors() const
    {
        std::vector<FOrvActorRef> Actors;
        if (UWorld* World = FindEditorWorld())
        {
            for (TActorIterator<AActor> It(World); It; ++It)
            {
                Actors.push_back(Handles.ToActorRef(*It));
            }
        }
        return Actors;
    }

    bool FOrvUnrealEditorWorld::IsActorAlive(FOrvActorRef Actor) const
    {
        return Handles.ResolveActor(Actor) != nullptr;
    }

    std::string FOrvUnrealEditorWorld::GetActorName(FOrvActorRef Actor) const
    {
        const AActor* Resolved = Handles.ResolveActor(Actor);
        return Resolved ? FOrvUnrealConversions::ToUtf8(Resolved->GetName()) : std::string();
    }

    std::string FOrvUnrealEditorWorld::GetActorLabel(FOrvActorRef Actor) const
    {
        const AActor* Resolved = Handles.ResolveActor(Actor);
        return Resolved ? FOrvUnrealConversions::ToUtf8(Resolved->GetActorLabel()) : std::string();
    }

    FOrvTransform FOrvUnrealEditorWorld::GetActorTransform(FOrvActorRef Actor) const
    {
        const AActor* Resolved = Handles.ResolveActor(Actor);
        if (!Resolved)
        {
            return FOrvTransform();
        }
        return FOrvTransform{FOrvUnrealConversions::ToOrvVector(Resolved->GetActorLocation()),
                             FOrvUnrealConversions::ToOrvRotator(Resolved->GetActorQuat().Rotator())};
    }

    std::vector<FOrvMeshRef> FOrvUnrealEditorWorld::GetStaticMeshComponents(FOrvActorRef Actor) const
    {
        std::vector<FOrvMeshRef> Meshes;
        const AActor* Resolved = Handles.ResolveActor(Actor);
        if (!Resolved)
        {
            return Meshes;
        }
        TArray<UStaticMeshComponent*> Components;
        Resolved->GetComponents<UStaticMeshComponent>(Components);
        for (const UStaticMeshComponent* Component : Components)
        {
            Meshes.push_back(Handles.ToMeshRef(Component ? Component->GetStaticMesh() : nullptr));
        }
        return Meshes;
    }

    std::string FOrvUnrealEditorWorld::GetMapName() const
    {
        const UWorld* World = FindEditorWorld();
        return World ? FOrvUnrealConversions::ToUtf8(World->GetMapName()) : std::string();
    }
} // namespace OrvWebBridge
