#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpServerRequest.h (module HTTPServer). The body is raw bytes
// with no terminator.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/FHttpServerRequest
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/EHttpServerRequestVerbs

#include "CoreMinimal.h"
#include "HttpPath.h"

/** Bit flags (the engine declares them with ENUM_CLASS_FLAGS). */
enum class EHttpServerRequestVerbs : uint16
{
    VERB_NONE = 0,
    VERB_GET = 1 << 0,
    VERB_POST = 1 << 1,
    VERB_PUT = 1 << 2,
    VERB_PATCH = 1 << 3,
    VERB_DELETE = 1 << 4,
    VERB_OPTIONS = 1 << 5,
};

struct FHttpServerRequest
{
    EHttpServerRequestVerbs Verb;
    /** Relative to the route. */
    FHttpPath RelativePath;
    TMap<FString, TArray<FString>> Headers;
    /** Already split at '&' and '='. [unconf: whether names and values are percent-decoded] */
    TMap<FString, FString> QueryParams;
    TArray<uint8> Body;
};
