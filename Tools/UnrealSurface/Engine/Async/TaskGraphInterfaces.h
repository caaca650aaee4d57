#pragma once

// Engine: Runtime/Core/Public/Async/TaskGraphInterfaces.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/ENamedThreads__Type

#include "HAL/Platform.h"

namespace ENamedThreads
{
    enum Type : int32
    {
        GameThread = 2, // [unconf] value; only the name is used
    };
} // namespace ENamedThreads
