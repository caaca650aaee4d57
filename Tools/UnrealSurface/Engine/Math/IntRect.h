#pragma once

// Engine: Runtime/Core/Public/Math/IntRect.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TIntRect

#include "Math/IntPoint.h"
#include "Math/MathFwd.h"

namespace UE::Math
{
    template <typename T> struct TIntRect
    {
        TIntPoint<T> Min;
        TIntPoint<T> Max;

        TIntRect(T X0, T Y0, T X1, T Y1);
    };
} // namespace UE::Math
