#pragma once

// Engine: Runtime/Core/Public/Math/IntPoint.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TIntPoint

#include "Math/MathFwd.h"

namespace UE::Math
{
    template <typename T> struct TIntPoint
    {
        T X;
        T Y;
    };
} // namespace UE::Math
