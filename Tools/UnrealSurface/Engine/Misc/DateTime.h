#pragma once

// Engine: Runtime/Core/Public/Misc/DateTime.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FDateTime

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

struct FDateTime
{
    /** The local date and time. */
    static FDateTime Now();

    /** Formatted with strftime-like codes (%Y, %m, %d, ...). */
    FString ToString(const TCHAR* Format) const;
};
