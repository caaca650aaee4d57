#pragma once

// Engine: Runtime/Json/Public/Policies/CondensedJsonPrintPolicy.h (module Json): no whitespace at all.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/TCondensedJsonPrintPolicy

template <class CharType> struct TCondensedJsonPrintPolicy
{
};
