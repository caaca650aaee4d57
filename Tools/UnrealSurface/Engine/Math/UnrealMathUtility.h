#pragma once

// Engine: Runtime/Core/Public/Math/UnrealMathUtility.h (module Core). Max, Min and Clamp take one type
// for all their arguments.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FMath

#define UE_KINDA_SMALL_NUMBER (1.e-4f)

struct FMath
{
    template <class T> static constexpr T Max(const T A, const T B);
    template <class T> static constexpr T Min(const T A, const T B);
    template <class T> static constexpr T Clamp(const T X, const T MinValue, const T MaxValue);
};
