#pragma once

// Engine: Runtime/Core/Public/Templates/SharedPointer.h (module Core). The pointee may stay incomplete
// wherever only the pointer is named, as with the engine's.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TSharedPtr
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TSharedRef
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TWeakPtr

#include "HAL/Platform.h"

#include <cstddef>
#include <type_traits>

enum class ESPMode : uint8
{
    NotThreadSafe = 0,
    ThreadSafe = 1,
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedPtr;

/** Never null: there is no default constructor, as in the engine. */
template <class ObjectType, ESPMode Mode> class TSharedRef
{
public:
    TSharedRef(const TSharedRef& Other);
    TSharedRef(TSharedRef&& Other);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>)
        TSharedRef(const TSharedRef<OtherType, Mode>& Other);
    TSharedRef& operator=(const TSharedRef& Other);
    TSharedRef& operator=(TSharedRef&& Other);
    ~TSharedRef();

    ObjectType* operator->() const;
    ObjectType& operator*() const;
    ObjectType& Get() const;
};

template <class ObjectType, ESPMode Mode> class TSharedPtr
{
public:
    TSharedPtr();
    TSharedPtr(std::nullptr_t);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedPtr(OtherType* Object);
    TSharedPtr(const TSharedPtr& Other);
    TSharedPtr(TSharedPtr&& Other);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>)
        TSharedPtr(const TSharedPtr<OtherType, Mode>& Other);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>)
        TSharedPtr(const TSharedRef<OtherType, Mode>& Other);
    TSharedPtr& operator=(const TSharedPtr& Other);
    TSharedPtr& operator=(TSharedPtr&& Other);
    ~TSharedPtr();

    bool IsValid() const;
    explicit operator bool() const;
    ObjectType* Get() const;
    ObjectType* operator->() const;
    ObjectType& operator*() const;
    /** Checks (in the engine) that the pointer is valid. */
    TSharedRef<ObjectType, Mode> ToSharedRef() const;
    void Reset();
    /** Whether this is the only shared reference to the object. */
    bool IsUnique() const;
};

/** Does not keep the object alive; Pin() gives a shared pointer that is null once it is gone. */
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TWeakPtr
{
public:
    TWeakPtr();
    TWeakPtr(std::nullptr_t);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>)
        TWeakPtr(const TSharedRef<OtherType, Mode>& Other);
    template <class OtherType>
    requires(std::is_convertible_v<OtherType*, ObjectType*>)
        TWeakPtr(const TSharedPtr<OtherType, Mode>& Other);
    TWeakPtr(const TWeakPtr& Other);
    TWeakPtr& operator=(const TWeakPtr& Other);
    ~TWeakPtr();

    TSharedPtr<ObjectType, Mode> Pin() const;
    bool IsValid() const;
    void Reset();
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedFromThis
{
public:
    TSharedRef<ObjectType, Mode> AsShared();
    TSharedRef<const ObjectType, Mode> AsShared() const;
};

template <typename ObjectType, ESPMode Mode = ESPMode::ThreadSafe, typename... ArgTypes>
requires(std::is_constructible_v<ObjectType, ArgTypes...>)
    TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args);
