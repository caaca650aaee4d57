#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpServerResponse.h (module HTTPServer). The text overload of
// Create appends ";charset=utf-8" to the content type; the byte overload sends it as given.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/FHttpServerResponse
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/FHttpServerResponse/Create

#include "CoreMinimal.h"
#include "HttpServerConstants.h"

struct FHttpServerResponse
{
    EHttpServerResponseCodes Code;
    TMap<FString, TArray<FString>> Headers;
    TArray<uint8> Body;

    /** 5.4 took ContentType by value; 5.5 and later by const reference. */
    static TUniquePtr<FHttpServerResponse> Create(const FString& Text, const FString& ContentType);
    static TUniquePtr<FHttpServerResponse> Create(TArray<uint8>&& RawBytes, FString ContentType);
};
