#include "Unreal/OrvUnrealSelection.h"

#include "Unreal/OrvUnrealHandles.h"

#include "Editor.h"
#include "GameFramework/Actor.h"
#include "Selection.h"

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

    std::optional<std::vector<FOrvActorRef>> FOrvUnrealSelection::GetSelectedActors() const
    {
        if (!GEditor)
        {
            return std::nullopt;
        }
        // The actor selection set holds actors only; other selected objects live in other sets.
        TArray<AActor*> Selected;
        GEditor->GetSelectedActors()->GetSelectedObjects<AActor>(Selected);
        std::vector<FOrvActorRef> Actors;
        Actors.reserve(static_cast<size_t>(Selected.Num()));
        for (AActor* Actor : Selected)
        {
            Actors.push_back(Handles.ToActorRef(Actor));
        }
        return Actors;
    }
} // namespace OrvWebBridge
