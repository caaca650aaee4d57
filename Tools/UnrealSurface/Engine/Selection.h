#pragma once

// Engine: Editor/UnrealEd/Public/Selection.h (module UnrealEd). One set per kind of selection (actors,
// components, other objects); the editor's actor set holds actors only.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/UnrealEd/USelection/GetSelectedObjects/1?application_version=5.5

#include "UObject/Object.h"

class USelection : public UObject
{
    ORV_SURFACE_UCLASS_BODY(USelection, UObject)

    /** Fills OutSelectedObjects with the selected objects of type T, in selection order; their number. */
    template <class T> int32 GetSelectedObjects(TArray<T*>& OutSelectedObjects);
};
