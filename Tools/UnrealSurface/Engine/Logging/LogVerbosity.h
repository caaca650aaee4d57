#pragma once

// Engine: Runtime/Core/Public/Logging/LogVerbosity.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/ELogVerbosity__Type

#include "HAL/Platform.h"

namespace ELogVerbosity
{
    enum Type : uint8
    {
        NoLogging = 0,
        Fatal,
        Error,
        Warning,
        Display,
        Log,
        Verbose,
        VeryVerbose,
        All = VeryVerbose,
    };
} // namespace ELogVerbosity
