#pragma once

// Engine: Runtime/Core/Public/Delegates/IDelegateInstance.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FDelegateHandle

#include "HAL/Platform.h"

/** Names one binding of a multicast delegate, for removing it later; default-constructed it names none. */
class FDelegateHandle
{
public:
    FDelegateHandle();
    bool IsValid() const;
    void Reset();
    bool operator==(const FDelegateHandle& Other) const;
    friend uint32 GetTypeHash(const FDelegateHandle& Handle);
};
