#pragma once

// Engine: Runtime/Core/Public/Misc/Paths.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FPaths

#include "Containers/UnrealString.h"

class FPaths
{
public:
    /** The project's folder, relative to the executable, ending in a slash. */
    static FString ProjectDir();

    /** The path made absolute (relative paths are taken from the executable's folder). */
    static FString ConvertRelativePathToFull(const FString& InPath);
};
