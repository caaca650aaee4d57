#include "Unreal/OrvUnrealSelection.h"

#include "Unreal/OrvUnrealHandles.h"

#include "Editor.h"

namespace OrvWebBridge
{
    void FOrvUnrealSelection::SelectNone()
    {
        if (GEditor)
        {
            GEditor->SelectNone(/*bNoteSelectionChange=*/false, /*bDeselectBSPSurfs=*/true,
                                /*WarnAboutManyActors=*/false);
        }
    }

    void FOrvUnrealSelection::SelectActor(FOrvActorRef Actor)
    {
        AActor* Resolved = Handles.ResolveActor(Actor);
        if (GEditor && Resolved)
        {
            // Actors hidden for the session are only selected when asked to select even if hidden.
            GEditor->SelectActor(Resolved, /*bInSelected=*/true, /*bNotify=*/false,
                                 /*bSelectEvenIfHidden=*/true);
        }
    }

    void FOrvUnrealSelection::NoteSelectionChange()
    {
        if (GEditor)
        {
            GEditor->NoteSelectionChange();
        }
    }
} // namespace OrvWebBridge
