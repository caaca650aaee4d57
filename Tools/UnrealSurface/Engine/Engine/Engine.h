#pragma once

// Engine: Runtime/Engine/Classes/Engine/Engine.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FWorldContext
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UEngine

#include "UObject/Object.h"

class UWorld;

struct FWorldContext
{
    UWorld* World() const;
};

class UEngine : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UEngine, UObject)
};
