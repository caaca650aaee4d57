#pragma once

// Engine: Runtime/Engine/Classes/Engine/Engine.h (module Engine).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FWorldContext
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UEngine
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/GEngine
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UEngine/GetEngineSubsystem

#include "UObject/Object.h"

class UWorld;

struct FWorldContext
{
    UWorld* World() const;
};

class UEngine : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UEngine, UObject)

    /** The engine subsystem of that class, or null when it is not running. */
    template <typename TSubsystemClass> TSubsystemClass* GetEngineSubsystem() const;
};

/** The running engine (the editor engine in the editor); null before it exists. */
extern ENGINE_API UEngine* GEngine;
