#pragma once

#include "Core/Common/OrvTypes.h"

namespace OrvWebBridge
{
    /** @brief The editor's actor selection (GEditor SelectNone / SelectActor / NoteSelectionChange). Game
     * thread.
     */
    class IOrvEditorSelection
    {
    public:
        virtual ~IOrvEditorSelection() = default;

        /** Deselects every actor without notifying. */
        virtual void SelectNone() = 0;

        /** Adds the actor to the selection without notifying, even when it is hidden. */
        virtual void SelectActor(FOrvActorRef Actor) = 0;

        /** Tells the editor once that the selection changed. */
        virtual void NoteSelectionChange() = 0;
    };
} // namespace OrvWebBridge
