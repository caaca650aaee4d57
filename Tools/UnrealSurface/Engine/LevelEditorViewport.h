#pragma once

// Engine: Editor/UnrealEd/Public/LevelEditorViewport.h (module UnrealEd). The current client may be null.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/FLevelEditorViewportClient

#include "EditorViewportClient.h"

class FLevelEditorViewportClient : public FEditorViewportClient
{
};

extern UNREALED_API FLevelEditorViewportClient* GCurrentLevelEditingViewportClient;
