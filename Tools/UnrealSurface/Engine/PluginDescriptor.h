#pragma once

// Engine: Runtime/Projects/Public/PluginDescriptor.h (module Projects): what a .uplugin file holds.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Projects/FPluginDescriptor

#include "Containers/UnrealString.h"

struct FPluginDescriptor
{
    FString VersionName;
};
