#pragma once

// Engine: Runtime/Core/Public/Containers/Map.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TMap

#include "HAL/Platform.h"
#include "Templates/Tuple.h"
#include "Templates/TypeHash.h"

template <typename InKeyType, typename InValueType> class TMap
{
    static_assert(OrvSurface::CHashableKey<InKeyType>, "TMap keys need GetTypeHash and operator==");

public:
    using KeyType = InKeyType;
    using ValueType = InValueType;
    using ElementType = TPair<KeyType, ValueType>;

    TMap();
    TMap(const TMap& Other);
    TMap(TMap&& Other);
    TMap& operator=(const TMap& Other);
    TMap& operator=(TMap&& Other);
    ~TMap();

    ValueType& Add(const KeyType& InKey, const ValueType& InValue);
    ValueType& Add(const KeyType& InKey, ValueType&& InValue);
    ValueType& Add(KeyType&& InKey, const ValueType& InValue);
    ValueType& Add(KeyType&& InKey, ValueType&& InValue);

    ValueType* Find(const KeyType& Key);
    const ValueType* Find(const KeyType& Key) const;
    ValueType& FindOrAdd(const KeyType& Key);
    ValueType& FindOrAdd(KeyType&& Key);

    int32 Remove(const KeyType& InKey);
    /** Empties the map and keeps its allocation. */
    void Reset();
    bool RemoveAndCopyValue(const KeyType& Key, ValueType& OutRemovedValue);

    ElementType* begin();
    ElementType* end();
    const ElementType* begin() const;
    const ElementType* end() const;
};
