#pragma once

// Engine: Runtime/Core/Public/Math/Box.h (module Core). IsValid is a data member (a box that was never
// grown is not valid), not a function.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TBox

#include "Math/MathFwd.h"
#include "Math/Vector.h"

namespace UE::Math
{
    template <typename T> struct TBox
    {
        TVector<T> Min;
        TVector<T> Max;
        uint8 IsValid;

        TBox();
        TBox(const TVector<T>& InMin, const TVector<T>& InMax);
    };
} // namespace UE::Math
