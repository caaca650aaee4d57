#pragma once

// Engine: Editor/UnrealEd/Public/EditorViewportClient.h (module UnrealEd). GetViewLocation and
// GetViewRotation read the perspective or the orthographic transform, as the viewport type is.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/UnrealEd/FEditorViewportClient/GetViewRotation?application_version=5.5
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/UnrealEd/FEditorViewportClient/GetViewLocation?application_version=5.1

#include "CoreMinimal.h"
#include "UnrealClient.h"

class FEditorViewportClient
{
public:
    virtual ~FEditorViewportClient();

    const FVector& GetViewLocation() const;
    const FRotator& GetViewRotation() const;

    /** The live horizontal field of view, degrees. */
    float ViewFOV;
    /** May be null. */
    FViewport* Viewport;
};
