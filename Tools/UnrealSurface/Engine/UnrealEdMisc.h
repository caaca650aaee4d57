#pragma once

// Engine: Editor/UnrealEd/Public/UnrealEdMisc.h (module UnrealEd) [unconf: scoped enum].
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/EMapChangeType

#include "HAL/Platform.h"

enum class EMapChangeType : uint8
{
    LoadMap,       ///< a map has just been loaded
    SaveMap,       ///< a map is about to be saved
    NewMap,        ///< a new map is loaded
    TearDownWorld, ///< the world is about to be torn down
};
