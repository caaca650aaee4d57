#pragma once

// Engine: Runtime/Core/Public/UObject/NameTypes.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FName

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

/** The names the engine predefines; only NAME_None is used here. */
enum EName : uint32
{
    NAME_None = 0,
};

class FName
{
public:
    FName();
    FName(EName Name);
    FName(const TCHAR* Name);
    /** Names from 8-bit text (the core's tables hold char literals). */
    FName(const ANSICHAR* Name);

    FString ToString() const;

    bool operator==(const FName& Other) const;
    friend uint32 GetTypeHash(const FName& Name);
};
