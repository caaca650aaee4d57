#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/ObjectKey.h (module CoreUObject). Unique for an object's whole
// life and never reused for another object, so it stays a safe map key after the object is gone.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/FObjectKey

#include "UObject/Object.h"

struct FObjectKey
{
    FObjectKey();
    FObjectKey(const UObject* Object);

    bool operator==(const FObjectKey& Other) const;
    friend uint32 GetTypeHash(const FObjectKey& Key);
};
