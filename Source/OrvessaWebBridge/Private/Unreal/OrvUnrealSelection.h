#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvEditorSelection.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvEditorSelection over GEditor: batch changes without notifying, then notify once. */
    class FOrvUnrealSelection final : public IOrvEditorSelection
    {
    public:
        explicit FOrvUnrealSelection(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual void SelectNone() override;
        virtual void SelectActor(FOrvActorRef Actor) override;
        virtual void NoteSelectionChange() override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
