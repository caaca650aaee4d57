#pragma once

// Engine: Editor/UnrealEd/Public/Selection.h (module UnrealEd). SelectionChangedEvent is broadcast for each
// selection set that changes (actors, components, objects), with that USelection; an event is a multicast
// delegate that only its owner class may broadcast. The editor's actor set holds actors only.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/USelection
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/UnrealEd/USelection/GetSelectedObjects/1?application_version=5.5

#include "CoreMinimal.h"
#include "UObject/Object.h"

class USelection : public UObject
{
    ORV_SURFACE_UCLASS_BODY(USelection, UObject)

    using FOnSelectionChanged = TMulticastDelegate<void(UObject*)>;
    static FOnSelectionChanged SelectionChangedEvent;

    /** Fills OutSelectedObjects with the selected objects of type T, in selection order; their number. */
    template <class T> int32 GetSelectedObjects(TArray<T*>& OutSelectedObjects);
};
