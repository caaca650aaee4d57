#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvEditorWorld.h"

class UWorld;

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvEditorWorld over GEditor's editor world context. Every call copes with no world. */
    class FOrvUnrealEditorWorld final : public IOrvEditorWorld
    {
    public:
        explicit FOrvUnrealEditorWorld(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        /** The editor world, or null in commandlets and before the editor engine exists. */
        static UWorld* FindEditorWorld();

        virtual bool HasEditorWorld() const override;
        virtual std::vector<FOrvActorRef> GetActors() const override;
        virtual bool IsActorAlive(FOrvActorRef Actor) const override;
        virtual std::string GetActorName(FOrvActorRef Actor) const override;
        virtual std::string GetActorLabel(FOrvActorRef Actor) const override;
        virtual FOrvTransform GetActorTransform(FOrvActorRef Actor) const override;
        virtual std::vector<FOrvMeshRef> GetStaticMeshComponents(FOrvActorRef Actor) const override;
        virtual std::string GetMapName() const override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
