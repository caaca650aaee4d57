#pragma once

// Engine: Runtime/Core/Public/Templates/Tuple.h (module Core): TPair is a two-element TTuple whose members
// are called Key and Value; TMap iterates over them.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TTuple

template <typename KeyType, typename ValueType> struct TPair
{
    KeyType Key;
    ValueType Value;
};
