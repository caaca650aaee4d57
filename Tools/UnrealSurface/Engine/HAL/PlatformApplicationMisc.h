#pragma once

// Engine: Runtime/ApplicationCore/Public/HAL/PlatformApplicationMisc.h (module ApplicationCore). The
// engine's FPlatformApplicationMisc is a typedef of the platform's class (FWindowsPlatformApplicationMisc),
// which derives from FGenericPlatformApplicationMisc; one struct stands for them here.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/ApplicationCore/FGenericPlatformApplicationMisc/ClipboardCopy

#include "CoreMinimal.h"

struct FPlatformApplicationMisc
{
    /** Puts the text on the system clipboard. */
    static void ClipboardCopy(const TCHAR* Str);
};
