#pragma once

// Engine: Runtime/CoreUObject/Public/Templates/Casts.h (module CoreUObject). Null when Src is null or not a
// To; a const source gives a const result.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/Cast

#include "UObject/Object.h"

#include <type_traits>

template <typename To, typename From>
requires(std::is_base_of_v<UObject, To>&& std::is_base_of_v<UObject, From> &&
         !std::is_const_v<From>) To* Cast(From* Src);

template <typename To, typename From>
requires(std::is_base_of_v<UObject, To>&& std::is_base_of_v<UObject, From>) const To* Cast(const From* Src);
