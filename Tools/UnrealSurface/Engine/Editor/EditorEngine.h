#pragma once

// Engine: Editor/UnrealEd/Classes/Editor/EditorEngine.h (module UnrealEd). The selection functions are
// declared here and implemented by UUnrealEdEngine.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/UEditorEngine
// Selection signatures: [code] (no API page found for them); defaults as the team's notes sheet has them.

#include "Engine/Engine.h"
#include "UnrealClient.h"

class AActor;
class USelection;

class UEditorEngine : public UEngine
{
    ORV_SURFACE_UCLASS_BODY(UEditorEngine, UEngine)

    FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

    /** [unconf: constness] */
    FViewport* GetActiveViewport();

    /** Hidden actors are left unselected unless bSelectEvenIfHidden is set. */
    virtual void SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false,
                             bool bForceRefresh = false);
    virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs,
                            bool WarnAboutManyActors = true);
    virtual void NoteSelectionChange(bool bNotify = true);

    /** The set of selected actors (never null while the editor runs). [unconf: virtual or not] */
    USelection* GetSelectedActors() const;
};
