#pragma once

// Engine: Runtime/Core/Public/CoreGlobals.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/IsInGameThread

#include "Logging/LogMacros.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

bool IsInGameThread();
