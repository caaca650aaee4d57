#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpResultCallback.h (module HTTPServer). Copyable; call it
// once, on the game thread.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer

#include "CoreMinimal.h"

struct FHttpServerResponse;

using FHttpResultCallback = TFunction<void(TUniquePtr<FHttpServerResponse>&& Response)>;
