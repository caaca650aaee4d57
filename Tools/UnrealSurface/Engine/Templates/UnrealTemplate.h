#pragma once

// Engine: Runtime/Core/Public/Templates/UnrealTemplate.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/MoveTemp

#include <type_traits>

/** Like std::move, and like the engine refuses a const object or an rvalue (moving those silently copies). */
template <typename T> constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object)
{
    static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on an rvalue");
    static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp called on a const object");
    return static_cast<std::remove_reference_t<T>&&>(Object);
}

template <typename T> constexpr T&& Forward(std::remove_reference_t<T>& Object)
{
    return static_cast<T&&>(Object);
}
