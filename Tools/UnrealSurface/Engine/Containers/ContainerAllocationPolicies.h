#pragma once

// Engine: Runtime/Core/Public/Containers/ContainerAllocationPolicies.h (module Core). The index size is
// what makes TArray64 count in int64.

template <int IndexSize> class TSizedDefaultAllocator
{
public:
    static constexpr int IndexBits = IndexSize;
};

using FDefaultAllocator = TSizedDefaultAllocator<32>;
using FDefaultAllocator64 = TSizedDefaultAllocator<64>;
