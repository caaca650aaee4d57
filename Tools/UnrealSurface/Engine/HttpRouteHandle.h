#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpRouteHandle.h (module HTTPServer). Null when the binding
// failed (the path and verbs were bound already).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/HttpServer/FHttpRouteHandle?application_version=5.5

#include "CoreMinimal.h"

struct FHttpRouteHandleInternal;

using FHttpRouteHandle = TSharedPtr<const FHttpRouteHandleInternal>;
