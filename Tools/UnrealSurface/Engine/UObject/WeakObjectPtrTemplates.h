#pragma once

// Engine: Runtime/Core/Public/UObject/WeakObjectPtrTemplates.h (module Core; the implementation is in
// CoreUObject). Get() is null once the object is destroyed. T may be incomplete where the pointer is only
// declared.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TWeakObjectPtr

#include <cstddef>
#include <type_traits>

template <typename T> struct TWeakObjectPtr
{
    TWeakObjectPtr();
    TWeakObjectPtr(std::nullptr_t);
    template <typename U>
    requires(std::is_convertible_v<U*, T*>) TWeakObjectPtr(U* Object);
    TWeakObjectPtr(const TWeakObjectPtr& Other);
    TWeakObjectPtr& operator=(const TWeakObjectPtr& Other);
    template <typename U>
    requires(std::is_convertible_v<U*, T*>) TWeakObjectPtr& operator=(U* Object);

    T* Get() const;
    bool IsValid() const;
};
