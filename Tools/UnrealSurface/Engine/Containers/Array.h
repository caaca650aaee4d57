#pragma once

// Engine: Runtime/Core/Public/Containers/Array.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TArray

#include "Containers/ContainerAllocationPolicies.h"
#include "HAL/Platform.h"

#include <type_traits>

template <typename InElementType, typename InAllocatorType = FDefaultAllocator> class TArray
{
public:
    using ElementType = InElementType;
    using SizeType = std::conditional_t<InAllocatorType::IndexBits == 64, int64, int32>;

    TArray();
    TArray(const ElementType* Ptr, SizeType Count);
    TArray(const TArray& Other);
    TArray(TArray&& Other);
    TArray& operator=(const TArray& Other);
    TArray& operator=(TArray&& Other);
    ~TArray();

    SizeType Num() const;
    ElementType* GetData();
    const ElementType* GetData() const;

    SizeType Add(const ElementType& Item);
    SizeType Add(ElementType&& Item);
    void Push(const ElementType& Item);
    void Push(ElementType&& Item);

    /** 5.4 replaced the bool bAllowShrinking parameter with EAllowShrinking (the bool form is deprecated). */
    void RemoveAt(SizeType Index);

    /** Removes every element the predicate answers true for; returns how many went. */
    template <class PredicateClass>
    requires(std::is_invocable_r_v<bool, const PredicateClass&, const ElementType&>) SizeType
        RemoveAll(const PredicateClass& Predicate)
    {
        return 0;
    }
    /** Empties the array and keeps its allocation. */
    void Reset(SizeType NewSize = 0);

    ElementType* begin();
    ElementType* end();
    const ElementType* begin() const;
    const ElementType* end() const;
};

/** Arrays of more than 2 GB, counted in int64 (image data). */
template <typename T> using TArray64 = TArray<T, FDefaultAllocator64>;
