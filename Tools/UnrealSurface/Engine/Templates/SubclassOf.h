#pragma once

// Engine: Runtime/CoreUObject/Public/Templates/SubclassOf.h (module CoreUObject). Made from any UClass*;
// the engine checks at run time that it is a subclass of T.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/TSubclassOf

#include "UObject/Class.h"

template <typename T> class TSubclassOf
{
public:
    TSubclassOf();
    TSubclassOf(UClass* From);
    UClass* Get() const;
};
