#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpRequestHandler.h (module HTTPServer). Return true only when
// the handler will call OnComplete exactly once (possibly later).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer

#include "CoreMinimal.h"
#include "HttpResultCallback.h"

struct FHttpServerRequest;

using FHttpRequestHandler =
    TDelegate<bool(const FHttpServerRequest& Request, const FHttpResultCallback& OnComplete)>;
