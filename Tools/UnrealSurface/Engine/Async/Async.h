#pragma once

// Engine: Runtime/Core/Public/Async/Async.h (module Core). On the game thread the task still runs later,
// on the next task graph turn, never inside the caller.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/AsyncTask

#include "Async/TaskGraphInterfaces.h"
#include "Templates/Function.h"

CORE_API void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function);
