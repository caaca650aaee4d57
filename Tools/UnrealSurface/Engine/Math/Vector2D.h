#pragma once

// Engine: Runtime/Core/Public/Math/Vector2D.h (module Core). FVector2D is the double-precision instance.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FVector2D

#include "HAL/Platform.h"

namespace UE::Math
{
    template <typename T> struct TVector2
    {
        T X;
        T Y;

        TVector2();
        TVector2(T InX, T InY);
    };
} // namespace UE::Math

using FVector2D = UE::Math::TVector2<double>;
