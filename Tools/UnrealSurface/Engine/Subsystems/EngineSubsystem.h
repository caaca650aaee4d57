#pragma once

// Engine: Runtime/Engine/Public/Subsystems/EngineSubsystem.h (module Engine): a subsystem that lives as long
// as the engine; found with GEngine->GetEngineSubsystem<T>(). (USubsystem between the two is left out.)
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/UEngineSubsystem

#include "UObject/Object.h"

class UEngineSubsystem : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UEngineSubsystem, UObject)
};
