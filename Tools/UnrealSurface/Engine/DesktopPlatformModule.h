#pragma once

// Engine: Developer/DesktopPlatform/Public/DesktopPlatformModule.h (module DesktopPlatform). Get() may be
// null (headless runs).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/DesktopPlatform/FDesktopPlatformModule

#include "IDesktopPlatform.h"
#include "Modules/ModuleInterface.h"

class FDesktopPlatformModule : public IModuleInterface
{
public:
    static IDesktopPlatform* Get();
};
