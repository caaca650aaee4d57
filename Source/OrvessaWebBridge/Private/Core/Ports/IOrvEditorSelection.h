#pragma once

#include "Core/Common/OrvTypes.h"

#include <optional>
#include <vector>

namespace OrvWebBridge
{
    /** @brief The editor's actor selection (GEditor SelectNone / SelectActor / NoteSelectionChange /
     * GetSelectedActors). Game thread.
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

        /** The selected actors in selection order (other selected objects left out); nothing without an
         *  editor engine (GEditor null). */
        virtual std::optional<std::vector<FOrvActorRef>> GetSelectedActors() const = 0;
    };
} // namespace OrvWebBridge
