#pragma once

// Engine: Runtime/Json/Public/Policies/PrettyJsonPrintPolicy.h (module Json): the writer's default policy.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/TPrettyJsonPrintPolicy

template <class CharType> struct TPrettyJsonPrintPolicy
{
};
