#pragma once

// Engine: Editor/UnrealEd/Public/Editor.h (module UnrealEd). GEditor is null in commandlets and before the
// editor engine exists.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/GEditor

#include "Editor/EditorEngine.h"

extern UNREALED_API UEditorEngine* GEditor;
