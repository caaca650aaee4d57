#pragma once

// Engine: Editor/UnrealEd/Public/Selection.h (module UnrealEd). SelectionChangedEvent is broadcast for each
// selection set that changes (actors, components, objects), with that USelection; an event is a multicast
// delegate that only its owner class may broadcast.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/USelection

#include "CoreMinimal.h"
#include "UObject/Object.h"

class USelection : public UObject
{
    ORV_SURFACE_UCLASS_BODY(USelection, UObject)

    using FOnSelectionChanged = TMulticastDelegate<void(UObject*)>;
    static FOnSelectionChanged SelectionChangedEvent;
};
