#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvEditorSelection.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvEditorSelection over GEditor: batch changes without notifying, then notify once; read the
     * selected actors from its actor selection set. */
    class FOrvUnrealSelection final : public IOrvEditorSelection
    {
    public:
        explicit FOrvUnrealSelection(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual void SelectNone() override;
        virtual void SelectActor(FOrvActorRef Actor) override;
        virtual void NoteSelectionChange() override;
        virtual std::optional<std::vector<FOrvActorRef>> GetSelectedActors() const override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
