#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    // Without an editor world every query answers as the engine's adapter does with a null world.

    const FOrvMemoryActor* FOrvMemoryWorldPort::Find(FOrvActorRef Actor) const
    {
        return Context.Level.bWorldAvailable ? Context.Level.Find(Actor) : nullptr;
    }

    bool FOrvMemoryWorldPort::HasEditorWorld() const
    {
        return Context.Level.bWorldAvailable;
    }

    std::vector<FOrvActorRef> FOrvMemoryWorldPort::GetActors() const
    {
        if (!Context.Level.bWorldAvailable)
        {
            return {};
        }
        return Context.Level.GetOrder();
    }

    bool FOrvMemoryWorldPort::IsActorAlive(FOrvActorRef Actor) const
    {
        return Find(Actor) != nullptr;
    }

    std::string FOrvMemoryWorldPort::GetActorName(FOrvActorRef Actor) const
    {
        const FOrvMemoryActor* Found = Find(Actor);
        return Found ? Found->Name : std::string();
    }

    std::string FOrvMemoryWorldPort::GetActorLabel(FOrvActorRef Actor) const
    {
        const FOrvMemoryActor* Found = Find(Actor);
        return Found ? Found->Label : std::string();
    }

    FOrvTransform FOrvMemoryWorldPort::GetActorTransform(FOrvActorRef Actor) const
    {
        // GetActorLocation/Rotation of an actor without a root component are zero.
        const FOrvMemoryActor* Found = Find(Actor);
        return Found && Found->bHasRootComponent ? Found->Transform : FOrvTransform{};
    }

    std::vector<FOrvMeshRef> FOrvMemoryWorldPort::GetStaticMeshComponents(FOrvActorRef Actor) const
    {
        const FOrvMemoryActor* Found = Find(Actor);
        return Found ? Found->StaticMeshComponents : std::vector<FOrvMeshRef>{};
    }

    std::string FOrvMemoryWorldPort::GetMapName() const
    {
        return Context.Level.bWorldAvailable ? Context.Level.MapName : std::string();
    }
} // namespace OrvWebBridge
