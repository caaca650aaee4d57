#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpPath.h (module HTTPServer). "/" is not a valid route path
// (a check fails) and a trailing slash is dropped.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/FHttpPath

#include "CoreMinimal.h"

struct FHttpPath
{
    FHttpPath();
    FHttpPath(FString InPath);

    const FString& GetPath() const;
};
