#pragma once

// Engine: Runtime/Core/Public/UObject/NameTypes.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FName

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

class FName
{
public:
    FName();
    FName(const TCHAR* Name);

    FString ToString() const;

    bool operator==(const FName& Other) const;
    friend uint32 GetTypeHash(const FName& Name);
};
