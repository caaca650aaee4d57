#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    void FOrvMemorySelectionPort::SelectNone()
    {
        Context.Level.SelectNone();
    }

    void FOrvMemorySelectionPort::SelectActor(FOrvActorRef Actor)
    {
        // Hidden actors are selected too: the adapter passes bSelectEvenIfHidden.
        if (Context.Level.bWorldAvailable)
        {
            Context.Level.Select(Actor);
        }
    }

    void FOrvMemorySelectionPort::NoteSelectionChange()
    {
        Context.Level.NoteSelectionChange();
    }
} // namespace OrvWebBridge
