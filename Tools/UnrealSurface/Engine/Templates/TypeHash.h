#pragma once

// Engine: Runtime/Core/Public/Templates/TypeHash.h (module Core). TMap and TSet keys need a GetTypeHash.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/GetTypeHash

#include "HAL/Platform.h"

#include <concepts>

uint32 GetTypeHash(int32 Value);
uint32 GetTypeHash(uint32 Value);
uint32 GetTypeHash(int64 Value);
uint32 GetTypeHash(uint64 Value);
uint32 GetTypeHash(const void* Pointer);

namespace OrvSurface
{
    /** What the engine's hashed containers ask of a key: a GetTypeHash and an operator==. */
    template <typename KeyType>
    concept CHashableKey = requires(const KeyType& Key)
    {
        {
            GetTypeHash(Key)
            } -> std::convertible_to<uint32>;
        {
            Key == Key
            } -> std::convertible_to<bool>;
    };
} // namespace OrvSurface
