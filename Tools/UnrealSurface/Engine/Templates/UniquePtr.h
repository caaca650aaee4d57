#pragma once

// Engine: Runtime/Core/Public/Templates/UniquePtr.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TUniquePtr

#include <cstddef>
#include <type_traits>

template <typename T> struct TDefaultDelete
{
    void operator()(T* Ptr) const
    {
        static_assert(sizeof(T) > 0,
                      "TUniquePtr deletes its object where it is destroyed: T must be complete there");
        delete Ptr;
    }
};

/** Move-only, as the engine's. */
template <typename T, typename Deleter = TDefaultDelete<T>> class TUniquePtr
{
public:
    TUniquePtr();
    TUniquePtr(std::nullptr_t);
    explicit TUniquePtr(T* InPtr);
    TUniquePtr(TUniquePtr&& Other);
    template <typename OtherT>
    requires(std::is_convertible_v<OtherT*, T*>) TUniquePtr(TUniquePtr<OtherT>&& Other);
    TUniquePtr(const TUniquePtr&) = delete;
    TUniquePtr& operator=(const TUniquePtr&) = delete;
    TUniquePtr& operator=(TUniquePtr&& Other);
    ~TUniquePtr();

    bool IsValid() const;
    explicit operator bool() const;
    T* Get() const;
    T* operator->() const;
    T& operator*() const;
    T* Release();
    void Reset(T* InPtr = nullptr);
};

template <typename T, typename... ArgTypes>
requires(std::is_constructible_v<T, ArgTypes...>) TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
    return TUniquePtr<T>(); // a body because an argument may be a lambda (its type has no linkage)
}
