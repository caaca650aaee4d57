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
        Context.Ui.OnSelectionChanged.Broadcast();
    }

    std::optional<std::vector<FOrvActorRef>> FOrvMemorySelectionPort::GetSelectedActors() const
    {
        // Without an editor world the in-memory editor stands for one that has not started yet.
        if (!Context.Level.bWorldAvailable)
        {
            return std::nullopt;
        }
        return Context.Level.GetSelection();
    }
} // namespace OrvWebBridge
